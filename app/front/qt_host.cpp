#include "front/qt_host.h"

#include <QCoreApplication>
#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>

#include "front/guard.h"
#include "front/menus.h"

namespace front {

QtHost::QtHost() {
  clock_.start();
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &QtHost::Fire);
  vb::Engine::Get().SetHost(this);
  Arm();
}

QtHost::~QtHost() {
  vb::Engine& engine = vb::Engine::Get();
  if (engine.has_host() && &engine.host() == this) engine.SetHost(nullptr);
}

void QtHost::Arm() {
  const std::int64_t due = vb::Engine::Get().NextTimerDue();
  if (due < 0 || Faulted()) {
    timer_.stop();
    return;
  }
  const std::int64_t wait = std::clamp<std::int64_t>(due - Now(), 0, INT_MAX);
  timer_.start(static_cast<int>(wait));
}

void QtHost::Fire() {
  ++wakeups_;
  Guarded([] { vb::Engine::Get().FireDueTimers(); });
  Arm();
}

void QtHost::ServeEvents() {
  // Focus events queued by the waiting code run first, as the first thing the queue serves.
  bool ran = false;
  Guarded([&] { ran = vb::Engine::Get().RunFocusEvents(); });
  if (ran) return;
  Arm();
  // Sleeps until something happens, then serves what is pending once. A tick of the game's
  // timers comes in as our QTimer's timeout and runs inside this call.
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  // A tick that came due while another event was being served runs now rather than a turn late.
  if (const std::int64_t due = vb::Engine::Get().NextTimerDue(); due >= 0 && due <= Now())
    Guarded([] { vb::Engine::Get().FireDueTimers(); });
  Arm();
}

void QtHost::EndProgram(int status, vb::EndHow how) {
  (void)how;
  std::fflush(nullptr);
  std::_Exit(status);
}

void QtHost::Hang() {
  timer_.stop();
  for (;;) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void QtHost::PopupMenu(vb::Control& menu) {
  ShowPopupMenu(menu);
}

}  // namespace front
