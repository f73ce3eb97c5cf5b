#include "front/images.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QImageReader>
#include <cmath>

#include "platform/picture_files.h"

namespace front {
namespace {

// The densities the artwork is drawn at, and their file suffixes.
struct Density {
  int factor;
  const char* suffix;
};
constexpr Density kDensities[] = {{1, ".png"}, {2, "@2x.png"}, {4, "@4x.png"}};

QString g_folder;
// Pictures made for the screen, by id and size in device pixels. Only one size of the table is
// kept: a new scale empties it.
QHash<QString, QPixmap> g_made;
qint64 g_made_for = -1;
QHash<QString, QSize> g_natural;

// A drawing read from its file; not kept, as the picture made from it is.
QImage Drawing(const QString& id, const Density& d) {
  QImage img;
  const QString path = ImageFolder() + QLatin1Char('/') + id + QLatin1String(d.suffix);
  if (QFile::exists(path)) img.load(path);
  return img;
}

}  // namespace

QString ImageFolder() {
  if (g_folder.isEmpty()) {
    g_folder =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../images"));
  }
  return g_folder;
}

void SetImageFolder(const QString& folder) {
  g_folder = folder;
  g_made.clear();
  g_natural.clear();
}

QString PictureFile(const std::string& id) {
  return ImageFolder() + QLatin1Char('/') + QString::fromStdString(id) + QStringLiteral(".png");
}

QString UnreadablePicture(const std::vector<std::string>& ids) {
  // The same check as the headless tool's: the plain drawing and every denser one there is must
  // be whole (a damaged one would be passed over in silence), read by its chunks and checksums
  // rather than drawn, so that the start stays quick.
  const std::string folder = ImageFolder().toStdString();
  for (const std::string& id : ids)
    for (const std::string& file : vb::PictureFiles(folder, id))
      if (!vb::PictureFault(file).empty()) return QString::fromStdString(file);
  return QString();
}

QString PictureFaultText(const QString& file) {
  return QStringLiteral(
             "Não foi possível ler uma figura do jogo:\n\n%1\n\nAs figuras são procuradas na "
             "pasta %2\n\nO arquivo falta ou está danificado. Instale o PokerZEVA de novo.")
      .arg(QDir::toNativeSeparators(file), QDir::toNativeSeparators(ImageFolder()));
}

QSize PictureSize(const std::string& id) {
  if (id.empty()) return QSize();
  const QString name = QString::fromStdString(id);
  auto it = g_natural.find(name);
  if (it == g_natural.end()) it = g_natural.insert(name, QImageReader(PictureFile(id)).size());
  return it->isValid() ? *it : QSize();
}

QPixmap Picture(const std::string& id, qreal scale, qreal ratio) {
  const QSize natural = PictureSize(id);
  if (natural.isEmpty()) return QPixmap();
  const double factor = scale * ratio;
  const qint64 made_for = std::llround(factor * 1000.0);
  if (made_for != g_made_for) {
    g_made.clear();
    g_made_for = made_for;
  }
  const QString name = QString::fromStdString(id);
  auto it = g_made.find(name);
  if (it != g_made.end()) return *it;

  // The smallest drawing at least as dense as the screen needs; the densest when none is.
  QImage source;
  for (const Density& d : kDensities) {
    const bool last = &d == &kDensities[std::size(kDensities) - 1];
    if (d.factor < factor - 1e-6 && !last) continue;
    source = Drawing(name, d);
    if (!source.isNull()) break;
  }
  if (source.isNull())  // only the plainer drawings exist
    for (const Density& d : kDensities)
      if (QImage img = Drawing(name, d); !img.isNull()) source = img;
  const QSize device(std::max(1, static_cast<int>(std::lround(natural.width() * factor))),
                     std::max(1, static_cast<int>(std::lround(natural.height() * factor))));
  if (source.size() != device)
    source = source.scaled(device, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QPixmap made = QPixmap::fromImage(source);
  made.setDevicePixelRatio(ratio);
  return *g_made.insert(name, made);
}

}  // namespace front
