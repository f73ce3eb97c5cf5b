// Module MUSICAS: the one door to sound. A folder word, a sound key and a command become one text
// command for the media command interface ("Play MUSICAS\EFEITOS\FICHAS.WAV"), whose answer is
// ignored. The sound folders lie in the parent of the program's folder.
#pragma once

#include <string>

// Tipo "EFEITOS" (short effects), "MELODIAS" (jingles over the speech) or "TRILHAS" (background
// tracks "1" to "3", or "All"); Comando "Play", "Pause", "Stop" or "Close", in any case.
void Musicas(const std::string& Tipo, const std::string& Chave, const std::string& Comando = "");
