#include "front/process.h"

#include <fcntl.h>
#include <unistd.h>

#include <QMessageBox>
#include <QSocketNotifier>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "front/guard.h"
#include "front/images.h"
#include "platform/engine.h"
#include "table/image_stores.h"

namespace front {

bool PicturesAtHand() {
  const QString file = UnreadablePicture(PicturesDoJogo());
  if (file.isEmpty()) return true;
  const QString text = PictureFaultText(file);
  std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
  QMessageBox box(QMessageBox::Critical, QStringLiteral("PokerZEVA"), text, QMessageBox::Ok);
  box.exec();
  return false;
}

namespace {

int g_pipe[2] = {-1, -1};
volatile std::sig_atomic_t g_pending = 0;
constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

void OnSignal(int number) {
  if (g_pending) _exit(128 + number);  // the first one was never served: the loop is stuck
  g_pending = number;
  const char byte = static_cast<char>(number);
  [[maybe_unused]] const ssize_t written = write(g_pipe[1], &byte, 1);
}

}  // namespace

EndSignals::EndSignals() {
  if (pipe2(g_pipe, O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_ = new QSocketNotifier(g_pipe[0], QSocketNotifier::Read, this);
  connect(notifier_, &QSocketNotifier::activated, this, &EndSignals::Serve);
  struct sigaction action = {};
  action.sa_handler = OnSignal;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  for (int number : kSignals) sigaction(number, &action, nullptr);
}

EndSignals::~EndSignals() {
  for (int number : kSignals) std::signal(number, SIG_DFL);
  delete notifier_;
  for (int& fd : g_pipe) {
    if (fd >= 0) close(fd);
    fd = -1;
  }
  g_pending = 0;
}

void EndSignals::Serve() {
  char byte = 0;
  while (read(g_pipe[0], &byte, 1) == 1) {
  }
  // As the window's close: the main form unloads (the music stops, the seed is saved) and the
  // program ends. Before the table exists, or after a fault, there is nothing to unload.
  vb::Engine& engine = vb::Engine::Get();
  vb::Input close;
  close.type = vb::Input::Type::Close;
  close.form = engine.MainForm();
  if (!Faulted() && engine.Accepts(close)) Guarded([&close] { vb::Engine::Get().Deliver(close); });
  std::fflush(nullptr);
  std::_Exit(Faulted() ? 1 : 0);
}

}  // namespace front
