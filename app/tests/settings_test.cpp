// The settings file of the desktop: the seed survives the program, and a bad file never stops it.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "front/qt_settings.h"

namespace {

TEST(QtSettingsStore, ValuesLastBeyondTheStoreThatWroteThem) {
  QTemporaryDir dir;
  {
    front::QtSettingsStore store(dir.path());
    EXPECT_EQ(store.Get("Trevim", "Ramdomize", "Seed"), "");
    store.Save("Trevim", "Ramdomize", "Seed", "0.6484358");
    store.Save("Trevim", "Ramdomize", "Seed", "-12");  // the second write wins
    store.Save("Trevim", "Outra Seção", "Nome", "João");
    store.Save("OutroApp", "Ramdomize", "Seed", "7");
  }
  front::QtSettingsStore again(dir.path());
  EXPECT_EQ(again.Get("Trevim", "Ramdomize", "Seed"), "-12");
  EXPECT_EQ(again.Get("Trevim", "Outra Seção", "Nome"), "João");
  EXPECT_EQ(again.Get("OutroApp", "Ramdomize", "Seed"), "7");
  EXPECT_EQ(again.Get("Trevim", "Ramdomize", "Outra"), "");
  EXPECT_TRUE(QFile::exists(dir.path() + QStringLiteral("/Trevim/PokerZEVA.ini")));
  EXPECT_EQ(again.FileOf("Trevim"), dir.path() + QStringLiteral("/Trevim/PokerZEVA.ini"));
  // Nothing is left behind from the atomic writes.
  EXPECT_EQ(QDir(dir.path() + QStringLiteral("/Trevim")).entryList(QDir::Files),
            QStringList{QStringLiteral("PokerZEVA.ini")});
}

TEST(QtSettingsStore, ABadFileReadsAsEmptyAndIsWrittenAfresh) {
  struct Case {
    const char* what;
    QByteArray content;  // empty: a folder stands where the file should be
  };
  const Case cases[] = {
      {"garbage", QByteArray("\x00\xff\xfe[[[=\n\x01\x02 Seed", 15)},
      {"half a line", QByteArray("[Ramdomize\nSeed")},
      {"a folder", QByteArray()},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    QTemporaryDir dir;
    front::QtSettingsStore store(dir.path());
    const QString file = store.FileOf("Trevim");
    QDir().mkpath(dir.path() + QStringLiteral("/Trevim"));
    if (c.content.isEmpty()) {
      QDir().mkpath(file);
    } else {
      QFile f(file);
      ASSERT_TRUE(f.open(QIODevice::WriteOnly));
      f.write(c.content);
    }
    EXPECT_EQ(store.Get("Trevim", "Ramdomize", "Seed"), "");
    store.Save("Trevim", "Ramdomize", "Seed", "42");  // must not crash
    if (!c.content.isEmpty()) {
      EXPECT_EQ(store.Get("Trevim", "Ramdomize", "Seed"), "42");
    }
  }
}

TEST(QtSettingsStore, AMissingFolderIsCreatedOnTheFirstSave) {
  QTemporaryDir dir;
  front::QtSettingsStore store(dir.path() + QStringLiteral("/novo/mais fundo"));
  EXPECT_EQ(store.Get("Trevim", "Ramdomize", "Seed"), "");
  store.Save("Trevim", "Ramdomize", "Seed", "1");
  EXPECT_EQ(store.Get("Trevim", "Ramdomize", "Seed"), "1");
}

}  // namespace
