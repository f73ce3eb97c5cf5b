// The game's event loop on the desktop. The game has no main loop: a handler that waits calls
// DoEvents(), which lands in ServeEvents() here and sleeps in Qt's event loop until the next
// input or the next tick of a game timer, serves it, and returns. It never spins: one precise
// single-shot QTimer stands for whichever game timer is due first.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <cstdint>

#include "platform/engine.h"

namespace front {

class QtHost : public QObject, public vb::Host {
  Q_OBJECT

 public:
  // Becomes the engine's host; the engine has none again when it is destroyed.
  QtHost();
  ~QtHost() override;

  std::int64_t Now() const override { return clock_.elapsed(); }
  void ServeEvents() override;
  void TimersChanged() override { Arm(); }
  // Flushes and ends the process with `status` at once, however deep in handlers we are.
  [[noreturn]] void EndProgram(int status, vb::EndHow how) override;
  // The hung program: its window keeps painting, ignores every input, and closing it ends the
  // process.
  [[noreturn]] void Hang() override;
  void PopupMenu(vb::Control& menu) override;

  // How many times the game timer woke the loop (for the idle measurement).
  std::int64_t wakeups() const { return wakeups_; }

 private:
  void Arm();
  void Fire();

  QElapsedTimer clock_;
  QTimer timer_;
  std::int64_t wakeups_ = 0;
};

}  // namespace front
