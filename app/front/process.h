// The process around the game: the pictures checked before the first window opens, and the
// signals of the system (SIGTERM, SIGINT, SIGHUP: a terminal's Ctrl+C, a session that ends) taken
// as the window's close, so that the game ends as it always does, with its seed saved.
#pragma once

#include <QObject>

class QSocketNotifier;

namespace front {

// Reads every picture the game's image stores need. When one cannot be read, says which and
// where it was looked for, on the standard error and in a message box, and returns false: the
// program then ends with status 1 before any window of the game opens.
bool PicturesAtHand();

// While it lives, SIGTERM, SIGINT and SIGHUP close the main window from Qt's event loop (the
// handler only wakes the loop). A second signal before the first was served ends the process at
// once.
class EndSignals : public QObject {
  Q_OBJECT

 public:
  EndSignals();
  ~EndSignals() override;

 private:
  void Serve();
  QSocketNotifier* notifier_ = nullptr;
};

}  // namespace front
