// The stacks. No variable holds a stack: the count of each denomination is the two right
// characters of the image key of its coin button, and whatever the stack says when it is read
// back becomes the side's total. The caps below move chips sideways differently for the two
// sides; for the opponent some chips vanish. Both are the game as it is played.
#include <algorithm>
#include <cstdlib>

#include "chips/chips.h"
#include "core/game_state.h"
#include "platform/runtime.h"
#include "sound/musicas.h"
#include "table/frm_principal.h"

namespace {

vb::Control& CoinBar(bool Poker) {
  auto& f = Frm_Principal();
  return Poker ? f.ToolbarPokerCoins : f.ToolbarPlayerCoins;
}

void WritePile(bool Poker, const Denominacao& d, int count) {
  CoinBar(Poker).Button(d.botao).SetImage(ChavePilha(d, count));
}

std::int32_t& Total(bool Poker) {
  return Poker ? FichasPoker : FichasPlayer;
}

// The fifties are counted in a byte: out of 0..255 is an overflow.
int Byte(int v) {
  if (v < 0 || v > 255) vb::Raise(vb::err::kOverflow);
  return v;
}

// A side's stack as counts, read from and written to its coin bar.
struct Pilha {
  int ones = 0, fives = 0, tens = 0, fifties = 0;
  int Valor() const { return 50 * fifties + 10 * tens + 5 * fives + ones; }
};

Pilha LerPilha(bool Poker) {
  vb::Control& bar = CoinBar(Poker);
  return {ContagemPilha(bar.Button(kUm.botao)), ContagemPilha(bar.Button(kCinco.botao)),
          ContagemPilha(bar.Button(kDez.botao)), ContagemPilha(bar.Button(kCinquenta.botao))};
}

// No ones: something is broken into ones.
void TrocarParaUns(Pilha& p) {
  if (p.ones != 0) return;
  if (p.fives > 4) {
    p.fives -= 2, p.ones += 10;
  } else if (p.tens > 4) {
    p.tens -= 2, p.fives += 2, p.ones += 10;
  } else if (p.fifties > 0) {
    p.fifties = Byte(p.fifties - 1), p.tens += 2, p.fives += 3, p.ones += 15;
  } else if (p.tens > 0) {
    p.tens -= 1, p.fives += 1, p.ones += 5;
  } else if (p.fives > 0) {
    p.fives -= 1, p.ones += 5;
  }
}

// Too many ones. The second loop mints twenty chips a turn until the tens reach five.
void ReduzirUns(Pilha& p) {
  while (p.ones > 30) p.ones -= 5, p.fives += 1;
  while (p.ones > 20) {
    if (p.fives < 20) {
      p.fives += 2, p.ones -= 10;
    } else if (p.tens < 5) {
      p.tens += 1, p.ones += 10;
    } else {
      break;
    }
  }
}

// No fives, then fewer than ten: higher chips are broken into fives.
void TrocarParaCincos(Pilha& p) {
  if (p.fives == 0) {
    if (p.tens > 7) {
      p.tens -= 5, p.fives += 10;
    } else if (p.fifties > 2) {
      p.fifties = Byte(p.fifties - 2), p.tens += 5, p.fives += 10;
    } else if (p.fifties > 0) {
      p.fifties = Byte(p.fifties - 1), p.fives += 10;
    } else {
      while (p.tens > 0) p.tens -= 1, p.fives += 2;
    }
  }
  if (p.fives < 10) {
    if (p.fifties > 0) {
      p.fifties = Byte(p.fifties - 1), p.fives += 10;
    } else if (p.tens > 7) {
      p.tens -= 5, p.fives += 10;
    } else if (p.tens > 5) {
      p.tens -= 3, p.fives += 6;
    } else if (p.tens > 3) {
      p.tens -= 2, p.fives += 4;
    } else if (p.tens > 0) {
      p.tens -= 1, p.fives += 2;
    }
  }
}

void ReduzirCincos(Pilha& p) {
  while (p.fives > 30) p.fives -= 2, p.tens += 1;
  while (p.fives > 20) {
    if (p.tens < 10) {
      p.tens += 5, p.fives -= 10;
    } else if (p.fifties < 5) {
      p.fifties = Byte(p.fifties + 1), p.fives -= 10;
    } else {
      break;
    }
  }
}

// No tens, then fewer than ten: fifties are broken into tens, each test once.
void TrocarParaDezenas(Pilha& p) {
  auto break_fifties_into_tens = [&] {
    if (p.fifties > 2) {
      p.fifties = Byte(p.fifties - 2), p.tens += 10;
    } else if (p.fifties > 0) {
      p.fifties = Byte(p.fifties - 1), p.tens += 5;
    }
  };
  if (p.tens == 0) break_fifties_into_tens();
  if (p.tens < 10) break_fifties_into_tens();
}

void ReduzirDezenas(Pilha& p) {
  while (p.tens > 30) p.tens -= 5, p.fifties = Byte(p.fifties + 1);
  while (p.tens > 20 && p.fifties < 5) p.fifties = Byte(p.fifties + 2), p.tens -= 10;
}

// The table chips of one heap, up to its first hidden picture, come off the table into a count.
void RecolherMesa(vb::ControlArray<>& heap, int limit, Pilha& p) {
  for (int i = 0; i < limit; ++i) {
    vb::Control& chip = heap(i);
    if (!chip.Visible) break;
    switch (static_cast<int>(vb::Val(chip.Tag.get()))) {
      case 1:
        ++p.ones;
        break;
      case 5:
        ++p.fives;
        break;
      case 10:
        ++p.tens;
        break;
      case 50:
        p.fifties = Byte(p.fifties + 1);
        break;
      default:
        break;
    }
    chip.Visible = false;
  }
}

// No pile above thirty in the ones, fives and tens.
void NivelarBaixas(Pilha& p) {
  while (p.ones > 30) p.ones -= 5, p.fives += 1;
  while (p.fives > 30) p.fives -= 2, p.tens += 1;
  while (p.tens > 30) p.tens -= 5, p.fifties = Byte(p.fifties + 1);
}

// Fifties above thirty are paid out in lower chips by the first row that holds; each row pays
// exactly 50.
void PagarCinquentasDemais(Pilha& p) {
  struct Linha {
    int max_fives, max_tens, max_ones;  // -1: not tested
    int plus_ones, plus_fives, plus_tens;
  };
  static constexpr Linha kLinhas[] = {
      {-1, 24, -1, 0, 0, 5},   // tens below 25
      {19, -1, -1, 0, 10, 0},  // fives below 20
      {22, 29, -1, 0, 8, 1},  {24, 28, -1, 0, 6, 2},  {25, 28, 25, 5, 5, 2}, {26, 27, -1, 0, 4, 3},
      {27, 27, 25, 5, 3, 3},  {28, 27, 20, 10, 2, 3}, {28, 26, -1, 0, 2, 4}, {29, 26, 25, 5, 1, 4},
  };
  while (p.fifties >= 31) {
    const Linha* row = nullptr;
    for (const Linha& l : kLinhas) {
      if ((l.max_fives < 0 || p.fives <= l.max_fives) && (l.max_tens < 0 || p.tens <= l.max_tens) &&
          (l.max_ones < 0 || p.ones <= l.max_ones)) {
        row = &l;
        break;
      }
    }
    if (!row) {
      // A side holding 1950 chips or more: no row holds and the old table froze here for good.
      // Instead the whole value is split anew with at most thirty of each, fifties first. Every
      // value up to 1980 fits; chips beyond that, which only the minting of TrocarFichas can
      // make, are dropped from the ones.
      int value = p.Valor();
      p.fifties = std::min(30, value / 50), value -= 50 * p.fifties;
      p.tens = std::min(30, value / 10), value -= 10 * p.tens;
      p.fives = std::min(30, value / 5), value -= 5 * p.fives;
      p.ones = std::min(30, value);
      return;
    }
    p.fifties = Byte(p.fifties - 1);
    p.ones += row->plus_ones, p.fives += row->plus_fives, p.tens += row->plus_tens;
  }
}

// Each test once.
void Suavizar(Pilha& p) {
  if (p.ones > 20 && p.fives < 15) p.ones -= 10, p.fives += 2;
  if (p.fives > 20 && p.tens < 10) p.fives -= 8, p.tens += 4;
  if (p.fifties < 5 && p.tens > 25) p.tens -= 10, p.fifties = Byte(p.fifties + 2);
  if (p.ones < 10 && p.fives > 10) p.ones += 10, p.fives -= 2;
  if (p.fives < 10 && p.tens > 10) p.fives += 8, p.tens -= 4;
  if (p.fifties > 1 && p.tens < 10) p.fifties = Byte(p.fifties - 2), p.tens += 10;
}

}  // namespace

