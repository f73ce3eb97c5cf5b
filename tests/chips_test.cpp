// The chips: the stacks held in the coin buttons' image keys, the stakes put on the table, the
// centre heap, the figures on the labels and the player's hand on the chips. Each test plays the
// start-up once to have the table, clears it, lays out the stacks it needs and calls the routine.
#include "chips/chips.h"

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "game_fixture.h"
#include "platform/runtime.h"
#include "support.h"

namespace {

// One stack: how many chips of 1, 5, 10 and 50.
struct Pilha {
  int ones, fives, tens, fifties;
  int Valor() const { return ones + 5 * fives + 10 * tens + 50 * fifties; }
  int operator[](int i) const { return i == 0 ? ones : i == 1 ? fives : i == 2 ? tens : fifties; }
  bool operator==(const Pilha&) const = default;
};
void PrintTo(const Pilha& p, std::ostream* os) {
  *os << "{1:" << p.ones << " 5:" << p.fives << " 10:" << p.tens << " 50:" << p.fifties << "}";
}

constexpr const char* kPrefixos[4] = {"F01_", "F05_", "F10_", "F50_"};

std::string Mci(const std::string& pasta, const std::string& chave) {
  return "Play MUSICAS\\" + pasta + "\\" + chave + ".WAV";
}

class Chips : public GameTest {
 protected:
  void SetUp() override {
    GameTest::SetUp();
    IniciarJogo();
    // A clear table: no chip shown anywhere, no stake, no pot, no sound.
    for (auto* heap : {&F().PictureCoin, &F().PicturePokerCoin, &F().PicturePlayerCoin})
      for (const auto& [i, pic] : heap->items()) pic->Visible = false;
    MesaPote = 0;
    MesaApostas = 0;
    MesaPingo = 0;
    EfeitosOn = false;
    vb::ClearMciSent();
  }

