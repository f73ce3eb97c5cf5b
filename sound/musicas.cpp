#include "sound/musicas.h"

#include <cctype>

#include "core/game_state.h"
#include "platform/app_path.h"
#include "platform/mci.h"
#include "platform/rnd.h"
#include "platform/runtime.h"

namespace {

// "PLAY" -> "Play": the first letter as it came, the rest in lower case.
std::string Normalizar(const std::string& Comando) {
  std::string texto = Comando;
  for (std::size_t i = 1; i < texto.size(); ++i)
    texto[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(texto[i])));
  return texto;
}

// The shuffle has three melodies; the next one is drawn when the present one closes: the first
// comes 6 times in 9, the third 2 in 9, the second 1 in 9.
void SortearBarajando() {
  vb::Randomize(Semente);
  const int x = vb::DrawInt(9);
  if (x == 5 || x == 8) {
    TocandoEfeito = 3;
  } else if (x == 1) {
    TocandoEfeito = 2;
  } else {
    TocandoEfeito = 1;
  }
}

std::string ArquivoBarajando() {
  switch (TocandoEfeito) {
    case 2:
      return "BARAJANDO2.WAV";
    case 3:
      return "BARAJANDO3.WAV";
    case 1:
      return "BARAJANDO1.WAV";
    default:
      // 0 after the effects were switched on: start again from the first.
      TocandoEfeito = 1;
      return "BARAJANDO1.WAV";
  }
}

}  // namespace

void Musicas(const std::string& Tipo, const std::string& Chave, const std::string& Comando) {
  vb::ChDir(vb::AppPath() + "\\..");

  std::string texto;
  if (Tipo == "EFEITOS") {
    if (Chave == "FICHAS") {
      // A rattle of chips: the same file four times in a row.
      for (int i = 0; i < 4; ++i) vb::mciExecute("Play MUSICAS\\EFEITOS\\FICHAS.WAV");
    } else {
      vb::mciExecute("Play MUSICAS\\EFEITOS\\" + Chave + ".WAV");
    }
  } else if (Tipo == "MELODIAS") {
    const std::string cmd = Normalizar(Comando);
    // Any other command leaves at once, and leaves the working folder where it is.
    if (cmd != "Stop" && cmd != "Play" && cmd != "Close") return;
    if (Chave == "BARAJANDO") {
      texto = cmd + " MUSICAS\\MELODIAS\\" + ArquivoBarajando();
      if (cmd == "Close") SortearBarajando();
    } else if (Chave == "EMBORA" || Chave == "PERDI") {
      texto = cmd + " MUSICAS\\MELODIAS\\" + Chave + ".MP3";
    } else if (Chave == "DALICENCA") {
      // The credits melody is the credits track.
      texto = cmd + " MUSICAS\\TRILHAS\\" + "CREDITOS.WMA";
    } else {
      texto = cmd + " MUSICAS\\MELODIAS\\" + Chave + ".WAV";
    }
    vb::mciExecute(texto);
  } else if (Tipo == "TRILHAS") {
    const std::string cmd = Normalizar(Comando);
    if (cmd != "Pause" && cmd != "Play" && cmd != "Close" && cmd != "Stop") return;
    if (Chave == "All") {
      // Whatever the command: every open device closes.
      texto = "Close All";
    } else {
      // The key is a track number as text; a number other than 1 to 3 names no file.
      const double numero = vb::Val(Chave);
      std::string arquivo;
      if (numero == 1) {
        arquivo = "INGAME1.MP3";
      } else if (numero == 2) {
        arquivo = "INGAME2.WMA";
      } else if (numero == 3) {
        arquivo = "INGAME3.MP3";
      }
      texto = cmd + " MUSICAS\\TRILHAS\\" + arquivo;
    }
    vb::mciExecute(texto);
  } else {
    // Another folder word names no sound: the command goes out empty.
    vb::mciExecute(texto);
  }

  vb::ChDir(vb::AppPath());
}