Contagem Repartir(int quantia) {
  Contagem c{};
  c[3] = static_cast<int>(vb::Int(quantia / 50.0));
  int rest = quantia - c[3] * 50;
  c[2] = static_cast<int>(vb::Int(rest / 10.0));
  rest -= c[2] * 10;
  c[1] = static_cast<int>(vb::Int(rest / 5.0));
  c[0] = rest - c[1] * 5;
  return c;
}

int ContagemPilha(const vb::ToolbarButton& button) {
  const std::string image = button.Image();
  return static_cast<int>(vb::Val(image.size() > 2 ? image.substr(image.size() - 2) : image));
}

std::string ChavePilha(const Denominacao& d, int count) {
  const std::string digits = "00" + vb::LongText(count);
  return d.prefixo + digits.substr(digits.size() - 2);
}

void PilhaDeFichas(bool Poker, int Quantidade) {
  Quantidade = vb::CInt(Quantidade);  // a 16-bit argument
  Total(Poker) += Quantidade;
  Contagem c = Repartir(std::abs(Quantidade));
  if (Quantidade < 0) {
    for (int& n : c) n = -n;
  }
  int ones = c[0], fives = c[1], tens = c[2], fifties = c[3];
  vb::Control& bar = CoinBar(Poker);

  fifties += ContagemPilha(bar.Button(kCinquenta.botao));
  while (fifties > 30) {  // both sides: an extra fifty becomes five tens
    fifties -= 1;
    tens += 5;
  }
  WritePile(Poker, kCinquenta, fifties);

  tens += ContagemPilha(bar.Button(kDez.botao));
  while (tens > 30) {
    if (Poker) {
      tens -= 5;
      fifties += 1;  // the fifties are already written: fifty chips vanish
    } else {
      tens -= 1;
      fives += 2;
    }
  }
  WritePile(Poker, kDez, tens);

  fives += ContagemPilha(bar.Button(kCinco.botao));
  while (fives > 30) {
    if (Poker) {
      fives -= 6;
      tens += 3;  // the tens are already written: thirty chips vanish
    } else {
      fives -= 1;
      ones += 5;
    }
  }
  WritePile(Poker, kCinco, fives);

  ones += ContagemPilha(bar.Button(kUm.botao));
  if (Poker) {
    while (ones > 30) {
      ones -= 5;
      fives += 1;  // the fives are already written: five chips vanish
    }
  }
  // The player's ones have no cap: above 30 the key names no image.
  WritePile(Poker, kUm, ones);
}

