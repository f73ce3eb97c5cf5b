#include "table/cards.h"

#include "core/game_state.h"
#include "core/hand_cycle.h"
#include "opponent/troca.h"
#include "sound/musicas.h"
#include "table/frm_principal.h"

void MostrarCartas(bool Lado, bool Mostrar, bool Som, bool Limpar) {
  auto& f = Frm_Principal();
  vb::Control& bar = Lado ? f.ToolbarPoker : f.ToolbarPlayer;
  for (int i = 1; i <= 5; ++i) {
    vb::ToolbarButton& card = bar.Button(2 * i);  // the odd buttons are separators
    if (Limpar) card.SetImage(0);
    if (!Lado) {
      card.SetImage(CartasPlayer[i]);
      if (Som && EfeitosOn) Musicas("EFEITOS", "CARTAINI");
    } else if (Mostrar) {
      card.SetImage(VerCartas ? CartasPoker[i] : std::string("FRENTE"));
      if (Som && EfeitosOn) Musicas("EFEITOS", "CARTASHOW");
    } else {
      card.SetImage("DORSO");
      if (Som && EfeitosOn) Musicas("EFEITOS", "CARTAINI");
    }
    if (Som) Esperar(kPausaCartaDada);
  }
}

// The deck laid out card by card when the cheat shows it: one place for each card of the deck in
// use, a short beat at each so that the deal reads as a deal. Clearing takes every place of the
// toolbar, so that a deck made smaller since the last hand leaves no stale cards behind.
void MostrarBaralho(bool Mostrar, bool Limpar) {
  auto& f = Frm_Principal();
  const int lugares = static_cast<int>(f.ToolbarBaraja.Buttons().size());
  if (Limpar) {
    for (int i = 1; i <= lugares; ++i) f.ToolbarBaraja.Button(i).SetImage(0);
    return;
  }
  for (int i = 1; i <= NroCartas && i <= lugares; ++i) {
    vb::ToolbarButton& place = f.ToolbarBaraja.Button(i);
    if (Mostrar) {
      place.SetImage("FRENTE");
      if (EfeitosOn) Musicas("EFEITOS", "CARTAINI");
    } else {
      place.SetImage(Baralho[i]);
      if (EfeitosOn) Musicas("EFEITOS", "CARTAMESA");
    }
    Esperar(kPausaLugarDoBaralho);
  }
}

namespace {
void EscolherCarta(int Index) {
  auto& f = Frm_Principal();
  f.ToolbarPlayer.Button(2 * (Index + 1)).SetValue(1);
  MarcarCarta(2 * (Index + 1));
  // The press shows for one tick, as a chip place's does.
  f.TimerKeyPot.Enabled = true;
}
}  // namespace

void PicCartasPlayer_Click(int Index) {
  EscolherCarta(Index);
}

void PicCartasPlayer_KeyPress(int Index, int& KeyAscii) {
  if (KeyAscii == 13 || KeyAscii == 32) EscolherCarta(Index);
}

void PicCartasPlayer_KeyDown(int /*Index*/, int KeyCode, int /*Shift*/) {
  if (KeyCode == 37 || KeyCode == 38) Frm_Principal().SendKeys("+{TAB}");
  if (KeyCode == 39 || KeyCode == 40) Frm_Principal().SendKeys("{TAB}");
}

void PicCartasPlayer_GotFocus(int Index) {
  auto& f = Frm_Principal();
  if (Fase == 20 && f.ToolbarPlayer.Button(2 * (Index + 1)).Enabled()) {
    for (int k = 0; k < 4; ++k) f.FraCartasFocus(4 * Index + k).Visible = true;
  }
}

void PicCartasPlayer_LostFocus(int Index) {
  auto& f = Frm_Principal();
  for (int k = 0; k < 4; ++k) f.FraCartasFocus(4 * Index + k).Visible = false;
  // Back to the system's button face.
  f.PicCartasPlayer(Index).BackColor = 0xF0F0F0;
  f.PicCartasPlayer(Index).Notify(vb::Prop::Picture);
}

void ToolbarPlayer_ButtonClick(int Index) {
  if (Fase == 20 && !TrocaFechada) MarcarCarta(Index);
}
