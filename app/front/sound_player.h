// The game's sound on the desktop. The game speaks to its media device in short text commands
// ("Play MUSICAS\EFEITOS\FICHAS.WAV", "Pause MUSICAS\TRILHAS\INGAME1.MP3", "Stop ...",
// "Close ...", "Close All") and never listens to the answer. This player carries them out with Qt
// Multimedia, one open device per file as the old media interface kept them: an effect that was
// never closed stays open, and its next "Play" plays it again from the start.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>

class QAudioOutput;
class QMediaPlayer;

namespace front {

enum class SoundAction { kNone, kPlay, kPause, kStop, kClose, kCloseAll };

struct SoundCommand {
  SoundAction action = SoundAction::kNone;
  // The file as the game wrote it, relative to its working folder; empty for kNone and kCloseAll.
  std::string file;
};

// Reads one command text. The verbs are read without regard to case, as the old interface did.
// An empty text, an unknown verb, or a command whose path names no file reads as kNone.
SoundCommand ParseSoundCommand(const std::string& text);

class SoundPlayer {
 public:
  // The game's player hears every command the game sends for as long as it lives; a detached one
  // only what is given to Execute().
  enum Role { kDetached, kGameSink };

  explicit SoundPlayer(Role role = kDetached);
  ~SoundPlayer();
  SoundPlayer(const SoundPlayer&) = delete;
  SoundPlayer& operator=(const SoundPlayer&) = delete;

  // Carries out one command at once and returns; the sound plays meanwhile. The file is found
  // against the game's working folder as it is now, since the game changes it back right after
  // the call. A missing file, a missing audio device or a broken file is silent.
  void Execute(const std::string& command);

  // Whether the media framework can play at all; without it the game goes on in silence. The
  // first call wakes the framework (GStreamer builds its registry on its first use ever).
  static bool CanPlay();

  // The volume of every device, open or opened later (1.0 is the files' own loudness).
  void SetVolume(float volume);

  // The open devices, by the file's full path. A device's player exists while it sounds or is
  // paused: a sound that played to its end has none until it plays again (nullptr).
  std::size_t OpenDevices() const { return devices_.size(); }
  QMediaPlayer* Device(const std::string& path) const;

 private:
  struct OpenDevice {
    std::unique_ptr<QAudioOutput> output;
    std::unique_ptr<QMediaPlayer> player;  // declared last: it goes before its output
  };

  void Play(const std::string& path);
  void Start(const std::string& path, OpenDevice& device);

  Role role_;
  float volume_ = 1.0f;
  std::map<std::string, OpenDevice> devices_;
};

}  // namespace front
