#include "platform/virtual_host.h"

#include <algorithm>
#include <stdexcept>

namespace vb {

VirtualHost::VirtualHost() {
  Engine::Get().SetHost(this);
}

VirtualHost::~VirtualHost() {
  if (&Engine::Get().host() == this) Engine::Get().SetHost(nullptr);
}

void VirtualHost::EndProgram(int status, EndHow how) {
  throw ProgramEnded{status, how};
}

void VirtualHost::Hang() {
  throw ProgramHung{};
}

void VirtualHost::PopupMenu(Control& menu) {
  popups.push_back(menu.Name());
}

void VirtualHost::QueueAt(std::int64_t at, Input input) {
  timed_.push_back({at, std::move(input)});
  std::stable_sort(timed_.begin(), timed_.end(),
                   [](const Timed& a, const Timed& b) { return a.at < b.at; });
}

void VirtualHost::QueueAtNextWait(Input input) {
  next_wait_.push_back(std::move(input));
}

bool VirtualHost::ServeDue() {
  bool served = false;
  while (!timed_.empty() && timed_.front().at <= now_) {
    Input in = std::move(timed_.front().input);
    timed_.erase(timed_.begin());
    if (!Engine::Get().Deliver(in)) refused.push_back(in);
    served = true;
  }
  if (Engine::Get().FireDueTimers()) served = true;
  return served;
}

void VirtualHost::ServeEvents() {
  if (Engine::Get().RunFocusEvents()) return;
  if (modal_driver && Engine::Get().TopModal() && modal_driver()) return;
  if (!next_wait_.empty()) {
    std::deque<Input> batch;
    batch.swap(next_wait_);
    for (auto& in : batch)
      if (!Engine::Get().Deliver(in)) refused.push_back(in);
    return;
  }
  if (ServeDue()) return;
  // Nothing is pending: the clock jumps to whatever comes next.
  std::int64_t next = Engine::Get().NextTimerDue();
  if (!timed_.empty() && (next < 0 || timed_.front().at < next)) next = timed_.front().at;
  if (next < 0) throw std::logic_error("the game waits for something that can never come");
  now_ = std::max(now_, next);
  ServeDue();
}

bool VirtualHost::CanRunFor(std::int64_t ms) const {
  return ms >= 0 && ms <= kLatest - now_;
}

void VirtualHost::RunFor(std::int64_t ms) {
  if (!CanRunFor(ms)) throw std::out_of_range("the virtual clock cannot run that far");
  const std::int64_t end = now_ + ms;
  for (;;) {
    ServeDue();
    std::int64_t next = Engine::Get().NextTimerDue();
    if (!timed_.empty() && (next < 0 || timed_.front().at < next)) next = timed_.front().at;
    if (next < 0 || next > end) break;
    now_ = std::max(now_, next);
  }
  now_ = end;
  ServeDue();
}

}  // namespace vb
