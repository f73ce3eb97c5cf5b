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

}  // namespace

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
  const bool negative = Quantidade < 0;
  const int amount = std::abs(Quantidade);
  int fifties = static_cast<int>(vb::Int(amount / 50.0));
  int rest = amount - fifties * 50;
  int tens = static_cast<int>(vb::Int(rest / 10.0));
  rest -= tens * 10;
  int fives = static_cast<int>(vb::Int(rest / 5.0));
  int ones = rest - fives * 5;
  if (negative) {
    fifties = -fifties;
    tens = -tens;
    fives = -fives;
    ones = -ones;
  }
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
  vb::Control& bar = CoinBar(Poker);
  int ones = ContagemPilha(bar.Button(kUm.botao));
  int fives = ContagemPilha(bar.Button(kCinco.botao));
  int tens = ContagemPilha(bar.Button(kDez.botao));
  int fifties = Byte(ContagemPilha(bar.Button(kCinquenta.botao)));

  // 1. No ones: break something into ones.
  if (ones == 0) {
    if (fives > 4) {
      fives -= 2, ones += 10;
    } else if (tens > 4) {
      tens -= 2, fives += 2, ones += 10;
    } else if (fifties > 0) {
      fifties = Byte(fifties - 1), tens += 2, fives += 3, ones += 15;
    } else if (tens > 0) {
      tens -= 1, fives += 1, ones += 5;
    } else if (fives > 0) {
      fives -= 1, ones += 5;
    }
  }
  // 2, 3. Too many ones. The second branch mints twenty chips a turn until the tens reach five.
  while (ones > 30) ones -= 5, fives += 1;
  while (ones > 20) {
    if (fives < 20) {
      fives += 2, ones -= 10;
    } else if (tens < 5) {
      tens += 1, ones += 10;
    } else {
      break;
    }
  }
  // 4, 5. Fives.
  if (fives == 0) {
    if (tens > 7) {
      tens -= 5, fives += 10;
    } else if (fifties > 2) {
      fifties = Byte(fifties - 2), tens += 5, fives += 10;
    } else if (fifties > 0) {
      fifties = Byte(fifties - 1), fives += 10;
    } else {
      while (tens > 0) tens -= 1, fives += 2;
    }
  }
  if (fives < 10) {
    if (fifties > 0) {
      fifties = Byte(fifties - 1), fives += 10;
    } else if (tens > 7) {
      tens -= 5, fives += 10;
    } else if (tens > 5) {
      tens -= 3, fives += 6;
    } else if (tens > 3) {
      tens -= 2, fives += 4;
    } else if (tens > 0) {
      tens -= 1, fives += 2;
    }
  }
  // 6, 7. Too many fives.
  while (fives > 30) fives -= 2, tens += 1;
  while (fives > 20) {
    if (tens < 10) {
      tens += 5, fives -= 10;
    } else if (fifties < 5) {
      fifties = Byte(fifties + 1), fives -= 10;
    } else {
      break;
    }
  }
  // 8, 9. Tens.
  auto break_fifties_into_tens = [&] {
    if (fifties > 2) {
      fifties = Byte(fifties - 2), tens += 10;
    } else if (fifties > 0) {
      fifties = Byte(fifties - 1), tens += 5;
    }
  };
  if (tens == 0) break_fifties_into_tens();
  if (tens < 10) break_fifties_into_tens();
  // 10, 11. Too many tens.
  while (tens > 30) tens -= 5, fifties = Byte(fifties + 1);
  while (tens > 20 && fifties < 5) fifties = Byte(fifties + 2), tens -= 10;

  // 12, 13. The new total; without Mostrar the change itself is dropped.
  Total(Poker) = 50 * fifties + 10 * tens + 5 * fives + ones;
  if (!Mostrar) return;

  // 14. Redraw on the side's own toolbar. A denomination with chips enables the PLAYER's button
  // of that denomination, whichever side was named.
  auto& f = Frm_Principal();
  const int counts[4] = {ones, fives, tens, fifties};
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
  int ones = 0, fives = 0, tens = 0, fifties = 0;

  // 1. Sweep the table chips, each heap up to its first hidden picture.
  auto sweep = [&](vb::ControlArray<>& heap, int limit) {
    for (int i = 0; i < limit; ++i) {
      vb::Control& chip = heap(i);
      if (!chip.Visible) break;
      switch (static_cast<int>(vb::Val(chip.Tag.get()))) {
        case 1:
          ++ones;
          break;
        case 5:
          ++fives;
          break;
        case 10:
          ++tens;
          break;
        case 50:
          fifties = Byte(fifties + 1);
          break;
        default:
          break;
      }
      chip.Visible = false;
    }
  };
  if (Poker || Tudo) sweep(f.PicturePokerCoin, 120);
  if (!Poker || Tudo) sweep(f.PicturePlayerCoin, 120);
  if (Tudo) sweep(f.PictureCoin, 60);

  // 2. The stack's own chips.
  vb::Control& bar = CoinBar(Poker);
  ones += ContagemPilha(bar.Button(kUm.botao));
  fives += ContagemPilha(bar.Button(kCinco.botao));
  tens += ContagemPilha(bar.Button(kDez.botao));
  fifties = Byte(fifties + ContagemPilha(bar.Button(kCinquenta.botao)));

  // 3. Even out the low end.
  while (ones > 30) ones -= 5, fives += 1;
  while (fives > 30) fives -= 2, tens += 1;
  while (tens > 30) tens -= 5, fifties = Byte(fifties + 1);

  // 4. Pay out fifties above thirty by the first row that holds; each row pays exactly 50.
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
  while (fifties >= 31) {
    const Linha* row = nullptr;
    for (const Linha& l : kLinhas) {
      if ((l.max_fives < 0 || fives <= l.max_fives) && (l.max_tens < 0 || tens <= l.max_tens) &&
          (l.max_ones < 0 || ones <= l.max_ones)) {
        row = &l;
        break;
      }
    }
    if (!row) {
      // A side holding 1950 chips or more: no row holds and the old table froze here for good.
      // Instead the whole value is split anew with at most thirty of each, fifties first. Every
      // value up to 1980 fits; chips beyond that, which only the minting of TrocarFichas can
      // make, are dropped from the ones.
      int value = 50 * fifties + 10 * tens + 5 * fives + ones;
      fifties = std::min(30, value / 50), value -= 50 * fifties;
      tens = std::min(30, value / 10), value -= 10 * tens;
      fives = std::min(30, value / 5), value -= 5 * fives;
      ones = std::min(30, value);
      break;
    }
    fifties = Byte(fifties - 1);
    ones += row->plus_ones, fives += row->plus_fives, tens += row->plus_tens;
  }

  // 5. Smooth, each test once.
  if (ones > 20 && fives < 15) ones -= 10, fives += 2;
  if (fives > 20 && tens < 10) fives -= 8, tens += 4;
  if (fifties < 5 && tens > 25) tens -= 10, fifties = Byte(fifties + 2);
  if (ones < 10 && fives > 10) ones += 10, fives -= 2;
  if (fives < 10 && tens > 10) fives += 8, tens -= 4;
  if (fifties > 1 && tens < 10) fifties = Byte(fifties - 2), tens += 10;

  // 6. Redraw from the fifties down; for the player each denomination with chips takes the
  // focus in turn, so it rests on the lowest one he has.
  const int counts[4] = {ones, fives, tens, fifties};
  for (int i = 3; i >= 0; --i) {
    const Denominacao& d = kDenominacoes[i];
    if (counts[i] > 0) bar.Button(d.botao).SetEnabled(true);
    WritePile(Poker, d, counts[i]);
    if (!Poker && counts[i] > 0) {
      f.PicFichasPlayer(d.pic).Enabled = true;
      f.PicFichasPlayer(d.pic).SetFocus();
    }
  }

  // 7, 8.
  Total(Poker) = 50 * fifties + 10 * tens + 5 * fives + ones;
  if (EfeitosOn) Musicas("EFEITOS", "FICHAS");
}
