// The event loop on a virtual clock, for tests and the replay tool. A wait that nothing fills
// jumps the clock to the next due timer, so the seconds of a hand cost nothing; the player's input
// can be queued for a moment of virtual time or for the next wait, and is then delivered inside
// the waiting handler, exactly as a real click would be.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/engine.h"

namespace vb {

class VirtualHost : public Host {
 public:
  VirtualHost();
  ~VirtualHost() override;

  std::int64_t Now() const override { return now_; }
  void ServeEvents() override;
  [[noreturn]] void EndProgram(int status, EndHow how) override;
  [[noreturn]] void Hang() override;
  void PopupMenu(Control& menu) override;

  // Queue input for a virtual moment, or for the next wait (the next ServeEvents).
  void QueueAt(std::int64_t at, Input input);
  void QueueAtNextWait(Input input);

  // At the top level (no handler running): let the clock run for `ms`, serving timers and queued
  // input as they come due. The clock stops short of kLatest, so that no sum of a moment and a
  // timer's interval can overflow; a run beyond it is refused (std::out_of_range).
  static constexpr std::int64_t kLatest = std::int64_t{1} << 60;  // 36 million years
  bool CanRunFor(std::int64_t ms) const;
  void RunFor(std::int64_t ms);

  // A scripted player at a modal form: while one is up, each wait first asks the driver to act
  // (one action a call); it returns false when it has nothing to do at that moment.
  std::function<bool()> modal_driver;

  // What happened to queued input the screen refused, and the popups shown.
  std::vector<Input> refused;
  std::vector<std::string> popups;

 private:
  bool ServeDue();
  struct Timed {
    std::int64_t at;
    Input input;
  };
  std::int64_t now_ = 0;
  std::deque<Input> next_wait_;
  std::vector<Timed> timed_;
};

}  // namespace vb
