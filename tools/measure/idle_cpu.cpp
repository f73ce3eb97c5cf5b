// pokerzeva-idle-cpu: how much of a core the desktop front burns while the game waits for the
// player. Shows the sample table, then waits as the game does (DoEvents until done) for ten
// seconds with a 100 ms game timer ticking and a label redrawn at each tick, and prints the CPU
// time the process used during the wait.
//
//   pokerzeva-idle-cpu [seconds]
#include <sys/resource.h>

#include <QApplication>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "front/front.h"
#include "front/guard.h"
#include "front/images.h"
#include "front/qt_host.h"
#include "platform/engine.h"
#include "support/sample_form.h"

namespace {

double CpuSeconds() {
  rusage use{};
  getrusage(RUSAGE_SELF, &use);
  return static_cast<double>(use.ru_utime.tv_sec + use.ru_stime.tv_sec) +
         static_cast<double>(use.ru_utime.tv_usec + use.ru_stime.tv_usec) / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setQuitOnLastWindowClosed(false);
  const int seconds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 10;
  QTemporaryDir pictures;
  sample::WriteSampleImages(pictures.path());
  front::SetImageFolder(pictures.path());

  front::QtHost host;
  front::Front screen;
  sample::SampleForm table;
  int ticks = 0;
  bool done = false;
  std::int64_t end = INT64_MAX;
  table.timer->TimerEvent = [&] {
    ++ticks;
    table.chips_label->Caption = std::to_string(ticks) + " Fichas";
    if (host.Now() >= end) done = true;
  };
  double used = 0;
  std::int64_t wall = 0;
  front::Guarded([&] {
    vb::Engine::Get().Show(table.form);
    // Let the window settle before measuring.
    const std::int64_t settle = host.Now() + 500;
    table.timer->Interval = 100;
    table.timer->Enabled = true;
    while (host.Now() < settle) vb::DoEvents();
    ticks = 0;
    const std::int64_t wakeups = host.wakeups();
    const double before = CpuSeconds();
    const std::int64_t start = host.Now();
    end = start + seconds * 1000;
    while (!done) vb::DoEvents();
    used = CpuSeconds() - before;
    wall = host.Now() - start;
    std::printf("platform %s: %lld ms of waiting, %d ticks, %lld timer wakeups\n",
                qPrintable(QGuiApplication::platformName()), static_cast<long long>(wall), ticks,
                static_cast<long long>(host.wakeups() - wakeups));
  });
  std::printf("cpu %.1f ms = %.3f%% of one core\n", used * 1000, 100.0 * used * 1000 / wall);
  std::fflush(stdout);
  return used * 1000 / wall < 0.01 ? 0 : 1;
}
