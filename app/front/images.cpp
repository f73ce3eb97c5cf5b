#include "front/images.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>

namespace front {
namespace {

QString g_folder;
QHash<QString, QPixmap> g_cache;

QPixmap Load(const QString& id, bool dense) {
  const QString base = ImageFolder() + QLatin1Char('/') + id;
  if (dense && QFile::exists(base + QStringLiteral("@2x.png"))) {
    QPixmap p(base + QStringLiteral("@2x.png"));
    if (!p.isNull()) {
      p.setDevicePixelRatio(2.0);
      return p;
    }
  }
  return QPixmap(base + QStringLiteral(".png"));
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
  g_cache.clear();
}

QPixmap Picture(const std::string& id, qreal ratio) {
  if (id.empty()) return QPixmap();
  const bool dense = ratio > 1.0;
  const QString name = QString::fromStdString(id);
  const QString key = name + (dense ? QStringLiteral("|2") : QStringLiteral("|1"));
  auto it = g_cache.find(key);
  if (it == g_cache.end()) it = g_cache.insert(key, Load(name, dense));
  return *it;
}

QSize PictureSize(const std::string& id) {
  const QPixmap p = Picture(id, 1.0);
  return p.isNull() ? QSize() : p.deviceIndependentSize().toSize();
}

}  // namespace front