  vb::Control& Bar(bool poker) { return poker ? F().ToolbarPokerCoins : F().ToolbarPlayerCoins; }
  vb::ToolbarButton& Botao(bool poker, int botao) { return Bar(poker).Button(botao); }
  // Lays the stack out on the buttons, every button enabled, and makes the total agree.
  void Montar(bool poker, Pilha p) {
    for (int i = 0; i < 4; ++i) {
      char key[8];
      std::snprintf(key, sizeof key, "%s%02d", kPrefixos[i], p[i]);
      Botao(poker, 2 * (i + 1)).SetImage(key);
      Botao(poker, 2 * (i + 1)).SetEnabled(true);
      if (!poker) F().PicFichasPlayer(i).Enabled = true;
    }
    (poker ? FichasPoker : FichasPlayer) = p.Valor();
  }
  // What the buttons say, read from the keys themselves.
  Pilha Lida(bool poker) {
    int counts[4];
    for (int i = 0; i < 4; ++i) {
      const std::string key = Botao(poker, 2 * (i + 1)).ImageKey();
      counts[i] = key.empty() ? 0 : std::stoi(key.substr(4));
    }
    return {counts[0], counts[1], counts[2], counts[3]};
  }
  std::string Imagem(bool poker, int botao) { return Botao(poker, botao).Image(); }
  // The values of the chips shown in a heap, from index 0 up to the first hidden picture.
  std::vector<int> Mostradas(vb::ControlArray<>& heap) {
    std::vector<int> tags;
    for (int i = 0; i < heap.Count() && heap(i).Visible; ++i)
      tags.push_back(std::stoi(heap(i).Tag.get()));
    return tags;
  }
  void Mostrar(vb::ControlArray<>& heap, const std::vector<int>& tags, int from = 0) {
    for (std::size_t k = 0; k < tags.size(); ++k) {
      heap(from + static_cast<int>(k)).Tag = std::to_string(tags[k]);
      heap(from + static_cast<int>(k)).Visible = true;
    }
  }
  vb::ControlArray<>& Mesa(bool poker) {
    return poker ? F().PicturePokerCoin : F().PicturePlayerCoin;
  }
};

// --- PilhaDeFichas ------------------------------------------------------------------------------

TEST_F(Chips, NineHundredNinetyChipsStartAsFifteenFiftiesSixteenTensThirteenFivesFifteenOnes) {
  for (bool poker : {true, false}) {
    Montar(poker, {0, 0, 0, 0});
    PilhaDeFichas(poker, 990);
    EXPECT_EQ(Lida(poker), (Pilha{0, 0, 4, 19}));
    TrocarFichas(poker, true);
    EXPECT_EQ(Lida(poker), (Pilha{15, 13, 16, 15})) << poker;
    EXPECT_EQ(poker ? FichasPoker : FichasPlayer, 990);
  }
}

TEST_F(Chips, PilhaDeFichasCapsEachSideItsOwnWay) {
  struct Caso {
    bool poker;
    Pilha antes;
    int quantidade;
    Pilha depois;  // the opponent's extra chips vanish, the player's move down
  } casos[] = {
      {true, {0, 0, 0, 0}, 1809, {4, 1, 30, 30}},
      {true, {0, 0, 0, 0}, 1810, {0, 0, 26, 30}},  // fifty chips gone
      {false, {0, 0, 0, 0}, 1810, {0, 2, 30, 30}},
      {true, {0, 30, 0, 0}, 5, {0, 25, 0, 0}},  // thirty gone
      {false, {0, 30, 0, 0}, 5, {5, 30, 0, 0}},
      {true, {30, 0, 0, 0}, 1, {26, 0, 0, 0}},  // five gone
      {true, {3, 2, 2, 2}, -1, {2, 2, 2, 2}},
      {true, {3, 2, 2, 2}, -66, {2, 1, 1, 1}},
  };
  for (const Caso& c : casos) {
    Montar(c.poker, c.antes);
    PilhaDeFichas(c.poker, c.quantidade);
    EXPECT_EQ(Lida(c.poker), c.depois) << c.quantidade;
    // The total is right until the stack is read back.
    EXPECT_EQ(c.poker ? FichasPoker : FichasPlayer, c.antes.Valor() + c.quantidade);
    TrocarFichas(c.poker, false);
    EXPECT_EQ(c.poker ? FichasPoker : FichasPlayer, c.depois.Valor());
  }
}

// --- TrocarFichas -------------------------------------------------------------------------------

TEST_F(Chips, TrocarFichasMakesChange) {
  struct Caso {
    Pilha antes, depois;
  } casos[] = {
      {{0, 0, 4, 19}, {15, 13, 16, 15}}, {{0, 0, 0, 1}, {15, 5, 1, 0}},
      {{0, 5, 0, 0}, {10, 3, 0, 0}},  // five fives: two are broken into ones
      {{0, 0, 0, 0}, {0, 0, 0, 0}},      {{30, 30, 30, 30}, {30, 30, 30, 30}},
  };
  for (bool poker : {true, false}) {
    for (const Caso& c : casos) {
      Montar(poker, c.antes);
      TrocarFichas(poker, true);
      EXPECT_EQ(Lida(poker), c.depois);
      EXPECT_EQ(poker ? FichasPoker : FichasPlayer, c.antes.Valor());
      // An empty denomination loses its button, on the side's own toolbar.
      for (int i = 0; i < 4; ++i)
        if (c.depois[i] == 0) {
          EXPECT_FALSE(Botao(poker, 2 * (i + 1)).Enabled());
        }
    }
  }
}

TEST_F(Chips, TrocarFichasMintsOnesUntilTheTensReachFiveAndTheRedrawFaults) {
  for (bool poker : {true, false}) {
    Montar(poker, {25, 22, 3, 0});  // 165 chips
    EXPECT_FAULT(TrocarFichas(poker, true), vb::err::kElementNotFound);
    EXPECT_EQ(poker ? FichasPoker : FichasPlayer, 205);  // forty minted, the 45 ones name no image
  }
}

// --- MoverFichas --------------------------------------------------------------------------------

TEST_F(Chips, MoverFichasShortOfOnesChangesUpwardWithoutBalancing) {
  struct Caso {
    Pilha antes;
    int quantidade;
    Pilha depois;
    std::vector<int> mesa;
    int varrido;  // the total once the table is swept back
  } casos[] = {
      {{1, 2, 0, 0}, 4, {3, 1, 0, 0}, {1}, 9},         // two chips lost
      {{3, 2, 0, 0}, 4, {2, 2, 0, 0}, {1, 1, 1}, 15},  // two chips appear
      {{0, 0, 1, 0}, 3, {7, 0, 0, 0}, {}, 7},          // change from a ten
      {{0, 0, 0, 2}, 1, {29, 2, 1, 1}, {}, 99},        // from a fifty
  };
  for (const Caso& c : casos) {
    Montar(false, c.antes);
    FichasPlayer = 100;
    MoverFichas(false, c.quantidade, false);
    EXPECT_EQ(MesaPote, c.quantidade);
    EXPECT_EQ(FichasPlayer, 100 - c.quantidade);
    EXPECT_EQ(Lida(false), c.depois);
    EXPECT_EQ(Mostradas(F().PicturePlayerCoin), c.mesa);
    MontarFichas(false, false);
    MesaPote = 0;
    EXPECT_EQ(FichasPlayer, c.varrido) << c.quantidade;
  }
  // With no chip at all behind the total the change names a fifty that is not there.
  Montar(false, {0, 0, 0, 0});
  FichasPlayer = 10;
  EXPECT_FAULT(MoverFichas(false, 1, false), vb::err::kElementNotFound);
}

TEST_F(Chips, MoverFichasSplitsANegativeAmountByTheFloor) {
  for (bool poker : {true, false}) {
    Montar(poker, {10, 10, 10, 10});  // 660
    MesaApostas = 20;
    MesaPote = 20;
    MoverFichas(poker, -7, false);  // fifties -1, and 43 split as 4 tens and 3 ones
    EXPECT_EQ(Lida(poker), (Pilha{7, 10, 6, 11}));
    EXPECT_EQ(Mostradas(Mesa(poker)), (std::vector<int>{1, 1, 1, 10, 10, 10, 10}));
    EXPECT_EQ(poker ? static_cast<int>(MesaApostas) : MesaPote, 13);
    EXPECT_EQ(poker ? FichasPoker : FichasPlayer, 667);
  }
}

TEST_F(Chips, MoverFichasPaysShortDenominationsDownward) {
  EfeitosOn = true;
  for (bool poker : {true, false}) {
    Montar(poker, {0, 4, 0, 1});
    for (int i = 0; i < 4; ++i) F().PicFichasPlayer(i).Enabled = true;
    vb::ClearMciSent();
    MoverFichas(poker, 70, false);
    EXPECT_EQ(Imagem(poker, 8), "F50_00");
    EXPECT_TRUE(Botao(poker, 8).Enabled());
    EXPECT_EQ(Imagem(poker, 6), "0");
    EXPECT_FALSE(Botao(poker, 6).Enabled());
    EXPECT_EQ(Imagem(poker, 4), "F05_00");
    EXPECT_TRUE(Botao(poker, 4).Enabled());
    EXPECT_EQ(Imagem(poker, 2), "0");
    EXPECT_FALSE(Botao(poker, 2).Enabled());
    EXPECT_EQ(static_cast<bool>(F().PicFichasPlayer(2).Enabled), poker);
    EXPECT_EQ(static_cast<bool>(F().PicFichasPlayer(0).Enabled), poker);
    EXPECT_TRUE(F().PicFichasPlayer(1).Enabled);
    EXPECT_EQ(Mostradas(Mesa(poker)), (std::vector<int>{5, 5, 5, 5, 50}));
    const std::string cinco = Mci("EFEITOS", "FICHAS_5");
    EXPECT_EQ(vb::MciSent(),
              (std::vector<std::string>{cinco, cinco, cinco, cinco, Mci("EFEITOS", "FICHAS_50")}));
    EXPECT_EQ(poker ? FichasPoker : FichasPlayer, 0);
  }
}

TEST_F(Chips, MoverFichasCapsAtTheTotalAndPlacesBehindOrAfresh) {
  Montar(false, {0, 0, 5, 0});
  FichasPlayer = 30;
  Mostrar(F().PicturePlayerCoin, {5, 5});
  MoverFichas(false, 100, true);  // only the 30 he has, behind the two chips shown
  EXPECT_EQ(MesaPote, 30);
  EXPECT_EQ(FichasPlayer, 0);
  EXPECT_EQ(Mostradas(F().PicturePlayerCoin), (std::vector<int>{5, 5, 10, 10, 10}));

  MoverFichas(false, 0, false);  // hides all, books nothing
  EXPECT_EQ(MesaPote, 30);
  EXPECT_TRUE(Mostradas(F().PicturePlayerCoin).empty());
  for (int i = 0; i < 120; ++i) EXPECT_FALSE(F().PicturePlayerCoin(i).Visible);
  EXPECT_EQ(Imagem(false, 6), "F10_02");

  // A full table area has no place for one more chip.
  Montar(true, {1, 0, 0, 0});
  Mostrar(F().PicturePokerCoin, std::vector<int>(120, 1));
  EXPECT_FAULT(MoverFichas(true, 1, true), vb::err::kArrayElement);
}

// --- MontarFichas -------------------------------------------------------------------------------

TEST_F(Chips, MontarFichasSweepsUpToTheFirstHiddenPicture) {
  Montar(false, {15, 15, 15, 15});
  Montar(true, {0, 0, 0, 0});
  Mostrar(F().PicturePlayerCoin, {10, 5, 7});  // 7 is no chip: hidden, counted for nothing
  Mostrar(F().PicturePlayerCoin, {50}, 4);     // behind a hole: stays
  Mostrar(F().PicturePokerCoin, {50});         // her stake: not his to sweep
  MontarFichas(false, false);
  EXPECT_EQ(Lida(false), (Pilha{15, 16, 16, 15}));
  EXPECT_EQ(FichasPlayer, 1005);
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(F().PicturePlayerCoin(i).Visible);
  EXPECT_TRUE(F().PicturePlayerCoin(4).Visible);
  EXPECT_TRUE(F().PicturePokerCoin(0).Visible);

  // With Tudo the three heaps go to the side named.
  Mostrar(F().PictureCoin, {1, 1, 5});
  MontarFichas(true, true);
  EXPECT_EQ(FichasPoker, 57);
  EXPECT_TRUE(Mostradas(F().PictureCoin).empty());
  EXPECT_TRUE(Mostradas(F().PicturePokerCoin).empty());
}

TEST_F(Chips, MontarFichasRebalancesAndKeepsEveryStackUpTo1980) {
  struct Caso {
    Pilha pilha;
    std::vector<int> mesa;
    Pilha depois;
  } casos[] = {
      // 31 fifties that no row of the payout takes: split anew, then smoothed.
      {{0, 30, 25, 30}, {50}, {10, 28, 30, 30}},
      {{30, 30, 30, 30}, {}, {30, 30, 30, 30}},
      {{0, 10, 25, 30}, {50}, {10, 18, 25, 30}},   // paid as ten fives
      {{20, 28, 26, 30}, {50}, {30, 30, 29, 30}},  // paid by the eighth row: 10 + 2 x 5 + 3 x 10
      {{0, 0, 0, 30}, {50}, {0, 0, 15, 28}},       // a fifty paid as five tens, then smoothed
      {{25, 0, 0, 0}, {1, 1, 1, 1, 1, 1}, {16, 3, 0, 0}},  // 31 ones, evened out and smoothed
  };
  for (const Caso& c : casos) {
    Montar(false, c.pilha);
    Mostrar(F().PicturePlayerCoin, c.mesa);
    MontarFichas(false, false);
    EXPECT_EQ(Lida(false), c.depois);
    int mesa = 0;
    for (int v : c.mesa) mesa += v;
    EXPECT_EQ(FichasPlayer, c.pilha.Valor() + mesa);
  }
}

TEST_F(Chips, MontarFichasLeavesTheFocusOnTheLowestChipThePlayerHas) {
  EfeitosOn = true;
  Montar(false, {0, 10, 12, 12});
  Botao(false, 2).SetEnabled(false);
  F().PicFichasPlayer(0).Enabled = false;
  MontarFichas(false, false);
  EXPECT_EQ(F().ActiveControl(), &F().PicFichasPlayer(1));
  EXPECT_FALSE(Botao(false, 2).Enabled());  // a count of 0 leaves it as it was
  EXPECT_FALSE(F().PicFichasPlayer(0).Enabled);
  EXPECT_EQ(vb::MciSent(), std::vector<std::string>(4, Mci("EFEITOS", "FICHAS")));

  Montar(true, {5, 5, 5, 5});  // her stack takes no focus
  MontarFichas(true, false);
  EXPECT_EQ(F().ActiveControl(), &F().PicFichasPlayer(1));
}

// --- FichasNaMesa -------------------------------------------------------------------------------

TEST_F(Chips, FichasNaMesaSplitsThePotGreedilyOnesFirst) {
  struct Caso {
    int pingo;
    std::vector<int> mesa;
  } casos[] = {
      {7, {1, 1, 5}}, {4, {1, 1, 1, 1}}, {5, {5}}, {66, {1, 5, 10, 50}}, {0, {}},
  };
  Mostrar(F().PictureCoin, std::vector<int>(10, 10));
  for (const Caso& c : casos) {
    MesaPingo = c.pingo;
    FichasNaMesa();
    EXPECT_EQ(Mostradas(F().PictureCoin), c.mesa);
    for (int i = static_cast<int>(c.mesa.size()); i < 48; ++i)
      EXPECT_FALSE(F().PictureCoin(i).Visible);
  }
  MesaPingo = 1949;  // the most pictures any pot needs: 47
  FichasNaMesa();
  EXPECT_EQ(Mostradas(F().PictureCoin).size(), 47u);
  EXPECT_EQ(F().PictureCoin(46).Picture.get(), F().ImageListExtras.PictureOf("Ficha50"));
}

// --- AtualizarLabels and the arrow --------------------------------------------------------------

TEST_F(Chips, AtualizarLabelsWritesChipsAndMoney) {
  ValorFicha = 0.25f;
  FichasPlayer = 990;
  FichasPoker = 1234;
  MesaPote = 12;
  MesaApostas = 7;
  MesaPingo = 3;
  AtualizarLabels();
  EXPECT_EQ(Caption(F().LabelPlayerFichas), "990 Fichas");
  EXPECT_EQ(Caption(F().LabelPlayerMoney), "$ 247.50");
  EXPECT_EQ(Caption(F().LabelPokerFichas), "1234 Fichas");
  EXPECT_EQ(Caption(F().LabelPokerMoney), "$ 308.50");
  EXPECT_EQ(Caption(F().LabelMesaFichas), "22 Fichas");
  EXPECT_EQ(Caption(F().LabelMesaMoney), "$ 5.50");
  EXPECT_EQ(Caption(F().LabelPlayerMesaTotalCoims), "12 fs.");
  EXPECT_EQ(Caption(F().LabelPokerMesaTotalCoims), "7 fs.");

  ValorFicha = 1000;  // a new chip value alone rewrites the money
  AtualizarLabels();
  EXPECT_EQ(Caption(F().LabelPokerMoney), "$ 1,234,000.00");

  FichasPlayer = FichasPoker = MesaPote = 0;
  MesaApostas = 0;
  MesaPingo = 0;
  AtualizarLabels();
  for (auto* l : {&F().LabelPlayerFichas, &F().LabelPokerFichas, &F().LabelMesaFichas})
    EXPECT_EQ(Caption(*l), "0 Fichas");
  for (auto* l : {&F().LabelPlayerMoney, &F().LabelPokerMoney, &F().LabelMesaMoney})
    EXPECT_EQ(Caption(*l), "$ 0.00");
  EXPECT_EQ(Caption(F().LabelPlayerMesaTotalCoims), "0 fs.");
}

// --- EscolherFicha ------------------------------------------------------------------------------

TEST_F(Chips, EscolherFichaInTheOpeningKeepsToTheLimitUnlessFollowingHer) {
  struct Caso {
    int fase, apostas, botao;
    bool passa;
  } casos[] = {
      {10, 0, 4, true},   {10, 0, 6, true},  // 150 is not above 150
      {10, 0, 8, false},  {10, 189, 8, false}, {10, 190, 8, true},
      {10, 200, 8, true}, {30, 0, 8, true},  // no limit after the opening
  };
  for (const Caso& c : casos) {
    SetUp();
    Montar(false, {5, 5, 5, 5});
    Fase = c.fase;
    LimiteFichas = 150;
    MesaPote = 140;
    MesaApostas = c.apostas;
    EfeitosOn = true;
    EscolherFicha(c.botao);
    const int valor = c.passa ? (c.botao == 4 ? 5 : c.botao == 6 ? 10 : 50) : 0;
    EXPECT_EQ(MesaPote, 140 + valor) << c.fase << " " << c.apostas << " " << c.botao;
    EXPECT_EQ(FichasPlayer, 330 - valor);
    EXPECT_EQ(static_cast<bool>(F().PicturePlayerCoin(0).Visible), c.passa);
    EXPECT_EQ(vb::MciSent().empty(), !c.passa);  // a refused chip makes no sound
  }
}

TEST_F(Chips, EscolherFichaCreditsTheStakeOfThePhase) {
  struct Caso {
    int fase;
    std::int64_t aberto, aumento, total_abertura, aposta, total_aposta;
  } casos[] = {
      {10, 10, 0, 0, 0, 0}, {11, 0, 10, 0, 0, 0}, {12, 0, 0, 10, 0, 0}, {13, 0, 0, 0, 0, 0},
      {14, 0, 0, 0, 0, 0},  {30, 0, 0, 0, 10, 0}, {31, 0, 0, 0, 0, 10}, {35, 0, 0, 0, 0, 0},
  };
  for (const Caso& c : casos) {
    SetUp();
    AberturaPlayer = AumentoAberturaPlayer = TotalAberturaPlayer = 0;
    ApostaPlayer = TotalApostaPlayer = 0;
    LimiteFichas = 500;
    Montar(false, {5, 5, 5, 5});
    Fase = c.fase;
    EscolherFicha(6);
    EXPECT_EQ(MesaPote, 10) << c.fase;
    EXPECT_EQ(Caption(F().LabelPlayerMesaTotalCoims), "10 fs.");
    EXPECT_EQ(AberturaPlayer, c.aberto) << c.fase;
    EXPECT_EQ(AumentoAberturaPlayer, c.aumento) << c.fase;
    EXPECT_EQ(TotalAberturaPlayer, c.total_abertura) << c.fase;
    EXPECT_EQ(ApostaPlayer, c.aposta) << c.fase;
    EXPECT_EQ(TotalApostaPlayer, c.total_aposta) << c.fase;
  }
}

TEST_F(Chips, EscolherFichaTakesTheLastChipAndThenAPhantom) {
  Fase = 30;
  EfeitosOn = true;
  Montar(false, {5, 1, 5, 5});
  Chip(4);  // the last five, clicked on its button
  EXPECT_EQ(Imagem(false, 4), "F05_00");
  EXPECT_FALSE(Botao(false, 4).Enabled());
  EXPECT_FALSE(F().PicFichasPlayer(1).Enabled);
  EXPECT_EQ(FichasPlayer, 310 - 5);
  EXPECT_EQ(vb::MciSent(), (std::vector<std::string>{Mci("EFEITOS", "FICHAS_5"),
                                                     "Play MUSICAS\\MELODIAS\\LALUZ.WAV"}));

  // No five behind the place: a chip shows all the same, and nothing is booked.
  EscolherFicha(4);
  EXPECT_EQ(Mostradas(F().PicturePlayerCoin), (std::vector<int>{5, 5}));
  EXPECT_EQ(Imagem(false, 4), "0");
  EXPECT_FALSE(Botao(false, 4).Enabled());
  EXPECT_EQ(FichasPlayer, 305);
  EXPECT_EQ(MesaPote, 5);
  MontarFichas(false, false);  // the sweep counts the phantom as a real five
  EXPECT_EQ(FichasPlayer, 315);

  Fase = 20;  // outside a betting phase nothing happens
  EscolherFicha(2);
  EXPECT_TRUE(Mostradas(F().PicturePlayerCoin).empty());
}

TEST_F(Chips, ChipPlacesAnswerTheKeyboardAndSpringBack) {
  Fase = 30;
  Montar(false, {5, 1, 5, 5});
  F().PicFichasPlayer(1).SetFocus();
  vb::Engine::Get().RunFocusEvents();  // the focus events run when the code hands control back
  for (int k = 4; k < 8; ++k) EXPECT_TRUE(F().FraFichasFocus(k).Visible);
  Key(32);  // the last five: its place is disabled and the focus and its frame move on
  EXPECT_EQ(Mostradas(F().PicturePlayerCoin), std::vector<int>{5});
  EXPECT_EQ(F().ToolbarPlayerCoins.Button("F05").Value(), 1);
  for (int k = 4; k < 8; ++k) EXPECT_FALSE(F().FraFichasFocus(k).Visible);
  EXPECT_NE(F().ActiveControl(), &F().PicFichasPlayer(1));
  host->RunFor(150);  // one tick of the key's spring
  EXPECT_EQ(F().ToolbarPlayerCoins.Button("F05").Value(), 0);
  EXPECT_FALSE(F().TimerKeyPot.Enabled);

  F().PicFichasPlayer(2).SetFocus();
  Key(39);  // on to the fifties
  EXPECT_EQ(F().ActiveControl(), &F().PicFichasPlayer(3));
  Key(13);
  Key(37);  // back to the tens
  EXPECT_EQ(F().ActiveControl(), &F().PicFichasPlayer(2));
  EXPECT_EQ(Mostradas(F().PicturePlayerCoin), (std::vector<int>{5, 50}));
}

}  // namespace
