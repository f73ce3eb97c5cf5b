#include "front/qt_settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStringDecoder>
#include <cstdio>

namespace front {
namespace {

const QString kProgram = QStringLiteral("PokerZEVA");

QString KeyOf(const std::string& section, const std::string& key) {
  return QString::fromStdString(section) + QLatin1Char('/') + QString::fromStdString(key);
}

// What the file holds, as far as the game is concerned.
enum class Kind { kAbsent, kOurs, kForeign, kLocked };

Kind KindOf(const QString& file) {
  const QFileInfo info(file);
  if (!info.exists()) return Kind::kAbsent;
  if (!info.isFile() || !info.isReadable()) return Kind::kLocked;
  if (info.size() > QtSettingsStore::kLargest) return Kind::kForeign;
  QFile f(file);
  if (!f.open(QIODevice::ReadOnly)) return Kind::kLocked;
  return IsSettingsText(f.read(QtSettingsStore::kLargest + 1)) ? Kind::kOurs : Kind::kForeign;
}

}  // namespace

bool IsSettingsText(const QByteArray& bytes) {
  if (bytes.size() > QtSettingsStore::kLargest) return false;
  for (const char c : bytes) {
    const auto u = static_cast<unsigned char>(c);
    if (u < 0x20 && u != '\t' && u != '\n' && u != '\r') return false;
  }
  QStringDecoder utf8(QStringDecoder::Utf8);
  [[maybe_unused]] const QString text = utf8.decode(bytes);
  return !utf8.hasError();
}

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
  if (KindOf(file) != Kind::kOurs) return std::string();
  QSettings ini(file, QSettings::IniFormat);
  if (ini.status() != QSettings::NoError) return std::string();
  return ini.value(KeyOf(section, key)).toString().toStdString();
}

void QtSettingsStore::Save(const std::string& app, const std::string& section,
                           const std::string& key, const std::string& value) {
  const QString file = FileOf(app);
  const Kind kind = KindOf(file);
  // A file kept from being written by its owner is left as it is, even by a user who could write
  // it anyway; so is anything that is not a file.
  if (kind == Kind::kLocked) return;
  if (kind != Kind::kAbsent && !(QFileInfo(file).permissions() & QFileDevice::WriteOwner)) return;
  QDir().mkpath(QFileInfo(file).absolutePath());
  if (kind == Kind::kForeign) {
    // Not ours, or too large to be: never read. A file of our own takes its place, written
    // beside it and renamed over it in one step.
    const QString fresh = file + QStringLiteral(".novo");
    QFile::remove(fresh);
    {
      QSettings ini(fresh, QSettings::IniFormat);
      ini.setValue(KeyOf(section, key), QString::fromStdString(value));
      ini.sync();
      if (ini.status() != QSettings::NoError) {
        QFile::remove(fresh);
        return;
      }
    }
    if (std::rename(QFile::encodeName(fresh).constData(), QFile::encodeName(file).constData()))
      QFile::remove(fresh);
    return;
  }
  // QSettings writes a new file beside the old and renames it over the old one only when the
  // whole file is written: a full disk or a crash leaves the old file as it was.
  QSettings ini(file, QSettings::IniFormat);
  ini.setAtomicSyncRequired(true);
  if (ini.status() == QSettings::FormatError) ini.clear();  // garbled: start it again
  ini.setValue(KeyOf(section, key), QString::fromStdString(value));
  ini.sync();
}

}  // namespace front
