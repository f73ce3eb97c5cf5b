// The settings file of the desktop: whatever stands in it, the seed is read without a crash and
// in short time, and a value saved can be read back from the file that replaces it.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "front/qt_settings.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // A folder of its own for each input: no file is met twice, nor any cache of it.
  // In memory where it can be: a save is written to a new file and renamed, one per input.
  static QTemporaryDir dir(QDir(QStringLiteral("/dev/shm")).exists()
                               ? QStringLiteral("/dev/shm/pokerzeva-fuzz-XXXXXX")
                               : QDir::tempPath() + QStringLiteral("/pokerzeva-fuzz-XXXXXX"));
  static int n = 0;
  const QString folder = dir.path() + QLatin1Char('/') + QString::number(n++);
  front::QtSettingsStore store(folder);
  const QString file = store.FileOf("Trevim");
  QDir().mkpath(QFileInfo(file).absolutePath());
  {
    QFile f(file);
    if (!f.open(QIODevice::WriteOnly)) return 0;
    f.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
  }
  const bool ours = front::IsSettingsText(
      QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
  const std::string seed = store.Get("Trevim", "Ramdomize", "Seed");
  if (!ours && !seed.empty()) std::abort();  // a file not ours is never read
  store.Save("Trevim", "Ramdomize", "Seed", "0.6484358");
  front::QtSettingsStore again(folder);
  if (again.Get("Trevim", "Ramdomize", "Seed") != "0.6484358") std::abort();
  QDir(folder).removeRecursively();
  return 0;
}
