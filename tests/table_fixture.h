// A table laid out by hand for the final round and the showdown: each side's stack, the stakes
// lying on the table as chips, the centre pot, and both hands.
#pragma once

#include <array>

#include "chips/chips.h"
#include "core/deck.h"
#include "game_fixture.h"

using Hand5 = std::array<const char*, 5>;

class MesaMontada : public GameTest {
 protected:
  // One side's stack built anew with `n` chips, spread over the four piles as at the start.
  void Pilha(bool poker, int n, bool espalhar = true) {
    vb::Control& bar = poker ? F().ToolbarPokerCoins : F().ToolbarPlayerCoins;
    for (const Denominacao& d : kDenominacoes) {
      bar.Button(d.botao).SetImage(ChavePilha(d, 0));
      bar.Button(d.botao).SetEnabled(n > 0);
    }
    (poker ? FichasPoker : FichasPlayer) = 0;
    PilhaDeFichas(poker, n);
    if (espalhar && n > 0) TrocarFichas(poker, true);
  }
  // A stake laid on the table as chips: a stack of just those chips, moved whole.
  void Aposta(bool poker, int n) {
    Pilha(poker, n, false);
    MoverFichas(poker, n, true);
  }
  // The game started, then the table replaced by this one: her chips and his in front of them,
  // their stakes on the table, the centre pot and both hands, sorted.
  void Dispor(int poker, int player, int apostas, int pote, int pingo, const Hand5& dela,
              const Hand5& dele) {
    IniciarJogo();
    MoverFichas(true, 0, false);
    MoverFichas(false, 0, false);
    MesaApostas = 0;
    MesaPote = 0;
    MesaPingo = pingo;
    FichasNaMesa();
    Aposta(true, apostas);
    Aposta(false, pote);
    Pilha(true, poker);
    Pilha(false, player);
    AtualizarLabels();
    for (int i = 1; i <= 5; ++i) {
      CartasPoker[i] = dela[i - 1];
      CartasPlayer[i] = dele[i - 1];
    }
    OrdenarCartas(true);
    OrdenarCartas(false);
  }
};
