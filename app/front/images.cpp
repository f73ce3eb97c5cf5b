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
  return QPixmap(PictureFile(id.toStdString()));
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

QString PictureFile(const std::string& id) {
  return ImageFolder() + QLatin1Char('/') + QString::fromStdString(id) + QStringLiteral(".png");
}

std::string LoadPictures(const std::vector<std::string>& ids, qreal ratio) {
  for (const std::string& id : ids) {
    if (Picture(id, 1.0).isNull()) return id;
    if (ratio > 1.0) Picture(id, ratio);
  }
  return std::string();
}

QString PictureFaultText(const std::string& id) {
  return QStringLiteral(
             "Não foi possível ler uma figura do jogo:\n\n%1\n\nAs figuras são procuradas na "
             "pasta %2\n\nO arquivo falta ou está danificado. Instale o PokerZEVA de novo.")
      .arg(QDir::toNativeSeparators(PictureFile(id)), QDir::toNativeSeparators(ImageFolder()));
}

QSize PictureSize(const std::string& id) {
  const QPixmap p = Picture(id, 1.0);
  return p.isNull() ? QSize() : p.deviceIndependentSize().toSize();
}

}  // namespace front
