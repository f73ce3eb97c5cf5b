// The desktop sound player's reader of the game's media commands: any text gives a command with
// a file, "Close All", or nothing.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "front/sound_player.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const front::SoundCommand c = front::ParseSoundCommand(text);
  using front::SoundAction;
  const bool needs_file = c.action != SoundAction::kNone && c.action != SoundAction::kCloseAll;
  if (needs_file == c.file.empty()) std::abort();
  if (needs_file && text.find(c.file) == std::string::npos) std::abort();
  return 0;
}
