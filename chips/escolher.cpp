// The player builds a stake by hand, one chip at a time, from the four chip places under his
// face: by mouse on the coin button, the chip place or its label, or by keyboard with Tab, the
// arrows, Space and Enter.
#include "chips/chips.h"
#include "core/game_state.h"
#include "platform/runtime.h"
#include "sound/musicas.h"
#include "table/frm_principal.h"

bool FaseDeApostas() {
  return (Fase >= 10 && Fase < 20) || (Fase >= 30 && Fase < 40);
}

void EscolherFicha(int Index) {
  auto& f = Frm_Principal();
  if (!FaseDeApostas()) return;
  const Denominacao* d = nullptr;
  for (const Denominacao& each : kDenominacoes)
    if (each.botao == Index) d = &each;
  const int valor_escolhido = d ? d->valor : 0;

  // In the opening, no more than the limit on the table, except to follow her chips.
  if (Fase == 10) {
    const std::int64_t s = std::int64_t{valor_escolhido} + MesaPote;
    if (s > LimiteFichas && s > MesaApostas) return;
  }

  // The picture shows before anyone knows the chip exists.
  int at = 0;
  while (f.PicturePlayerCoin(at).Visible) ++at;
  vb::Control& chip = f.PicturePlayerCoin(at);
  chip.Visible = true;
  if (!d) return;
  chip.Picture = f.ImageListExtras.PictureOf(d->ficha);
  chip.Tag = vb::LongText(d->valor);
  if (EfeitosOn) Musicas("EFEITOS", d->efeito);

  vb::ToolbarButton& button = f.ToolbarPlayerCoins.Button(Index);
  const int count = ContagemPilha(button);
  if (count > 0) {
    button.SetImage(ChavePilha(*d, count - 1));
    if (button.Image() == ChavePilha(*d, 0)) {
      button.SetEnabled(false);
      f.PicFichasPlayer(Index / 2 - 1).Enabled = false;
    }
    FichasPlayer -= d->valor;
    MesaPote += d->valor;
    switch (static_cast<int>(Fase)) {
      case 10:
        AberturaPlayer += d->valor;
        break;
      case 11:
        AumentoAberturaPlayer += d->valor;
        break;
      case 12:
        TotalAberturaPlayer += d->valor;
        break;
      case 30:
        ApostaPlayer += d->valor;
        break;
      case 31:
        TotalApostaPlayer += d->valor;
        break;
      default:
        break;  // from 13 on the chips count on the table only
    }
    AtualizarLabels();
  } else {
    // No chip behind the place: the picture stays on the table with its tag, a phantom chip
    // that the next sweep counts as real.
    button.SetImage(0);
    button.SetEnabled(false);
    f.PicFichasPlayer(Index / 2 - 1).Enabled = false;
  }
}

void ToolbarPlayerCoins_ButtonClick(vb::ToolbarButton& Button) {
  if (FaseDeApostas()) EscolherFicha(Button.Index());
}

namespace {
// The chip place's press: the coin button looks pressed for one tick of TimerKeyPot.
void PressionarEEscolher(int Index) {
  auto& f = Frm_Principal();
  if (Index >= 0 && Index <= 3) {
    const char* key = kDenominacoes[Index].chave;
    f.ToolbarPlayerCoins.Button(key).SetValue(1);
    EscolherFicha(f.ToolbarPokerCoins.Button(key).Index());
  }
  f.TimerKeyPot.Enabled = true;
}
}  // namespace

void PicFichasPlayer_Click(int Index) {
  if (FaseDeApostas()) PressionarEEscolher(Index);
}

void LabelPlayerFichasPOT_Click(int Index) {
  if (FaseDeApostas()) PressionarEEscolher(Index);
}

void PicFichasPlayer_KeyPress(int Index, int& KeyAscii) {
  if (FaseDeApostas() && (KeyAscii == 32 || KeyAscii == 13)) PressionarEEscolher(Index);
}

void PicFichasPlayer_KeyDown(int /*Index*/, int KeyCode, int /*Shift*/) {
  if (!FaseDeApostas()) return;
  if (KeyCode == 37 || KeyCode == 38) Frm_Principal().SendKeys("+{TAB}");
  if (KeyCode == 39 || KeyCode == 40) Frm_Principal().SendKeys("{TAB}");
}

void PicFichasPlayer_GotFocus(int Index) {
  auto& f = Frm_Principal();
  if (FaseDeApostas() && f.ToolbarPlayerCoins.Button((Index + 1) * 2).Enabled()) {
    for (int k = 0; k < 4; ++k) f.FraFichasFocus(Index * 4 + k).Visible = true;
  }
}

void PicFichasPlayer_LostFocus(int Index) {
  auto& f = Frm_Principal();
  for (int k = 0; k < 4; ++k) f.FraFichasFocus(Index * 4 + k).Visible = false;
}

void TimerKeyPot_Timer() {
  auto& f = Frm_Principal();
  if (FaseDeApostas()) {
    for (const Denominacao& d : kDenominacoes) f.ToolbarPlayerCoins.Button(d.chave).SetValue(0);
  } else if (Fase == 20) {
    for (int i = 2; i <= 10; i += 2) f.ToolbarPlayer.Button(i).SetValue(0);
  }
  f.TimerKeyPot.Enabled = false;
}
