#include "evaluation/analisis.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "core/cards.h"
#include "core/deck.h"
#include "core/game_state.h"
#include "core/start.h"

namespace {

class HandScoring : public ::testing::Test {
 protected:
  void SetUp() override {
    ResetProcess();
    NroCartas = 52;
    FullMataCor = false;  // the rules the program starts with
    TrioMataEscada = true;
  }
};

// "AC KD 9P 9T 2C" into a hand, sorted as the deal sorts it.
void Put(bool lado, const std::string& cards) {
  Hand& hand = lado ? CartasPoker : CartasPlayer;
  std::istringstream in(cards);
  for (int i = 1; i <= 5; ++i) in >> hand[i];
  OrdenarCartas(lado);
}

std::string Code(int nro_cartas, const std::string& cards) {
  NroCartas = static_cast<std::uint8_t>(nro_cartas);
  Put(true, cards);
  return JogoDaMao(true);
}

TEST_F(HandScoring, ValoresDaMaoTwoDigitsAndSuitInHandOrder) {
  Put(true, "9P 2C KD AC 9T");
  EXPECT_EQ(ValoresDaMao(true), "14C13D09P09T02C");
  Put(false, "DD QT JP 3C DC");
  EXPECT_EQ(ValoresDaMao(false), "12T11P10C10D03C");
  EXPECT_EQ(ValoresDaMao(true), "14C13D09P09T02C");
}

TEST_F(HandScoring, JogoDaMaoByClassAndDeckSize) {
  struct Row {
    int nro;
    const char* cards;
    const char* code;
  };
  const Row rows[] = {
      // Straight flushes, all of them ER, the ace-low one reading as ace-high.
      {52, "AC KC QC JC DC", "ER14"},
      {52, "AT 5T 4T 3T 2T", "ER14"},
      {20, "AD KD QD JD DD", "ER14"},
      // Straights: the ace-low run is the lowest one of the deck in use.
      {52, "AC KD QP JT DC", "ES14"},
      {52, "AC 5D 4P 3T 2C", "ES14"},
      {52, "6C 5D 4P 3T 2C", "ES06"},
      {44, "AC 7D 6P 5T 4C", "ES14"},
      {24, "AC QD JP DT 9C", "ES14"},
      {20, "AC KD QP JT DC", "ES14"},
      {48, "7C 6D 5P 4T 3C", "ES07"},
      // 48 cards has no ace-low straight: the lookup finds no row for it.
      {48, "AC 6D 5P 4T 3C", "NN14"},
      {48, "AC 6C 5C 4C 3C", "CO14"},
      // An ace-low shape of another deck size is no straight, nor is a run through the Ace.
      {52, "AC QD JP DT 9C", "NN14"},
      {24, "AC 5D 4P 3T 2C", "NN14"},
      {52, "AC KD 4P 3T 2C", "NN14"},
      {52, "AC KD QP JT 9C", "NN14"},
      // The other classes.
      {52, "AC AD AP AT KC", "PO14"},
      {52, "AC AD 2C 2D 2P", "FU02"},
      {52, "KC JC 9C 5C 2C", "CO13"},
      {52, "QC QD QP 5C 2D", "PI12"},
      {52, "AC AD 2C 2D 9P", "P21402"},
      {52, "AC AD KC 9D 2T", "P114"},
      {52, "9C 7D 5P 4T 2C", "NN09"},
  };
  for (const Row& r : rows) EXPECT_EQ(Code(r.nro, r.cards), r.code) << r.nro << ": " << r.cards;
}

TEST_F(HandScoring, PontosDoJogoTextOfBaseValuesAndSum) {
  struct Row {
    const char* jogo;
    const char* valores;
    std::int32_t pontos;
  };
  const Row rows[] = {
      {"P114", "14C14D13C09C02C", 1141452},  // pair of Aces, sum 52
      {"NN14", "14C10D08P07T06C", 1445},     // base 000: four digits left
      {"ER14", "14C13C12C11C10C", 8001460},
      {"ER14  ", "14C13C12C11C10C", 8001460},  // as JogoTemp holds it
      {"P21402", "14C14D02C02D09P", 2161441},  // two pairs: 2, 14 + 2, the higher pair, sum
      {"ES06", "06C05D04P03T02C", 3000620},
      {"FU02", "14C14D02C02D02P", 5000234},
      {"P114", "", 114140},              // no values: the sum is 0, written as one digit
      {"ER14", "01C", 800141},           // a one-digit sum stays one digit
      {"NN 9", "14C10D08P07T06C", 945},  // read as Val reads it: blanks are skipped
      {"P2", "", 2000},                  // no pair values: "2", "00", nothing, "0"
      {"", "", 0},
  };
  for (const Row& r : rows) EXPECT_EQ(PontosDoJogo(r.jogo, r.valores), r.pontos) << r.jogo;
}

TEST_F(HandScoring, HouseRulesOnlySwapTheTwoBases) {
  struct Row {
    bool full_mata_cor, trio_mata_escada;
    const char* base_co;
    const char* base_fu;
    const char* base_pi;
    const char* base_es;
  };
  const char* valores = "14C13C12C11C09C";  // sum 59
  for (const Row& r :
       {Row{false, true, "600", "500", "400", "300"}, Row{false, false, "600", "500", "300", "400"},
        Row{true, true, "500", "600", "400", "300"},
        Row{true, false, "500", "600", "300", "400"}}) {
    FullMataCor = r.full_mata_cor;
    TrioMataEscada = r.trio_mata_escada;
    const auto score = [&](const char* base) { return std::stoi(std::string(base) + "0959"); };
    EXPECT_EQ(PontosDoJogo("CO09", valores), score(r.base_co));
    EXPECT_EQ(PontosDoJogo("FU09", valores), score(r.base_fu));
    EXPECT_EQ(PontosDoJogo("PI09", valores), score(r.base_pi));
    EXPECT_EQ(PontosDoJogo("ES09", valores), score(r.base_es));
    EXPECT_EQ(PontosDoJogo("ER09", valores), 8000959);
    EXPECT_EQ(PontosDoJogo("PO09", valores), 7000959);
  }
}

TEST_F(HandScoring, AnalisarJogoFillsEachSideAndScoresBothWithTheOpponentsValues) {
  Put(true, "AC DD 8P 7T 6C");
  Put(false, "AT AD KC 9D 2T");

  AnalisarJogo(false);  // before any analysis of the opponent: no values, sum 0
  EXPECT_EQ(PontosPlayer, 114140);
  EXPECT_EQ(ValoresPoker, "");

  AnalisarJogo(true);
  EXPECT_EQ(ValoresPoker, "14C10D08P07T06C");
  EXPECT_EQ(JogoTemp, "NN14  ");
  EXPECT_EQ(JogoPoker, "NN");
  EXPECT_EQ(PontosPoker, 1445);

  AnalisarJogo(false);
  EXPECT_EQ(ValoresPlayer, "14D14T13C09D02T");
  EXPECT_EQ(JogoTemp, "P114  ");
  EXPECT_EQ(JogoPlayer, "P1");
  EXPECT_EQ(PontosPlayer, 1141445) << "the sum is the opponent's 45, not the player's 52";
  EXPECT_EQ(ValoresPoker, "14C10D08P07T06C");
  EXPECT_EQ(PontosPoker, 1445);

  Put(true, "AC KC QC JC DC");
  AnalisarJogo(true);
  EXPECT_EQ(JogoTemp, "ER14  ");
  EXPECT_EQ(PontosPoker, 8001460);
  Put(true, "AC DC 9C 9D 9P");
  AnalisarJogo(true);
  EXPECT_EQ(JogoTemp, "PI09  ");
  Put(true, "AC AD 9C 9D 2P");
  AnalisarJogo(true);
  EXPECT_EQ(JogoTemp, "P21409");
  EXPECT_EQ(JogoPoker, "P2");
}

// Opponent's hand against the player's, analysed as the game does (opponent first):
// +1 the opponent wins, -1 the player, 0 a tie.
int Showdown(const std::string& poker, const std::string& player) {
  Put(true, poker);
  Put(false, player);
  AnalisarJogo(true);
  AnalisarJogo(false);
  EXPECT_EQ(PontosPoker % 100, PontosPlayer % 100) << "both sums come from the opponent";
  return (PontosPoker > PontosPlayer) - (PontosPoker < PontosPlayer);
}

TEST_F(HandScoring, WhatTheScoreMakesOfTheRanking) {
  struct Row {
    int nro;
    const char* poker;
    const char* player;
    int result;
    const char* why;
  };
  const Row rows[] = {
      {52, "KC KD 9P 5T 2C", "KP KT AC QD JP", 0, "kickers never count"},
      {52, "AC QC 9C 5C 2C", "AD 3D 4D 5D 7D", 0, "flushes with the same top card tie"},
      {52, "AC 9D 7P 5T 3C", "AD KD QD JD 9P", 0, "nothing with the same top card ties"},
      {52, "AC AD 2C 2D 9P", "KC KD QC QD 2T", -1, "two pairs by the sum: 16 loses to 25"},
      {52, "DC DD 9C 9D 2T", "AC AD 3C 3D 2C", 1, "two pairs: sum 19 beats sum 17"},
      {52, "AC AD 5C 5D 2T", "DC DD 9C 9D 2C", 1, "same sum: the higher pair"},
      {52, "AC 5D 4P 3T 2C", "AD KD QP JT DC", 0, "ace-low and ace-high straights tie"},
      {52, "AC 5D 4P 3T 2C", "KD QD JP DT 9C", 1, "ace-low beats king-high"},
      {52, "9P 8P 7P 6P 5P", "AC AD AP AT KC", 1, "every straight flush is ER"},
      {52, "9P 8P 7P 6P 5P", "DC 9C 8C 7C 6C", -1, "straight flushes by top card"},
      {52, "2C 2D 7P 5T 3C", "AC KD QP JT 9C", 1, "a pair beats nothing"},
      {52, "KC KD KP 3C 3D", "KT JT 9T 5T 2T", -1, "start rules: flush beats full house"},
      {52, "QC QD QP 5C 2D", "KC QD JP DT 9C", 1, "start rules: three of a kind beats straight"},
      {48, "AC 6D 5P 4T 3C", "KC 8D 6P 4T 3P", 1, "48 cards: no ace-low straight, only ace"},
      {48, "AC 6D 5P 4T 3C", "7C 6D 5P 4T 3P", -1, "48 cards: the lowest straight is 7-high"},
  };
  for (const Row& r : rows) {
    NroCartas = static_cast<std::uint8_t>(r.nro);
    EXPECT_EQ(Showdown(r.poker, r.player), r.result) << r.why;
  }
}

TEST_F(HandScoring, OrderOfClassesUnderEachPairOfHouseRules) {
  // One hand of each class; a sorted list must come out strictly descending in score.
  const std::vector<std::pair<std::string, std::string>> hand = {
      {"ER", "9P 8P 7P 6P 5P"}, {"PO", "2C 2D 2P 2T 3C"}, {"CO", "9C 7C 5C 4C 2C"},
      {"FU", "2C 2D 2P 3C 3D"}, {"ES", "6C 5D 4P 3T 2C"}, {"PI", "2C 2D 2P 4T 3C"},
      {"P2", "3C 3D 2P 2T 4C"}, {"P1", "2C 2D 5P 4T 3C"}, {"NN", "7C 5D 4P 3T 2C"}};
  struct Row {
    bool full_mata_cor, trio_mata_escada;
    const char* order;
  };
  for (const Row& r : {Row{false, true, "ER PO CO FU PI ES P2 P1 NN"},
                       Row{false, false, "ER PO CO FU ES PI P2 P1 NN"},
                       Row{true, true, "ER PO FU CO PI ES P2 P1 NN"},
                       Row{true, false, "ER PO FU CO ES PI P2 P1 NN"}}) {
    FullMataCor = r.full_mata_cor;
    TrioMataEscada = r.trio_mata_escada;
    std::istringstream order(r.order);
    std::string cls;
    std::int32_t previous = INT32_MAX;
    while (order >> cls) {
      std::string cards;
      for (const auto& h : hand)
        if (h.first == cls) cards = h.second;
      Put(true, cards);
      AnalisarJogo(true);
      ASSERT_EQ(JogoPoker, cls);
      EXPECT_LT(PontosPoker, previous) << cls << " in " << r.order;
      previous = PontosPoker;
    }
  }
}

// Every five-card hand of each deck size, classified through JogoDaMao, against counts worked out
// by hand. The deck has r = NroCartas / 4 ranks, the r highest, 4 suits each. S is the number of
// distinct five-rank runs the evaluator takes for a straight: the r - 4 runs of consecutive ranks
// inside the deck (ace-high included), plus the ace-low run Ace, L+3, L+2, L+1, L (L the lowest
// rank) when the MaisBaixa of that deck size is L + 3 and differs from the ace-high run: true for
// 52 to 24 cards except 48, which has no MaisBaixa, and not for 20, where MaisBaixa 13 is the
// ace-high run itself. Then, with C the binomial coefficient:
//   ER = 4 S (one suit per run)                 PO = r (r-1) 4
//   FU = r C(4,3) (r-1) C(4,2)                  CO = 4 (C(r,5) - S)
//   ES = S (4^5 - 4)                            PI = r C(4,3) C(r-1,2) 4^2
//   P2 = C(r,2) C(4,2)^2 (r-2) 4                P1 = r C(4,2) C(r-1,3) 4^3
//   NN = (C(r,5) - S) (4^5 - 4)
// For 52 cards these are the usual 40, 624, 3744, 5108, 10200, 54912, 123552, 1098240, 1302540.
long long C(long long n, long long k) {
  if (k < 0 || k > n) return 0;
  long long c = 1;
  for (long long i = 1; i <= k; ++i) c = c * (n - k + i) / i;
  return c;
}

class EveryHand : public HandScoring, public ::testing::WithParamInterface<int> {};

TEST_P(EveryHand, ClassCountsMatchTheCombinatorics) {
  const int nro = GetParam();
  const long long r = nro / 4;
  const bool ace_low = nro != 48 && nro != 20;
  const long long s = (r - 4) + (ace_low ? 1 : 0);
  const char* classes[] = {"ER", "PO", "FU", "CO", "ES", "PI", "P2", "P1", "NN"};
  const long long expected[] = {
      4 * s,
      r * (r - 1) * 4,
      r * 4 * (r - 1) * 6,
      4 * (C(r, 5) - s),
      s * (1024 - 4),
      r * 4 * C(r - 1, 2) * 16,
      C(r, 2) * 36 * (r - 2) * 4,
      r * 6 * C(r - 1, 3) * 64,
      (C(r, 5) - s) * (1024 - 4),
  };
  long long sum = 0;
  for (long long e : expected) sum += e;
  ASSERT_EQ(sum, C(nro, 5));
  if (nro == 52) {
    const long long standard[] = {40, 624, 3744, 5108, 10200, 54912, 123552, 1098240, 1302540};
    for (int k = 0; k < 9; ++k) ASSERT_EQ(expected[k], standard[k]) << classes[k];
  }

  // The table runs in tag order, so choosing indices in ascending order gives sorted hands.
  NroCartas = static_cast<std::uint8_t>(nro);
  long long count[9] = {};
  auto slot = [&](const std::string& code) {
    for (int k = 0; k < 9; ++k)
      if (code.compare(0, 2, classes[k]) == 0) return k;
    ADD_FAILURE() << "unknown class " << code;
    return 0;
  };
  for (int a = 0; a < nro; ++a) {
    CartasPoker[1] = kCartas[a].code;
    for (int b = a + 1; b < nro; ++b) {
      CartasPoker[2] = kCartas[b].code;
      for (int c = b + 1; c < nro; ++c) {
        CartasPoker[3] = kCartas[c].code;
        for (int d = c + 1; d < nro; ++d) {
          CartasPoker[4] = kCartas[d].code;
          for (int e = d + 1; e < nro; ++e) {
            CartasPoker[5] = kCartas[e].code;
            ++count[slot(JogoDaMao(true))];
          }
        }
      }
    }
  }
  for (int k = 0; k < 9; ++k) EXPECT_EQ(count[k], expected[k]) << classes[k] << ", " << nro;
}

INSTANTIATE_TEST_SUITE_P(DeckSizes, EveryHand,
                         ::testing::Values(52, 48, 44, 40, 36, 32, 28, 24, 20),
                         [](const auto& info) { return std::to_string(info.param); });

}  // namespace
