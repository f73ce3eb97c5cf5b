// PokerZEVA on the desktop: the Qt application, the event loop behind the game's waits, the
// settings file, the program's folder and the random state, and then the game itself.
#include <QApplication>
#include <QLabel>
#include <QStyleFactory>

#include "core/start.h"
#include "front/front.h"
#include "front/guard.h"
#include "front/qt_host.h"
#include "front/qt_settings.h"
#include "platform/app_path.h"
#include "platform/rnd.h"
#include "platform/settings.h"

// Until the game's start is written, the program opens an empty window instead.
void IniciarJogo() __attribute__((weak));

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("PokerZEVA"));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  // Windows come and go with the game's forms; only the game ends the program.
  QApplication::setQuitOnLastWindowClosed(false);

  front::QtSettingsStore settings;
  vb::InstallSettings(&settings);
  front::QtHost host;
  front::Front screen;
  vb::SetAppPath(QCoreApplication::applicationDirPath().toStdString());
  vb::SetRndState(vb::StartStateFromEnvironment());

  if (IniciarJogo) {
    front::Guarded([] { IniciarJogo(); });
  } else {
    auto* empty = new QLabel(QStringLiteral("PokerZEVA"));
    empty->setWindowTitle(QStringLiteral("PokerZEVA"));
    empty->resize(320, 120);
    empty->show();
    QApplication::setQuitOnLastWindowClosed(true);
  }
  return QApplication::exec();
}
