// pokerzeva-amostra: the sample table in a real window, to play the front by hand or with the
// desk tool. Pictures come from the game's images folder when it has them, else plain ones are
// painted into a temporary folder.
#include <QApplication>
#include <QFile>
#include <QStyleFactory>
#include <QTemporaryDir>

#include "front/front.h"
#include "front/guard.h"
#include "front/images.h"
#include "front/qt_host.h"
#include "platform/engine.h"
#include "support/sample_form.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setQuitOnLastWindowClosed(false);
  QTemporaryDir pictures;
  if (!QFile::exists(front::ImageFolder() + QStringLiteral("/barajas/AC.png"))) {
    sample::WriteSampleImages(pictures.path());
    front::SetImageFolder(pictures.path());
  }
  front::QtHost host;
  front::Front screen;
  sample::SampleForm table;
  front::Guarded([&] { vb::Engine::Get().Show(table.form); });
  return QApplication::exec();
}