void TrocarFichas(bool Poker, bool Mostrar) {
  Pilha p = LerPilha(Poker);
  p.fifties = Byte(p.fifties);
  TrocarParaUns(p);
  ReduzirUns(p);
  TrocarParaCincos(p);
  ReduzirCincos(p);
  TrocarParaDezenas(p);
  ReduzirDezenas(p);
  // The new total; without Mostrar the change itself is dropped.
  Total(Poker) = p.Valor();
  if (!Mostrar) return;

  // Redrawn on the side's own toolbar. A denomination with chips enables the PLAYER's button of
  // that denomination, whichever side was named.
  auto& f = Frm_Principal();
  vb::Control& bar = CoinBar(Poker);
  const int counts[4] = {p.ones, p.fives, p.tens, p.fifties};
  for (int i = 0; i < 4; ++i) {
    const Denominacao& d = kDenominacoes[i];
    WritePile(Poker, d, counts[i]);
    if (counts[i] == 0) {
      bar.Button(d.botao).SetEnabled(false);
    } else {
      f.ToolbarPlayerCoins.Button(d.botao).SetEnabled(true);
    }
  }
}

void MontarFichas(bool Poker, bool Tudo) {
  auto& f = Frm_Principal();
  Pilha p;
  if (Poker || Tudo) RecolherMesa(f.PicturePokerCoin, 120, p);
  if (!Poker || Tudo) RecolherMesa(f.PicturePlayerCoin, 120, p);
  if (Tudo) RecolherMesa(f.PictureCoin, 60, p);
  const Pilha pilha = LerPilha(Poker);
  p.ones += pilha.ones;
  p.fives += pilha.fives;
  p.tens += pilha.tens;
  p.fifties = Byte(p.fifties + pilha.fifties);
  NivelarBaixas(p);
  PagarCinquentasDemais(p);
  Suavizar(p);

  // Redrawn from the fifties down; for the player each denomination with chips takes the focus
  // in turn, so it rests on the lowest one he has.
  vb::Control& bar = CoinBar(Poker);
  const int counts[4] = {p.ones, p.fives, p.tens, p.fifties};
  for (int i = 3; i >= 0; --i) {
    const Denominacao& d = kDenominacoes[i];
    if (counts[i] > 0) bar.Button(d.botao).SetEnabled(true);
    WritePile(Poker, d, counts[i]);
    if (!Poker && counts[i] > 0) {
      f.PicFichasPlayer(d.pic).Enabled = true;
      f.PicFichasPlayer(d.pic).SetFocus();
    }
  }
  Total(Poker) = p.Valor();
  if (EfeitosOn) Musicas("EFEITOS", "FICHAS");
}
