// The desktop sound player: how it reads the game's media commands, where it finds the files, how
// its open devices behave, and that every sound shipped with the game decodes at its length.
#include <gtest/gtest.h>

#include <QAudioBuffer>
#include <QAudioDecoder>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMediaPlayer>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>
#include <cstdio>
#include <functional>
#include <map>

#include "front/sound_player.h"
#include "platform/app_path.h"
#include "sound/musicas.h"

namespace {

using front::SoundAction;

const std::string kAssets = POKERZEVA_SOURCE_DIR "/assets";

// Serves Qt's events until `done` holds or `timeout_ms` pass; never hangs.
bool WaitUntil(const std::function<bool()>& done, int timeout_ms) {
  if (done()) return true;
  QEventLoop loop;
  QTimer tick;
  QElapsedTimer clock;
  clock.start();
  QObject::connect(&tick, &QTimer::timeout, &loop, [&] {
    if (done() || clock.hasExpired(timeout_ms)) loop.quit();
  });
  tick.start(10);
  loop.exec();
  return done();
}

void Pump(int ms) {
  WaitUntil([] { return false; }, ms);
}

// The game's folders as the desktop program has them: the program in <root>/bin, the sounds in
// <root>/MUSICAS. Puts the program's folder back as it was.
class SoundFolders : public testing::Test {
 protected:
  SoundFolders() : app_path_(vb::AppPath()), cur_dir_(vb::CurDir()) {}
  void SetUp() override {
    ASSERT_TRUE(front::SoundPlayer::CanPlay())
        << "the media framework cannot play: are GStreamer's base, good, ugly and libav plugins "
           "installed?";
  }
  ~SoundFolders() override {
    vb::SetAppPath(app_path_);
    vb::ChDir(cur_dir_);
  }
  // The working folder the game sets for each command.
  static void GameFolderIn(const std::string& root) {
    vb::SetAppPath(root + "/bin");
    vb::ChDir(vb::AppPath() + "\\..");
  }

