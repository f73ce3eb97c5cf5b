// PokerZEVA on the desktop: the Qt application, the event loop behind the game's waits, the
// settings file, the program's folder and the random state, and then the game itself.
#include <QApplication>
#include <QIcon>
#include <QStyleFactory>
#include <cstdio>

#include "core/game_state.h"
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
#include "table/frm_principal.h"

int main(int argc, char** argv) {
  // The music's MP3 decoder: GStreamer's own mpg123 rather than the libav one, which brings the
  // whole of libav into memory (some 30 MB) for the tracks.
  if (!qEnvironmentVariableIsSet("GST_PLUGIN_FEATURE_RANK"))
    qputenv("GST_PLUGIN_FEATURE_RANK", "mpg123audiodec:MAX");
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("PokerZEVA"));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QIcon icon(QStringLiteral(":/icon/pokerzeva.svg"));
  for (int size : {48, 128, 256})
    icon.addFile(QStringLiteral(":/icon/pokerzeva-%1.png").arg(size), QSize(size, size));
  QApplication::setWindowIcon(icon);
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

  // POKERZEVA_FIRST_TURN_SHOT=FILE checks an installed game without a player: at the player's
  // first turn the table is saved as a picture in FILE, the phase and the player's cards are
  // printed, and the table is closed as its close box closes it (the seed is stored).
  if (const QString shot = qEnvironmentVariable("POKERZEVA_FIRST_TURN_SHOT"); !shot.isEmpty()) {
    QWidget* table = screen.WindowOf(Frm_Principal());
    const bool saved = table->grab().save(shot, "PNG");
    std::printf("first turn: Fase %s, player's cards", Fase.Text().c_str());
    for (int i = 1; i <= 5; ++i) std::printf(" %s", CartasPlayer[i].c_str());
    std::printf(", table %s %s\n", saved ? "saved in" : "NOT saved in", qPrintable(shot));
    std::fflush(stdout);
    table->close();
  }
  return QApplication::exec();
}
