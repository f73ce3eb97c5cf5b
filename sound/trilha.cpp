#include "sound/trilha.h"

#include "core/game_state.h"
#include "platform/runtime.h"
#include "sound/musicas.h"
#include "table/frm_principal.h"

void TocarEfeito(const char* nome) {
  if (!EfeitosOn) return;
  if (MusicaOn) Musicas("TRILHAS", vb::LongText(Trilha), "PAUSE");
  Musicas("MELODIAS", nome, "PLAY");
}

void FecharMelodia(const char* nome) {
  if (!EfeitosOn) return;
  Musicas("MELODIAS", nome, "CLOSE");
  RetomarMusica();
}

void TocarMelodia(const char* nome) {
  if (!EfeitosOn) return;
  Musicas("MELODIAS", nome, "PLAY");
  RetomarMusica();
}

void RetomarMusica() {
  if (EfeitosOn && MusicaOn) Musicas("TRILHAS", vb::LongText(Trilha), "PLAY");
}

void PararMusica() {
  if (!EfeitosOn) return;
  Frm_Principal().Timer1.Enabled = false;
  MusicTime = 0;
  if (MusicaOn) Musicas("TRILHAS", "All", "CLOSE");
}

void TocarFim(const char* nome) {
  if (!EfeitosOn) return;
  PararMusica();
  Musicas("MELODIAS", nome, "PLAY");
}
