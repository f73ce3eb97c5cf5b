#include "core/deck.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "core/cards.h"
#include "core/game_state.h"
#include "core/start.h"
#include "platform/rnd.h"
#include "platform/runtime.h"
#include "platform/settings.h"
#include "support.h"

namespace {

class DeckAndDeal : public ::testing::Test {
 protected:
  void SetUp() override { ResetProcess(20240611); }
  void TearDown() override { ResetProcess(); }
};

TEST_F(DeckAndDeal, EncherBaralhoLosesTheLowestRanksOfASmallerDeck) {
  struct Row {
    int nro;
    char lowest;  // rank of the last four places
  };
  for (const Row& r : {Row{52, '2'}, Row{48, '3'}, Row{44, '4'}, Row{40, '5'}, Row{36, '6'},
                       Row{32, '7'}, Row{28, '8'}, Row{24, '9'}, Row{20, 'D'}}) {
    Baralho.fill("xx");
    NroCartas = static_cast<std::uint8_t>(r.nro);
    EncherBaralho();
    EXPECT_EQ(Baralho[1], "AC");
    EXPECT_EQ(Baralho[4], "AT");
    EXPECT_EQ(Baralho[5], "KC");
    EXPECT_EQ(Baralho[r.nro - 3], std::string(1, r.lowest) + "C") << r.nro;
    EXPECT_EQ(Baralho[r.nro], std::string(1, r.lowest) + "T") << r.nro;
    for (int i = r.nro + 1; i <= 52; ++i) EXPECT_EQ(Baralho[i], "xx") << "place " << i;
  }
  NroCartas = 53;
  EXPECT_FAULT(EncherBaralho(), vb::err::kSubscript);
}

// Many shuffles with the real generator. Before each one the live places hold labels of their
// own position, which makes the partners of places 1 to 14 readable afterwards: place i is
// swapped exactly once, at step i, and takes what then stands at its partner j. That is the
// original card of j unless an earlier place k already traded with j, in which case it is the
// card of k, and j is the partner already read for k. The number of swaps n is read by counting
// the draws the shuffle took from the generator after its one reseed.
struct ShuffleCase {
  int tamanho;
  int shuffles;
};

class ShuffleStatistics : public DeckAndDeal, public ::testing::WithParamInterface<ShuffleCase> {};

TEST_P(ShuffleStatistics, PartnersAndCountLieIn15ToTamanhoWithHalfWeightEnds) {
  const int t = GetParam().tamanho;
  std::map<int, int> n_seen, j_seen;
  std::vector<std::string> label(53);
  for (int p = 1; p <= 52; ++p) label[p] = std::to_string(p).insert(0, 1, 'L');

  for (int s = 0; s < GetParam().shuffles; ++s) {
    for (int p = 1; p <= 52; ++p) Baralho[p] = label[p];
    Semente = static_cast<float>(s % 9);  // the moods the opponent leaves in the seed
    const std::uint64_t before = vb::RndState();
    MisturarBaralho(t);
    const std::uint64_t after = vb::RndState();

    // n: one reseed, then 1 + n draws.
    vb::SetRndState(before);
    vb::Randomize(Semente);
    int draws = 0;
    while (vb::RndState() != after && draws < 100) vb::Rnd(), ++draws;
    ASSERT_EQ(vb::RndState(), after) << "the shuffle must reseed once and then only draw";
    const int n = draws - 1;
    ASSERT_GE(n, 15);
    ASSERT_LE(n, t);
    ++n_seen[n];

    // Partners of places 1 to 14, and the cards outside the live part untouched.
    int partner[15] = {};
    for (int i = 1; i <= 14; ++i) {
      const int x = std::stoi(Baralho[i].substr(1));
      ASSERT_NE(x, i) << "place " << i << " kept its card";
      // Places 1 to 14 never trade with each other: a card of that range can only come back
      // through the region from 15 on, from a place dealt with earlier.
      ASSERT_TRUE(x >= 15 || x < i) << "place " << i << " took the card of place " << x;
      partner[i] = x >= 15 ? x : partner[x];
      ASSERT_GE(partner[i], 15);
      ASSERT_LE(partner[i], t);
      ++j_seen[partner[i]];
    }
    for (int p = t + 1; p <= 52; ++p) ASSERT_EQ(Baralho[p], label[p]);
  }

  auto check = [&](const std::map<int, int>& seen, const char* what, double tolerance) {
    ASSERT_EQ(seen.size(), static_cast<std::size_t>(t - 14)) << what << ": every value 15..T";
    double inner = 0;
    for (int v = 16; v < t; ++v) inner += seen.at(v);
    inner /= t - 16;
    // Rounding to the nearest whole number gives the two ends half a unit of width each.
    EXPECT_NEAR(seen.at(15) / inner, 0.5, tolerance) << what << " = 15";
    EXPECT_NEAR(seen.at(t) / inner, 0.5, tolerance) << what << " = " << t;
    for (int v = 16; v < t; ++v) EXPECT_NEAR(seen.at(v) / inner, 1.0, 2 * tolerance) << v;
  };
  check(n_seen, "n", 0.12);
  check(j_seen, "j", 0.05);
}

INSTANTIATE_TEST_SUITE_P(DeckSizes, ShuffleStatistics,
                         ::testing::Values(ShuffleCase{52, 40000}, ShuffleCase{36, 20000},
                                           ShuffleCase{20, 10000}),
                         [](const auto& info) { return std::to_string(info.param.tamanho); });

TEST_F(DeckAndDeal, ShuffleSwapsPlaceIWithItsPartnerInOrder) {
  NroCartas = 20;
  EncherBaralho();
  const Deck start = Baralho;
  // n = 15 (Rnd 0), then partners 20 (0.9999), 15 (0), 18 (17.5 rounds to the even 18),
  // 16 (16.25), and 15 for the rest.
  std::deque<float> script = {0.0f, 0.9999f, 0.0f, 0.5f, 0.25f};
  script.resize(16, 0.0f);
  vb::ScriptRnd(script);
  MisturarBaralho(20);
  EXPECT_EQ(vb::ScriptedRndLeft(), 0u);

  Deck expected = start;
  const int partners[16] = {0, 20, 15, 18, 16, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15};
  for (int i = 1; i <= 15; ++i) std::swap(expected[i], expected[partners[i]]);
  EXPECT_EQ(Baralho, expected);
  // Spelled out for the first swaps: place 1 took the card of 20, place 2 that of 15.
  EXPECT_EQ(Baralho[1], "DT");
  EXPECT_EQ(Baralho[2], "JP");
}

TEST_F(DeckAndDeal, DarCartasGivesTheFirstBlockToWhoHoldsTheHand) {
  NroCartas = 52;
  EncherBaralho();
  const Deck start = Baralho;
  struct Row {
    int nro_mao;
    bool poker_first;
  };
  for (const Row& r : {Row{2, true}, Row{3, false}, Row{10, true}, Row{-1, false}}) {
    NroMao = r.nro_mao;
    DarCartas();
    const Hand& first = r.poker_first ? CartasPoker : CartasPlayer;
    const Hand& second = r.poker_first ? CartasPlayer : CartasPoker;
    for (int i = 1; i <= 5; ++i) {
      EXPECT_EQ(first[i], start[i]) << "NroMao " << r.nro_mao;
      EXPECT_EQ(second[i], start[i + 5]) << "NroMao " << r.nro_mao;
    }
    EXPECT_EQ(Baralho, start);
  }
}

TEST_F(DeckAndDeal, OrdenarCartasByTagAsNumberNotAsText) {
  // As texts "10" < "2" < "6" < "8" < "9"; as numbers 2 < 6 < 8 < 9 < 10.
  CartasPoker = {"", "QD", "KT", "QC", "AD", "KD"};
  CartasPlayer = {"", "2T", "DD", "9C", "AT", "KP"};
  OrdenarCartas(true);
  EXPECT_EQ(CartasPoker, (Hand{"", "AD", "KD", "KT", "QC", "QD"}));
  EXPECT_EQ(CartasPlayer, (Hand{"", "2T", "DD", "9C", "AT", "KP"})) << "the other hand untouched";
  OrdenarCartas(false);
  EXPECT_EQ(CartasPlayer, (Hand{"", "AT", "KP", "DD", "9C", "2T"}));

  CartasPlayer = {"", "AC", "KC", "ZZ", "2C", "3C"};
  EXPECT_FAULT(OrdenarCartas(false), vb::err::kElementNotFound);
}

float FreshDrawAfterReseed(std::uint64_t state, double seed) {
  vb::SetRndState(state);
  vb::Randomize(seed);
  return vb::Rnd();
}

TEST_F(DeckAndDeal, GuardarSementeFirstExitThenReseedsWithTheStoredValue) {
  const std::uint64_t state = vb::RndState();
  GuardarSemente();
  EXPECT_EQ(std::bit_cast<std::uint32_t>(Semente), 1059454947u);
  EXPECT_EQ(vb::GetSetting("Trevim", "Ramdomize", "Seed"), "0.6484358");
  EXPECT_EQ(vb::RndState(), state) << "the first value is fixed, not drawn";

  // The next exit (of this or a later run) reseeds with what was stored.
  const float expected = FreshDrawAfterReseed(state, 0.6484358f);
  vb::SetRndState(state);
  Semente = 3;  // whatever the game left in it does not matter
  GuardarSemente();
  EXPECT_EQ(Semente, expected);
  EXPECT_EQ(vb::GetSetting("Trevim", "Ramdomize", "Seed"), vb::SingleText(expected));
  EXPECT_NE(vb::GetSetting("Trevim", "Ramdomize", "Seed"), "0.6484358");
}

}  // namespace
