#include "front/qt_settings.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace front {
namespace {

const QString kProgram = QStringLiteral("PokerZEVA");

QString KeyOf(const std::string& section, const std::string& key) {
  return QString::fromStdString(section) + QLatin1Char('/') + QString::fromStdString(key);
}

}  // namespace

QtSettingsStore::QtSettingsStore(QString folder) : folder_(std::move(folder)) {
  if (folder_.isEmpty())
    folder_ = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

QString QtSettingsStore::FileOf(const std::string& app) const {
  return folder_ + QLatin1Char('/') + QString::fromStdString(app) + QLatin1Char('/') + kProgram +
         QStringLiteral(".ini");
}

std::string QtSettingsStore::Get(const std::string& app, const std::string& section,
                                 const std::string& key) {
  const QString file = FileOf(app);
  if (!QFileInfo(file).isReadable()) return std::string();
  QSettings ini(file, QSettings::IniFormat);
  if (ini.status() != QSettings::NoError) return std::string();
  return ini.value(KeyOf(section, key)).toString().toStdString();
}

void QtSettingsStore::Save(const std::string& app, const std::string& section,
                           const std::string& key, const std::string& value) {
  const QString file = FileOf(app);
  QDir().mkpath(QFileInfo(file).absolutePath());
  QSettings ini(file, QSettings::IniFormat);
  // QSettings writes through a temporary file renamed over the old one.
  ini.setAtomicSyncRequired(true);
  if (ini.status() == QSettings::FormatError) {
    // A garbled file holds nothing worth keeping: start it again.
    ini.clear();
  }
  ini.setValue(KeyOf(section, key), QString::fromStdString(value));
  ini.sync();
}

}  // namespace front
