// pokerzeva-table-shots [OUTDIR]: the table drawn by the desktop front, offscreen, after a
// headless start-up on the virtual clock (seed 1): the normal layout and the wide one that shows
// the deck, each at scale 1 and 2. For looking at the screen without playing up to it.
#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QProcess>
#include <cstdlib>
#include <iostream>

#include "core/game_state.h"
#include "core/hand_cycle.h"
#include "core/start.h"
#include "front/front.h"
#include "platform/app_path.h"
#include "platform/rnd.h"
#include "platform/virtual_host.h"
#include "table/cards.h"
#include "table/frm_principal.h"

int main(int argc, char** argv) {
  const QString scale = qEnvironmentVariable("POKERZEVA_SHOT_SCALE", "1");
  if (scale == "1" && argc < 3) {
    // Run once more at scale 2, in a process of its own (Qt reads the scale at start).
    QStringList args;
    for (int i = 1; i < argc; ++i) args << argv[i];
    args << "--child";
    auto env = QProcessEnvironment::systemEnvironment();
    env.insert("POKERZEVA_SHOT_SCALE", "2");
    env.insert("QT_SCALE_FACTOR", "2");
    QProcess child;
    child.setProcessEnvironment(env);
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(QString::fromLocal8Bit(argv[0]), args);
    child.waitForFinished(60000);
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  const QString out = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(".");
  QDir().mkpath(out);

  vb::VirtualHost host;
  front::Front screen;
  vb::SetAppPath(QCoreApplication::applicationDirPath().toStdString());
  vb::SetRndState(1);
  IniciarJogo();  // the first hand up to the player's turn, on the virtual clock

  auto& f = Frm_Principal();
  auto shoot = [&](const char* name) {
    QApplication::processEvents();
    QWidget* window = screen.WidgetOf(f);
    const QString path = out + "/table_" + name + "_x" + scale + ".png";
    window->grab().save(path);
    std::cout << path.toStdString() << "\n";
  };
  shoot("normal");
  VerBaralho = true;
  AjustarTela();
  MostrarBaralho(false, false);
  shoot("deck");
  DestruirFormularios();  // before the form engine, a static, is gone
  return 0;
}
