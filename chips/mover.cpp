// A stake goes to the table: off the side's total and stack, split into chips, each shown in its
// fixed place on the side's table area with its own click.
#include "chips/chips.h"
#include "core/game_state.h"
#include "platform/runtime.h"
#include "table/frm_principal.h"

namespace {

// The stake, capped at what the side has (a negative amount passes unclamped), moves from the
// side's total to its table figure.
int Reservar(bool Poker, int Quantidade) {
  if (Poker) {
    if (Quantidade > FichasPoker) Quantidade = FichasPoker;
    MesaApostas += Quantidade;
    FichasPoker -= Quantidade;
  } else {
    if (Quantidade > FichasPlayer) Quantidade = FichasPlayer;
    MesaPote += Quantidade;
    FichasPlayer -= Quantidade;
  }
  return Quantidade;
}

// An emptied pile leaves the bar: no image, its button off, and for the player its chip place.
void EsvaziarPilha(bool Poker, vb::ToolbarButton& button, const Denominacao& d) {
  button.SetImage(0);
  button.SetEnabled(false);
  if (!Poker) Frm_Principal().PicFichasPlayer(d.pic).Enabled = false;
}

// Fifties, tens and fives come off their piles; a short denomination is paid in the next lower
// one.
void TirarFichasAltas(bool Poker, vb::Control& bar, Contagem& want) {
  static constexpr int kFatorDaFalta[4] = {0, 5, 2, 5};  // lower chips per missing chip
  for (int i = 3; i >= 1; --i) {
    const Denominacao& d = kDenominacoes[i];
    vb::ToolbarButton& button = bar.Button(d.botao);
    const int stock = ContagemPilha(button);
    if (stock < want[i]) {
      const int shortage = want[i] - stock;
      want[i] = stock;
      EsvaziarPilha(Poker, button, d);
      want[i - 1] += shortage * kFatorDaFalta[i];
    } else {
      // A button emptied exactly keeps its empty place and stays enabled.
      button.SetImage(ChavePilha(d, stock - want[i]));
    }
  }
}

// A pile of ones run dry is refilled by changing the first higher chip there is.
void TrocarParaUns(vb::Control& bar) {
  vb::ToolbarButton& ones = bar.Button(kUm.botao);
  vb::ToolbarButton& fives = bar.Button(kCinco.botao);
  vb::ToolbarButton& tens = bar.Button(kDez.botao);
  vb::ToolbarButton& fifties = bar.Button(kCinquenta.botao);
  if (ContagemPilha(fives) != 0) {
    fives.SetImage(ChavePilha(kCinco, ContagemPilha(fives) - 1));
    ones.SetImage("F01_05");
  } else if (ContagemPilha(tens) != 0) {
    tens.SetImage(ChavePilha(kDez, ContagemPilha(tens) - 1));
    ones.SetImage("F01_10");
  } else {
    fifties.SetImage(ChavePilha(kCinquenta, ContagemPilha(fifties) - 1));
    tens.SetImage("F10_01");
    fives.SetImage("F05_02");
    ones.SetImage("F01_30");
  }
}

// The ones come off their pile. Short of ones, the stack gives up only the shortage while its
// stock stays and the table shows only the stock: the books do not balance, and it stays so.
void TirarUns(bool Poker, vb::Control& bar, Contagem& want) {
  vb::ToolbarButton& ones = bar.Button(kUm.botao);
  const int stock = ContagemPilha(ones);
  if (stock >= want[0]) {
    ones.SetImage(ChavePilha(kUm, stock - want[0]));
  } else {
    const int shortage = want[0] - stock;
    want[0] = stock;
    for (int k = 0; k < shortage; ++k) {
      if (ContagemPilha(ones) == 0) TrocarParaUns(bar);
      ones.SetImage(ChavePilha(kUm, ContagemPilha(ones) - 1));
    }
  }
  if (ones.Image() == "F01_00") EsvaziarPilha(Poker, ones, kUm);
}

// Where the new chips start: after the side's chips already shown, or from the first place with
// every chip of the side hidden.
int PrimeiroLugar(vb::ControlArray<>& heap, bool Acumular) {
  const int n = heap.Count();
  if (!Acumular) {
    for (int i = 0; i < n; ++i) heap(i).Visible = false;
    return 0;
  }
  for (int i = 0; i < n; ++i) {
    if (!heap(i).Visible) return i;
  }
  return n;
}

}  // namespace

void MoverFichas(bool Poker, int Quantidade, bool Acumular) {
  Quantidade = vb::CInt(Quantidade);  // a 16-bit argument
  auto& f = Frm_Principal();
  vb::Control& bar = Poker ? f.ToolbarPokerCoins : f.ToolbarPlayerCoins;
  vb::ControlArray<>& heap = Poker ? f.PicturePokerCoin : f.PicturePlayerCoin;
  Contagem want = Repartir(Reservar(Poker, Quantidade));
  TirarFichasAltas(Poker, bar, want);
  TirarUns(Poker, bar, want);
  PorNaMesa(heap, PrimeiroLugar(heap, Acumular), want);
}
