#include "session/menu.h"

#include "core/game_state.h"
#include "platform/engine.h"
#include "table/frm_principal.h"

namespace {
bool Inverter(vb::Control& entry) {
  entry.Checked = !entry.Checked;
  return entry.Checked;
}
}  // namespace

void MnuLimite_Click() {
  auto& f = Frm_Principal();
  if (Inverter(f.MnuLimite)) {
    LimiteAbertura = true;
    LimiteFichas = 150;
  } else {
    LimiteAbertura = false;
    LimiteFichas = static_cast<int>(NroFichas);
  }
}

void MnuFullxCor_Click() {
  FullMataCor = Inverter(Frm_Principal().MnuFullxCor);
}

void MnuTrioXEscada_Click() {
  TrioMataEscada = Inverter(Frm_Principal().MnuTrioXEscada);
}

void MnuMusica_Click() {
  auto& f = Frm_Principal();
  if (Inverter(f.MnuMusica)) {
    MusicaOn = true;
    Trilha = 0;  // the next hand starts at the first track
    return;
  }
  MusicaOn = false;
  if (EfeitosOn) {
    f.Timer1.Enabled = false;
    MusicTime = 0;
    // The close of the tracks looks at MusicaOn once more, now False: it is never sent, and a
    // track that is playing goes on to its end.
  }
}

void MnuEfeitos_Click() {
  if (Inverter(Frm_Principal().MnuEfeitos)) {
    EfeitosOn = true;
    TocandoEfeito = 0;
  } else {
    EfeitosOn = false;
  }
}

void MnuSair_Click() {
  vb::Engine::Get().Unload(Frm_Principal());
}
