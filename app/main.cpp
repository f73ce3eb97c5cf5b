// PokerZEVA on the desktop: the Qt application, the event loop behind the game's waits, the
// settings file, the program's folder and the random state, and then the game itself.
#include <QApplication>
#include <QStyleFactory>

#include "core/start.h"
#include "front/front.h"
#include "front/guard.h"
#include "front/process.h"
#include "front/qt_host.h"
#include "front/qt_settings.h"
#include "front/sound_player.h"
#include "platform/app_path.h"
#include "platform/rnd.h"
#include "platform/settings.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("PokerZEVA"));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  // Windows come and go with the game's forms; only the game ends the program.
  QApplication::setQuitOnLastWindowClosed(false);
  // No table played blind: every picture is read before the first window.
  if (!front::PicturesAtHand()) return 1;

  front::QtSettingsStore settings;
  vb::InstallSettings(&settings);
  front::QtHost host;
  front::Front screen;
  front::SoundPlayer sound(front::SoundPlayer::kGameSink);
  front::EndSignals end_signals;
  vb::SetAppPath(QCoreApplication::applicationDirPath().toStdString());
  vb::SetRndState(vb::StartStateFromEnvironment());

  // The first hand plays up to the player's turn; from then on the player's input drives it.
  front::Guarded([] { IniciarJogo(); });
  return QApplication::exec();
}
