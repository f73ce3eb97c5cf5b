// The media command door: the game sends text commands ("Play MUSICAS\EFEITOS\FICHAS.WAV") and
// ignores the answer. The desktop front installs a player; tests read what was sent.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace vb {

void mciExecute(const std::string& command);

// Every command sent since the last clear, in order.
const std::vector<std::string>& MciSent();
void ClearMciSent();

// The desktop player (or the replay tool's printer) that receives each command as it is sent.
using MciSink = std::function<void(const std::string& command)>;
void InstallMciSink(MciSink sink);

}  // namespace vb
