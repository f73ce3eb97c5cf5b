// What a player's machine can do to the program around the game: pictures missing or damaged, a
// settings file too large to be the game's, a disk that is full, a file that is read-only.
#include "front/process.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <cstdio>

#include "core/deck.h"
#include "front/front.h"
#include "front/guard.h"
#include "front/images.h"
#include "front/qt_host.h"
#include "front/qt_settings.h"
#include "platform/engine.h"
#include "platform/settings.h"
#include "support/sample_form.h"

namespace {

// The game's own pictures, copied to a folder of the test's.
void CopyPictures(const QString& to) {
  const QString from = QStringLiteral(POKERZEVA_BINARY_DIR "/images");
  QDirIterator it(from, QDir::Files, QDirIterator::Subdirectories);
  while (it.hasNext()) {
    const QString file = it.next();
    const QString copy = to + file.mid(from.size());
    QDir().mkpath(QFileInfo(copy).absolutePath());
    QFile::copy(file, copy);
  }
}

// Accepts the message box when it comes, after printing its title and text on one line.
void AnswerTheBox() {
  auto* timer = new QTimer;
  QObject::connect(timer, &QTimer::timeout, [] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    std::fprintf(stderr, "box: %s | %s\n", qPrintable(box->windowTitle()),
                 qPrintable(box->text().replace(QLatin1Char('\n'), QLatin1Char('/'))));
    box->accept();
  });
  timer->start(50);
}

// Each case runs in a process of its own, which breaks a copy of the pictures and starts.
TEST(StartPictures, AMissingOrDamagedPictureStopsTheStartWithStatusOne) {
  struct Case {
    const char* what;
    const char* file;
    QByteArray content;  // null: the file is removed, or cut to its first `keep` bytes
    int keep;
  };
  const Case cases[] = {
      {"intact", nullptr, QByteArray(), 0},
      {"missing", "faces/7.png", QByteArray(), 0},
      {"cut in its header", "potes/F05_12.png", QByteArray(), 16},
      {"cut after its header", "potes/F10_03.png", QByteArray(), 200},
      {"a drawing for dense screens cut", "barajas/KD@4x.png", QByteArray(), 300},
      {"random bytes", "barajas/AC.png", QByteArray(300, '\x5a'), 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const auto start = [&c] {
      QTemporaryDir dir;
      CopyPictures(dir.path());
      if (c.file) {
        const QString file = dir.path() + QLatin1Char('/') + QLatin1String(c.file);
        QFile f(file);
        QByteArray content = c.content;
        if (c.keep > 0 && f.open(QIODevice::ReadOnly)) content = f.read(c.keep);
        f.close();
        QFile::remove(file);
        if (!content.isNull() && f.open(QIODevice::WriteOnly)) f.write(content);
      }
      front::SetImageFolder(dir.path());
      AnswerTheBox();
      std::_Exit(front::PicturesAtHand() ? 0 : 1);
    };
    if (!c.file) {
      EXPECT_EXIT(start(), testing::ExitedWithCode(0), "");
    } else {
      EXPECT_EXIT(start(), testing::ExitedWithCode(1),
                  std::string("box: PokerZEVA \\| Não foi possível ler uma figura do jogo://.*/") +
                      QRegularExpression::escape(QLatin1String(c.file)).toStdString() +
                      "//As figuras são procuradas na pasta /");
    }
  }
}

// The window's close saves the seed, which reads and writes the settings file: a file of 100 MB
// of text is not the game's, and is neither parsed nor kept.
TEST(Settings, TheCloseEndsAtOnceWhenTheSettingsFileIsHuge) {
  EXPECT_EXIT(
      {
        static QTemporaryDir dir;
        static front::QtSettingsStore store(dir.path());
        const QString file = store.FileOf("Trevim");
        QDir().mkpath(QFileInfo(file).absolutePath());
        QFile f(file);
        if (!f.open(QIODevice::WriteOnly)) std::_Exit(3);
        const QByteArray line = QByteArray("[Ramdomize]\nSeed=0.25\n") + QByteArray(77, 'x') + '\n';
        for (int i = 0; i < 1'000'000; ++i) f.write(line);
        f.close();
        vb::InstallSettings(&store);
        front::QtHost host;
        sample::SampleForm table;
        front::Front screen;
        static QElapsedTimer clock;
        table.form.Unload = [](int&) {
          GuardarSemente();
          // A hang guard only: the time itself is measured apart.
          std::fprintf(stderr, "unload took %s; the file now %lld bytes, seed %s\n",
                       clock.elapsed() < 10'000 ? "little" : "long",
                       static_cast<long long>(QFileInfo(store.FileOf("Trevim")).size()),
                       store.Get("Trevim", "Ramdomize", "Seed").c_str());
        };
        front::Guarded([&] { vb::Engine::Get().Show(table.form); });
        QWidget* window = screen.WindowOf(table.form);
        clock.start();
        window->close();
        std::_Exit(4);
      },
      testing::ExitedWithCode(0),
      "unload took little; the file now [0-9][0-9] bytes, seed 0\\.6484358");
}

// A save that cannot be written leaves the old file whole.
TEST(Settings, AFailedWriteLeavesTheOldFile) {
  for (const bool full_disk : {true, false}) {
    SCOPED_TRACE(full_disk ? "full disk" : "read-only file");
    EXPECT_EXIT(
        {
          QTemporaryDir dir;
          front::QtSettingsStore store(dir.path());
          store.Save("Trevim", "Ramdomize", "Seed", "0.6484358");
          const QString file = store.FileOf("Trevim");
          QFile f(file);
          if (!f.open(QIODevice::ReadOnly)) std::_Exit(3);
          const QByteArray old = f.readAll();
          f.close();
          if (full_disk) {
            // The disk is full for this process: no file grows beyond 8 bytes.
            std::signal(SIGXFSZ, SIG_IGN);
            rlimit limit = {};
            getrlimit(RLIMIT_FSIZE, &limit);
            limit.rlim_cur = 8;
            setrlimit(RLIMIT_FSIZE, &limit);
          } else {
            QFile::setPermissions(file, QFileDevice::ReadOwner | QFileDevice::ReadGroup);
          }
          store.Save("Trevim", "Ramdomize", "Seed", "0.1234567");
          rlimit limit = {};
          getrlimit(RLIMIT_FSIZE, &limit);
          limit.rlim_cur = limit.rlim_max;  // the report below must be written
          setrlimit(RLIMIT_FSIZE, &limit);
          if (!f.open(QIODevice::ReadOnly)) std::_Exit(3);
          const QStringList left = QDir(QFileInfo(file).absolutePath()).entryList(QDir::Files);
          std::fprintf(stderr, "old file %s, files %s\n", f.readAll() == old ? "kept" : "changed",
                       qPrintable(left.join(QLatin1Char(' '))));
          std::_Exit(0);
        },
        testing::ExitedWithCode(0), "old file kept, files PokerZEVA\\.ini\n");
  }
}

}  // namespace
