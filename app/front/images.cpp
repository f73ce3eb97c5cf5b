#include "front/images.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QImageReader>
#include <cmath>

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
// Drawings read from the files, by id and density.
QHash<QString, QImage> g_drawn;
QHash<QString, QSize> g_natural;

QImage Drawing(const QString& id, const Density& d) {
  const QString key = id + QLatin1Char('|') + QString::number(d.factor);
  auto it = g_drawn.find(key);
  if (it == g_drawn.end()) {
    QImage img;
    const QString path = ImageFolder() + QLatin1Char('/') + id + QLatin1String(d.suffix);
    if (QFile::exists(path)) img.load(path);
    it = g_drawn.insert(key, img);
  }
  return *it;
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
  g_drawn.clear();
  g_natural.clear();
}

QSize PictureSize(const std::string& id) {
  if (id.empty()) return QSize();
  const QString name = QString::fromStdString(id);
  auto it = g_natural.find(name);
  if (it == g_natural.end())
    it = g_natural.insert(name, QImageReader(ImageFolder() + QLatin1Char('/') + name +
                                             QStringLiteral(".png"))
                                    .size());
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
    QImage img = Drawing(name, d);
    if (img.isNull()) continue;
    source = img;
    if (d.factor >= factor - 1e-6) break;
  }
  const QSize device(std::max(1, static_cast<int>(std::lround(natural.width() * factor))),
                     std::max(1, static_cast<int>(std::lround(natural.height() * factor))));
  if (source.size() != device)
    source = source.scaled(device, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QPixmap made = QPixmap::fromImage(source);
  made.setDevicePixelRatio(ratio);
  return *g_made.insert(name, made);
}

}  // namespace front
