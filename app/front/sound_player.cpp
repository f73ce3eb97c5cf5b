#include "front/sound_player.h"

#include <dlfcn.h>

#include <QAudioOutput>
#include <QFileInfo>
#include <QMediaFormat>
#include <QMediaPlayer>
#include <QUrl>
#include <cctype>

#include "platform/app_path.h"
#include "platform/mci.h"

namespace front {
namespace {

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string::npos) return {};
  const auto last = text.find_last_not_of(" \t");
  return text.substr(first, last - first + 1);
}

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

SoundAction ActionOf(const std::string& verb) {
  const std::string v = Lower(verb);
  if (v == "play") return SoundAction::kPlay;
  if (v == "pause") return SoundAction::kPause;
  if (v == "stop") return SoundAction::kStop;
  if (v == "close") return SoundAction::kClose;
  return SoundAction::kNone;
}

// Qt's GStreamer backend crashes while building a player when GStreamer's playback elements are
// missing, and Debian's Qt packages do not bring them in (they are in gstreamer1.0-plugins-base).
// The backend is loaded by then; another backend leaves GStreamer unloaded and passes.
bool GStreamerCanPlay() {
  void* gst = dlopen("libgstreamer-1.0.so.0", RTLD_LAZY | RTLD_NOLOAD);
  if (gst == nullptr) return true;
  using Find = void* (*)(const char*);
  using Unref = void (*)(void*);
  const auto find = reinterpret_cast<Find>(dlsym(gst, "gst_element_factory_find"));
  const auto unref = reinterpret_cast<Unref>(dlsym(gst, "gst_object_unref"));
  bool can = find != nullptr && unref != nullptr;
  for (const char* element : {"uridecodebin", "decodebin"}) {
    if (!can) break;
    void* factory = find(element);
    can = factory != nullptr;
    if (can) unref(factory);
  }
  dlclose(gst);
  return can;
}

}  // namespace

bool SoundPlayer::CanPlay() {
  static const bool can = [] {
    QMediaFormat().supportedFileFormats(QMediaFormat::Decode);  // wakes the media framework
    return GStreamerCanPlay();
  }();
  return can;
}

SoundCommand ParseSoundCommand(const std::string& text) {
  const std::string command = Trimmed(text);
  const auto blank = command.find_first_of(" \t");
  if (blank == std::string::npos) return {};
  const SoundAction action = ActionOf(command.substr(0, blank));
  std::string file = Trimmed(command.substr(blank + 1));
  if (file.size() >= 2 && file.front() == '"' && file.back() == '"')
    file = file.substr(1, file.size() - 2);
  if (action == SoundAction::kNone || file.empty()) return {};
  if (action == SoundAction::kClose && Lower(file) == "all") return {SoundAction::kCloseAll, {}};
  // "Play MUSICAS\TRILHAS\" is what the music schedule sends for a track number it has no file
  // for: a folder, not a sound.
  if (file.back() == '\\' || file.back() == '/') return {};
  return {action, file};
}

SoundPlayer::SoundPlayer(Role role) : role_(role) {
  if (role_ == kGameSink) vb::InstallMciSink([this](const std::string& c) { Execute(c); });
}

SoundPlayer::~SoundPlayer() {
  if (role_ == kGameSink) vb::InstallMciSink(nullptr);
}

void SoundPlayer::Execute(const std::string& text) {
  const SoundCommand command = ParseSoundCommand(text);
  if (command.action == SoundAction::kNone) return;
  if (command.action == SoundAction::kCloseAll) {
    devices_.clear();
    return;
  }
  const std::string path = vb::ResolvePath(command.file);
  if (command.action == SoundAction::kPlay) {
    Play(path);
    return;
  }
  // Pausing, stopping or closing a file that is not open does nothing.
  const auto it = devices_.find(path);
  if (it == devices_.end()) return;
  if (!it->second.player) {
    if (command.action == SoundAction::kClose) devices_.erase(it);  // a sound that has ended
    return;
  }
  QMediaPlayer& player = *it->second.player;
  switch (command.action) {
    case SoundAction::kPause:
      if (player.playbackState() == QMediaPlayer::PlayingState) player.pause();
      break;
    case SoundAction::kStop:
      player.stop();  // and back to the start
      break;
    case SoundAction::kClose:
      player.stop();
      devices_.erase(it);
      break;
    default:
      break;
  }
}

void SoundPlayer::Play(const std::string& path) {
  auto it = devices_.find(path);
  if (it == devices_.end()) {
    // The first device of the run also wakes the media framework, so nothing of it is touched
    // before the game first wants a sound.
    if (!QFileInfo(QString::fromStdString(path)).isFile() || !CanPlay()) return;
    it = devices_.emplace(path, OpenDevice()).first;
  }
  OpenDevice& device = it->second;
  if (!device.player) {
    Start(path, device);
    return;
  }
  // A paused track goes on where it stopped; anything else starts over: the chips' rattle sent
  // four times in a row restarts four times.
  QMediaPlayer& player = *device.player;
  if (player.playbackState() != QMediaPlayer::PausedState) player.setPosition(0);
  player.play();
}

// A device's player exists while it sounds. A sound that has played to its end lets its player
// go (the device stays open, and its next "Play" makes a new one): a player kept between sounds
// holds a whole media pipeline, its memory and its threads, for as long as the game runs.
void SoundPlayer::Start(const std::string& path, OpenDevice& device) {
  device.output = std::make_unique<QAudioOutput>();
  device.output->setVolume(volume_);
  device.player = std::make_unique<QMediaPlayer>();
  device.player->setAudioOutput(device.output.get());
  QMediaPlayer* started = device.player.get();
  QObject::connect(started, &QMediaPlayer::mediaStatusChanged, started,
                   [this, path, started](QMediaPlayer::MediaStatus status) {
                     if (status != QMediaPlayer::EndOfMedia) return;
                     const auto found = devices_.find(path);
                     if (found == devices_.end() || found->second.player.get() != started) return;
                     // Not inside its own signal: the player goes when the queue is served.
                     found->second.player.release()->deleteLater();
                     found->second.output.release()->deleteLater();
                   });
  device.player->setSource(QUrl::fromLocalFile(QString::fromStdString(path)));
  device.player->play();
}

void SoundPlayer::SetVolume(float volume) {
  volume_ = volume;
  for (auto& [path, device] : devices_)
    if (device.output) device.output->setVolume(volume);
}

QMediaPlayer* SoundPlayer::Device(const std::string& path) const {
  const auto it = devices_.find(path);
  return it == devices_.end() ? nullptr : it->second.player.get();
}

}  // namespace front
