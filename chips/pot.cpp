// The centre pot, the figures on the labels and the arrow of the hand.
#include "chips/chips.h"
#include "core/game_state.h"
#include "platform/runtime.h"
#include "sound/musicas.h"
#include "table/frm_principal.h"

void PorNaMesa(vb::ControlArray<>& heap, int desde, const Contagem& contagem) {
  auto& f = Frm_Principal();
  int at = desde;
  for (int i = 0; i < 4; ++i) {
    const Denominacao& d = kDenominacoes[i];
    for (int k = 0; k < contagem[i]; ++k) {
      vb::Control& chip = heap(at++);
      chip.Picture = f.ImageListExtras.PictureOf(d.ficha);
      chip.Visible = true;
      chip.Tag = vb::LongText(d.valor);
      if (EfeitosOn) Musicas("EFEITOS", d.efeito);
    }
  }
}

void FichasNaMesa() {
  // No stack stands behind the centre heap: it is split anew at every call, and every chip of it
  // clicks again.
  auto& f = Frm_Principal();
  for (int i = 0; i < f.PictureCoin.Count(); ++i) f.PictureCoin(i).Visible = false;
  PorNaMesa(f.PictureCoin, 0, Repartir(MesaPingo));
}

namespace {
std::string Fichas(std::int64_t n) {
  return vb::LongText(n) + " Fichas";
}
std::string Dinheiro(std::int64_t n) {
  // The product of the float chip value and a count, taken in double.
  return "$ " + vb::FormatMoney(static_cast<double>(ValorFicha) * static_cast<double>(n));
}
}  // namespace

void AtualizarLabels() {
  auto& f = Frm_Principal();
  const std::int64_t mesa = std::int64_t{MesaPote} + MesaApostas + MesaPingo;
  f.LabelPokerFichas.Caption = Fichas(FichasPoker);
  f.LabelPokerMoney.Caption = Dinheiro(FichasPoker);
  f.LabelPlayerFichas.Caption = Fichas(FichasPlayer);
  f.LabelPlayerMoney.Caption = Dinheiro(FichasPlayer);
  f.LabelMesaFichas.Caption = Fichas(mesa);
  f.LabelMesaMoney.Caption = Dinheiro(mesa);
  f.LabelPokerMesaTotalCoims.Caption = vb::LongText(MesaApostas) + " fs.";
  f.LabelPlayerMesaTotalCoims.Caption = vb::LongText(MesaPote) + " fs.";
  if (EfeitosOn) Musicas("MELODIAS", "LALUZ", "PLAY");
}

void MostrarSeta(bool PokerTemMao) {
  auto& f = Frm_Principal();
  f.PictureMão.Picture = f.ImageListExtras.PictureOf(PokerTemMao ? "SetaAcima" : "SetaAbaixo");
}