 private:
  std::string app_path_, cur_dir_;
};

TEST(SoundCommand, ReadsEachFormTheGameSends) {
  struct Case {
    const char* text;
    SoundAction action;
    const char* file;
  };
  const Case cases[] = {
      {"Play MUSICAS\\EFEITOS\\FICHAS.WAV", SoundAction::kPlay, "MUSICAS\\EFEITOS\\FICHAS.WAV"},
      {"Pause MUSICAS\\TRILHAS\\INGAME1.MP3", SoundAction::kPause, "MUSICAS\\TRILHAS\\INGAME1.MP3"},
      {"Stop MUSICAS\\MELODIAS\\BARAJANDO2.WAV", SoundAction::kStop,
       "MUSICAS\\MELODIAS\\BARAJANDO2.WAV"},
      {"Close MUSICAS\\MELODIAS\\ABRE.WAV", SoundAction::kClose, "MUSICAS\\MELODIAS\\ABRE.WAV"},
      {"Close MUSICAS\\TRILHAS\\CREDITOS.WMA", SoundAction::kClose,
       "MUSICAS\\TRILHAS\\CREDITOS.WMA"},
      {"Close All", SoundAction::kCloseAll, ""},
      {"close all", SoundAction::kCloseAll, ""},
      {"PLAY MUSICAS\\MELODIAS\\PERDI.MP3", SoundAction::kPlay, "MUSICAS\\MELODIAS\\PERDI.MP3"},
      {"  Play   MUSICAS\\EFEITOS\\CARTASEL.WAV ", SoundAction::kPlay,
       "MUSICAS\\EFEITOS\\CARTASEL.WAV"},
      {"Play \"MUSICAS\\EFEITOS\\CARTAINI.WAV\"", SoundAction::kPlay,
       "MUSICAS\\EFEITOS\\CARTAINI.WAV"},
      // What sends nothing to a device: an unknown folder word's empty text, a track number with
      // no file, a lone verb, verbs the player does not know, "All" to anything but "Close".
      {"", SoundAction::kNone, ""},
      {"   ", SoundAction::kNone, ""},
      {"Play MUSICAS\\TRILHAS\\", SoundAction::kNone, ""},
      {"Play MUSICAS/TRILHAS/", SoundAction::kNone, ""},
      {"Play", SoundAction::kNone, ""},
      {"Close", SoundAction::kNone, ""},
      {"Resume MUSICAS\\TRILHAS\\INGAME1.MP3", SoundAction::kNone, ""},
      {"Playing MUSICAS\\EFEITOS\\FICHAS.WAV", SoundAction::kNone, ""},
      {"Pause All", SoundAction::kPause, "All"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    const front::SoundCommand command = front::ParseSoundCommand(c.text);
    EXPECT_EQ(command.action, c.action);
    EXPECT_EQ(command.file, c.file);
  }
}

TEST_F(SoundFolders, FilesAreFoundInTheWorkingFolderOfTheMomentTheCommandArrives) {
  QTemporaryDir elsewhere;  // a game folder with no sounds in it
  front::SoundPlayer player;
  player.SetVolume(0.0f);
  const std::string fichas = kAssets + "/MUSICAS/EFEITOS/FICHAS.WAV";

  GameFolderIn(kAssets);
  EXPECT_EQ(vb::CurDir(), kAssets + "/bin\\..");
  player.Execute("Play MUSICAS\\EFEITOS\\FICHAS.WAV");
  ASSERT_EQ(player.OpenDevices(), 1u);
  ASSERT_NE(player.Device(fichas), nullptr);
  EXPECT_EQ(player.Device(fichas)->source(), QUrl::fromLocalFile(QString::fromStdString(fichas)));

  // The same words in another folder name another file, here a missing one: silent, no device,
  // and the open one is not touched.
  GameFolderIn(elsewhere.path().toStdString());
  player.Execute("Play MUSICAS\\EFEITOS\\FICHAS.WAV");
  player.Execute("Close MUSICAS\\EFEITOS\\FICHAS.WAV");
  player.Execute("Play MUSICAS\\TRILHAS\\");
  player.Execute("Play MUSICAS\\TRILHAS");  // a folder, not a file
  player.Execute("");
  EXPECT_EQ(player.OpenDevices(), 1u);

  GameFolderIn(kAssets);
  player.Execute("Close MUSICAS\\EFEITOS\\FICHAS.WAV");
  EXPECT_EQ(player.OpenDevices(), 0u);
}

TEST_F(SoundFolders, TheGamesOwnCallsReachThePlayerAndFindTheirFiles) {
  front::SoundPlayer player(front::SoundPlayer::kGameSink);
  player.SetVolume(0.0f);
  vb::SetAppPath(kAssets + "/bin");
  // The door changes the working folder for the call and back after it: the file must have been
  // found while it was changed.
  Musicas("MELODIAS", "LALUZ", "PLAY");
  EXPECT_EQ(vb::CurDir(), kAssets + "/bin");
  ASSERT_NE(player.Device(kAssets + "/MUSICAS/MELODIAS/LALUZ.WAV"), nullptr);
  Musicas("TRILHAS", "2", "PLAY");
  ASSERT_NE(player.Device(kAssets + "/MUSICAS/TRILHAS/INGAME2.WMA"), nullptr);
  Musicas("TRILHAS", "7", "PLAY");  // no file: nothing opens
  EXPECT_EQ(player.OpenDevices(), 2u);
  Musicas("MELODIAS", "LALUZ", "CLOSE");
  EXPECT_EQ(player.OpenDevices(), 1u);
  Musicas("TRILHAS", "All", "CLOSE");
  EXPECT_EQ(player.OpenDevices(), 0u);
}

TEST_F(SoundFolders, DevicesPauseResumeStopReplayAndClose) {
  front::SoundPlayer player;
  player.SetVolume(0.0f);
  GameFolderIn(kAssets);
  const std::string abre = kAssets + "/MUSICAS/MELODIAS/ABRE.WAV";    // 2.3 s
  const std::string laluz = kAssets + "/MUSICAS/MELODIAS/LALUZ.WAV";  // 0.3 s

  // Commands to files that are not open open nothing.
  player.Execute("Pause MUSICAS\\MELODIAS\\ABRE.WAV");
  player.Execute("Stop MUSICAS\\MELODIAS\\ABRE.WAV");
  player.Execute("Close MUSICAS\\MELODIAS\\ABRE.WAV");
  EXPECT_EQ(player.OpenDevices(), 0u);

  player.Execute("Play MUSICAS\\MELODIAS\\ABRE.WAV");
  QMediaPlayer* jingle = player.Device(abre);
  ASSERT_NE(jingle, nullptr);
  EXPECT_EQ(jingle->playbackState(), QMediaPlayer::PlayingState);
  WaitUntil([&] { return jingle->position() >= 500 || jingle->error() != QMediaPlayer::NoError; },
            5000);
  ASSERT_GE(jingle->position(), 500)
      << "the jingle does not advance; error: " << jingle->errorString().toStdString();

  // Pause holds the place, and the next "Play" goes on from it.
  player.Execute("Pause MUSICAS\\MELODIAS\\ABRE.WAV");
  EXPECT_EQ(jingle->playbackState(), QMediaPlayer::PausedState);
  const qint64 held = jingle->position();
  Pump(200);
  EXPECT_NEAR(jingle->position(), held, 50);
  player.Execute("Play MUSICAS\\MELODIAS\\ABRE.WAV");
  EXPECT_EQ(player.Device(abre), jingle);  // the same device
  EXPECT_EQ(jingle->playbackState(), QMediaPlayer::PlayingState);
  Pump(100);
  EXPECT_GE(jingle->position(), held);

  // Stop goes back to the start; the next "Play" starts there.
  player.Execute("Stop MUSICAS\\MELODIAS\\ABRE.WAV");
  EXPECT_EQ(jingle->playbackState(), QMediaPlayer::StoppedState);
  EXPECT_EQ(jingle->position(), 0);
  player.Execute("Play MUSICAS\\MELODIAS\\ABRE.WAV");
  Pump(100);
  EXPECT_EQ(jingle->playbackState(), QMediaPlayer::PlayingState);
  EXPECT_LT(jingle->position(), held);

  // A short sound that has finished lets its player go, stays open, and plays again on the next
  // "Play".
  const std::size_t open = player.OpenDevices();
  player.Execute("Play MUSICAS\\MELODIAS\\LALUZ.WAV");
  QPointer<QMediaPlayer> chime = player.Device(laluz);
  ASSERT_FALSE(chime.isNull());
  ASSERT_TRUE(WaitUntil([&] { return chime.isNull(); }, 5000)) << "the finished chime kept playing";
  EXPECT_EQ(player.Device(laluz), nullptr);
  EXPECT_EQ(player.OpenDevices(), open + 1);
  player.Execute("Play MUSICAS\\MELODIAS\\LALUZ.WAV");
  ASSERT_NE(player.Device(laluz), nullptr);
  EXPECT_EQ(player.Device(laluz)->playbackState(), QMediaPlayer::PlayingState);

  // The chips' rattle sent four times keeps one device.
  for (int i = 0; i < 4; ++i) player.Execute("Play MUSICAS\\EFEITOS\\FICHAS.WAV");
  EXPECT_EQ(player.OpenDevices(), 3u);
  EXPECT_EQ(player.Device(kAssets + "/MUSICAS/EFEITOS/FICHAS.WAV")->playbackState(),
            QMediaPlayer::PlayingState);

  player.Execute("Close MUSICAS\\MELODIAS\\ABRE.WAV");
  EXPECT_EQ(player.Device(abre), nullptr);
  EXPECT_EQ(player.OpenDevices(), 2u);
  player.Execute("Close All");
  EXPECT_EQ(player.OpenDevices(), 0u);
}

// The full decoded length of a file, in seconds; negative when it does not decode.
double DecodedSeconds(const QString& file, QString* error) {
  QAudioDecoder decoder;
  QAudioFormat format;  // asked for, so that the framework converts whatever the file holds
  format.setSampleRate(44100);
  format.setChannelCount(2);
  format.setSampleFormat(QAudioFormat::Int16);
  decoder.setAudioFormat(format);
  qint64 frames = 0;
  bool finished = false;
  QObject::connect(&decoder, &QAudioDecoder::bufferReady,
                   [&] { frames += decoder.read().frameCount(); });
  QObject::connect(&decoder, &QAudioDecoder::finished, [&] { finished = true; });
  QObject::connect(&decoder, qOverload<QAudioDecoder::Error>(&QAudioDecoder::error),
                   [&](QAudioDecoder::Error) { *error = decoder.errorString(); });
  decoder.setSource(QUrl::fromLocalFile(file));
  decoder.start();
  if (!WaitUntil([&] { return finished || !error->isEmpty(); }, 30000))
    *error = QStringLiteral("no end of decoding within 30 s");
  if (!error->isEmpty() || frames == 0) return -1;
  return double(frames) / format.sampleRate();
}

TEST_F(SoundFolders, EverySoundDecodesThroughThePlayerAtItsLength) {
  // The background tracks' lengths are what the music schedule counts on.
  const std::map<std::string, double> targets = {{"TRILHAS/INGAME1.MP3", 92.0},
                                                 {"TRILHAS/INGAME2.WMA", 98.0},
                                                 {"TRILHAS/INGAME3.MP3", 59.0},
                                                 {"TRILHAS/CREDITOS.WMA", 310.0}};
  const QStringList expected = {
      "EFEITOS/CARTAINI.WAV",    "EFEITOS/CARTAMESA.WAV",   "EFEITOS/CARTASEL.WAV",
      "EFEITOS/CARTASHOW.WAV",   "EFEITOS/FICHAS.WAV",      "EFEITOS/FICHAS_1.WAV",
      "EFEITOS/FICHAS_10.WAV",   "EFEITOS/FICHAS_5.WAV",    "EFEITOS/FICHAS_50.WAV",
      "MELODIAS/ABRE.WAV",       "MELODIAS/APOSTA.WAV",     "MELODIAS/BARAJANDO1.WAV",
      "MELODIAS/BARAJANDO2.WAV", "MELODIAS/BARAJANDO3.WAV", "MELODIAS/EMBORA.MP3",
      "MELODIAS/GANHEI.WAV",     "MELODIAS/LALUZ.WAV",      "MELODIAS/NOABRE.WAV",
      "MELODIAS/PASSOU.WAV",     "MELODIAS/PERDI.MP3",      "MELODIAS/WAIT.WAV",
      "TRILHAS/CREDITOS.WMA",    "TRILHAS/INGAME1.MP3",     "TRILHAS/INGAME2.WMA",
      "TRILHAS/INGAME3.MP3"};

  const QDir root(QString::fromStdString(kAssets + "/MUSICAS"));
  QStringList found;
  QDirIterator files(root.path(), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) found << root.relativeFilePath(files.next());
  found.sort();
  EXPECT_EQ(found, expected);

  front::SoundPlayer player;
  player.SetVolume(0.0f);
  GameFolderIn(kAssets);
  std::printf("%-26s %12s %12s\n", "file", "player (s)", "decoded (s)");
  for (const QString& name : found) {
    SCOPED_TRACE(name.toStdString());
    const std::string command = "Play MUSICAS\\" + QString(name).replace('/', '\\').toStdString();
    player.Execute(command);
    QMediaPlayer* device = player.Device(kAssets + "/MUSICAS/" + name.toStdString());
    ASSERT_NE(device, nullptr) << "no device opened for " << command;
    const bool loaded = WaitUntil(
        [&] { return device->duration() > 0 || device->error() != QMediaPlayer::NoError; }, 5000);
    ASSERT_TRUE(loaded) << "the player reported no length for " << name.toStdString()
                        << " within 5 s: is GStreamer with its base, good, ugly and libav "
                           "plugins installed?";
    ASSERT_EQ(device->error(), QMediaPlayer::NoError) << device->errorString().toStdString();
    const double played = device->duration() / 1000.0;
    player.Execute("Close " + command.substr(5));

    QString error;
    const double decoded = DecodedSeconds(root.filePath(name), &error);
    std::printf("%-26s %12.3f %12.3f\n", qPrintable(name), played, decoded);
    ASSERT_GT(decoded, 0.0) << "does not decode: " << error.toStdString();
    // The header's length and the decoded one agree.
    EXPECT_NEAR(played, decoded, std::max(0.02, decoded * 0.01));
    const auto target = targets.find(name.toStdString());
    if (target != targets.end()) {
      EXPECT_NEAR(played, target->second, target->second * 0.02);
      EXPECT_NEAR(decoded, target->second, target->second * 0.02);
    }
  }
  std::fflush(stdout);
  EXPECT_EQ(player.OpenDevices(), 0u);
}

}  // namespace
