// A stake goes to the table: off the side's total and stack, split into chips, each shown in its
// fixed place on the side's table area with its own click.
#include "chips/chips.h"
#include "core/game_state.h"
#include "platform/runtime.h"
#include "sound/musicas.h"
#include "table/frm_principal.h"

void MoverFichas(bool Poker, int Quantidade, bool Acumular) {
  Quantidade = vb::CInt(Quantidade);  // a 16-bit argument
  auto& f = Frm_Principal();
  vb::Control& bar = Poker ? f.ToolbarPokerCoins : f.ToolbarPlayerCoins;
  vb::ControlArray<>& heap = Poker ? f.PicturePokerCoin : f.PicturePlayerCoin;

  // 1. Cap at what the side has (a negative amount passes unclamped) and book it.
  if (Poker) {
    if (Quantidade > FichasPoker) Quantidade = FichasPoker;
    MesaApostas += Quantidade;
    FichasPoker -= Quantidade;
  } else {
    if (Quantidade > FichasPlayer) Quantidade = FichasPlayer;
    MesaPote += Quantidade;
    FichasPlayer -= Quantidade;
  }

  // 2. Split greedily, with the runtime's floor also for a negative amount.
  int want[4];  // ones, fives, tens, fifties
  want[3] = static_cast<int>(vb::Int(Quantidade / 50.0));
  int rest = Quantidade - want[3] * 50;
  want[2] = static_cast<int>(vb::Int(rest / 10.0));
  rest -= want[2] * 10;
  want[1] = static_cast<int>(vb::Int(rest / 5.0));
  want[0] = rest - want[1] * 5;

  // 3. Take from the stack, fifties first; a short denomination is paid in the next lower one.
  static constexpr int kShortfallFactor[4] = {0, 5, 2, 5};  // lower chips per missing chip
  for (int i = 3; i >= 1; --i) {
    const Denominacao& d = kDenominacoes[i];
    vb::ToolbarButton& button = bar.Button(d.botao);
    const int stock = ContagemPilha(button);
    if (stock < want[i]) {
      const int shortage = want[i] - stock;
      want[i] = stock;
      button.SetImage(0);
      button.SetEnabled(false);
      if (!Poker) f.PicFichasPlayer(d.pic).Enabled = false;
      want[i - 1] += shortage * kShortfallFactor[i];
    } else {
      // A button emptied exactly keeps its empty place and stays enabled.
      button.SetImage(ChavePilha(d, stock - want[i]));
    }
  }

  // 4. The ones. Short of ones, the stack gives up only the shortage while its stock stays and
  // the table shows only the stock: the books do not balance, and it stays so.
  vb::ToolbarButton& ones_button = bar.Button(kUm.botao);
  auto empty_ones = [&] {
    if (ones_button.Image() == "F01_00") {
      ones_button.SetImage(0);
      ones_button.SetEnabled(false);
      if (!Poker) f.PicFichasPlayer(kUm.pic).Enabled = false;
    }
  };
  const int stock = ContagemPilha(ones_button);
  if (stock >= want[0]) {
    ones_button.SetImage(ChavePilha(kUm, stock - want[0]));
    empty_ones();
  } else {
    const int shortage = want[0] - stock;
    want[0] = stock;
    for (int k = 0; k < shortage; ++k) {
      if (ContagemPilha(ones_button) == 0) {
        // Change upward, by the first denomination that has chips.
        vb::ToolbarButton& fives = bar.Button(kCinco.botao);
        vb::ToolbarButton& tens = bar.Button(kDez.botao);
        vb::ToolbarButton& fifties = bar.Button(kCinquenta.botao);
        if (ContagemPilha(fives) != 0) {
          fives.SetImage(ChavePilha(kCinco, ContagemPilha(fives) - 1));
          ones_button.SetImage("F01_05");
        } else if (ContagemPilha(tens) != 0) {
          tens.SetImage(ChavePilha(kDez, ContagemPilha(tens) - 1));
          ones_button.SetImage("F01_10");
        } else {
          fifties.SetImage(ChavePilha(kCinquenta, ContagemPilha(fifties) - 1));
          tens.SetImage("F10_01");
          fives.SetImage("F05_02");
          ones_button.SetImage("F01_30");
        }
      }
      ones_button.SetImage(ChavePilha(kUm, ContagemPilha(ones_button) - 1));
    }
    empty_ones();
  }

  // 5. Where the new chips start.
  const int n = heap.Count();
  int start = Acumular ? n : 0;
  for (int i = 0; i < n; ++i) {
    if (Acumular) {
      if (!heap(i).Visible) {
        start = i;
        break;
      }
    } else {
      heap(i).Visible = false;
    }
  }

  // 6. Place them, lowest first, one click a chip.
  int at = start;
  for (int i = 0; i < 4; ++i) {
    const Denominacao& d = kDenominacoes[i];
    for (int k = 0; k < want[i]; ++k) {
      vb::Control& chip = heap(at++);
      chip.Picture = f.ImageListExtras.PictureOf(d.ficha);
      chip.Visible = true;
      chip.Tag = vb::LongText(d.valor);
      if (EfeitosOn) Musicas("EFEITOS", d.efeito);
    }
  }
}
