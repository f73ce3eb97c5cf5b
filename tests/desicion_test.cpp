#include "opponent/desicion.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <string>

#include "core/game_state.h"
#include "core/start.h"
#include "platform/rnd.h"
#include "support.h"

namespace {

using Moods = std::array<int, 9>;

// Rnd values that make the draws come out as wanted.
constexpr float kBottom = 0.0f;         // a band gives a
constexpr float kTop = 0x1.fffffep-1f;  // the largest value below 1: a band gives b
constexpr float kUnused = 0.5f;         // must still be in the script after the call

class Decision : public ::testing::Test {
 protected:
  void SetUp() override {
    ResetProcess();
    vb::ScriptRnd({});
    MaxTroca = 4;
    LimiteAbertura = true;
    LimiteFichas = 150;
    FichasPoker = 900;
    FichasPlayer = 900;
    JogoPoker = "NN";
    JogoPlayer = "NN";
  }
  void TearDown() override { vb::ScriptRnd({}); }

  // Runs a stage at the given mood; the next Rnd (a band, if the row draws one) is `band`.
  static void Run(const std::string& stage, int mood, float band = kUnused) {
    vb::ScriptRnd({Humor(mood), band});
    Desicion(stage);
    ASSERT_EQ(Semente, static_cast<float>(mood));
  }
  static bool BandDrawn() { return vb::ScriptedRndLeft() == 0; }

  // Every variable a stage may set.
  static std::array<int, 6> Results() {
    return {CartasTrocaPoker,   AberturaPoker, AumentoAberturaPoker,
            TotalAberturaPoker, ApostaPoker,   TotalApostaPoker};
  }

  // The result of a stage at every mood, each band at its low end.
  static Moods AtEveryMood(const std::string& stage, const std::function<int()>& result) {
    Moods out{};
    for (int m = 0; m < 9; ++m) {
      Run(stage, m, kBottom);
      out[m] = result();
    }
    return out;
  }
};

TEST_F(Decision, Cubre2OneChipShortGivesTwoAtMoodsZeroAndOne) {
  MesaPote = 31;
  MesaApostas = 30;
  EXPECT_EQ(AtEveryMood("CUBRE2", [] { return AumentoAberturaPoker; }),
            (Moods{2, 2, 11, 1, 11, 1, 11, 1, 11}));
  for (int m : {0, 1, 3, 5, 7}) {
    Run("CUBRE2", m);
    EXPECT_FALSE(BandDrawn()) << "mood " << m;
  }
}

TEST_F(Decision, Cubre3OneChipShortAlwaysPutsItIn) {
  MesaPote = 31;
  MesaApostas = 30;
  JogoPlayer = "ER";  // even against the strongest hand
  EXPECT_EQ(AtEveryMood("CUBRE3", [] { return int{TotalAberturaPoker}; }),
            (Moods{1, 1, 1, 1, 1, 1, 1, 1, 1}));
}

TEST_F(Decision, NegativeFaltaPassesThrough) {
  MesaApostas = 20;  // she is 20 chips over the player
  EXPECT_EQ(AtEveryMood("CUBRE2", [] { return AumentoAberturaPoker; }),
            (Moods{0, 0, -10, -20, -10, -20, -10, -20, -10}));
  EXPECT_EQ(AtEveryMood("CUBRE3", [] { return int{TotalAberturaPoker}; }),
            (Moods{0, -20, -20, -20, -20, -20, -20, -20, -20}));
}

TEST_F(Decision, AbreAtTheLimitStakeGivesZeroButDrawsTheMood) {
  JogoPoker = "ER";
  JogoPlayer = "P1";
  AberturaPlayer = 150;
  Run("ABRE", 4);  // this mood would open with 40..59
  EXPECT_EQ(AberturaPoker, 0);
  EXPECT_FALSE(BandDrawn());
  AberturaPlayer = 149;
  Run("ABRE", 4, kBottom);
  EXPECT_EQ(AberturaPoker, 40);
}

TEST_F(Decision, CarRows) {
  struct Case {
    const char* her;
    const char* his;
    bool trio_mata;
    int max_troca;
    Moods want;
  };
  const Case cases[] = {
      {"NN", "P1", true, 1, {0, 0, 0, 0, 1, 1, 1, 1, 0}},
      {"P2", "P1", true, 1, {0, 1, 1, 1, 1, 1, 1, 1, 1}},
      {"P2", "P1", true, 5, {0, 5, 1, 1, 5, 1, 1, 5, 1}},
      {"P1", "NN", true, 5, {0, 3, 3, 5, 3, 3, 3, 3, 3}},
      {"P1", "NN", false, 5, {0, 3, 4, 5, 3, 4, 4, 3, 5}},
      {"PI", "NN", true, 5, {0, 0, 2, 5, 0, 2, 2, 0, 2}},
      {"PI", "NN", false, 5, {0, 0, 4, 5, 0, 4, 4, 0, 5}},
      {"ES", "PI", true, 5, {0, 5, 0, 0, 5, 0, 0, 5, 0}},  // breaks the straight the trips beat
      {"ES", "PI", true, 3, {0, 3, 0, 0, 3, 0, 0, 3, 0}},
      {"ES", "PI", false, 5, {0, 0, 0, 0, 0, 0, 0, 0, 0}},
      {"ES", "P2", true, 5, {0, 0, 0, 0, 0, 0, 0, 0, 0}},
      {"FU", "ER", true, 5, {0, 0, 0, 0, 0, 0, 0, 0, 0}},
  };
  FichasPoker = 2;  // cards, not chips: the count may exceed them
  for (const Case& c : cases) {
    JogoPoker = c.her;
    JogoPlayer = c.his;
    TrioMataEscada = c.trio_mata;
    MaxTroca = static_cast<std::uint8_t>(c.max_troca);
    EXPECT_EQ(AtEveryMood("CAR", [] { return int{CartasTrocaPoker}; }), c.want)
        << c.her << " vs " << c.his << " trio " << c.trio_mata << " max " << c.max_troca;
  }
}

TEST_F(Decision, OpeningLimitCutsAllChipsOnlyWhenOn) {
  JogoPoker = "FU";
  AberturaPlayer = 30;  // 5 < P <= 50, her strong hand, mood 8: all chips
  Run("CUBRE1", 8);
  EXPECT_EQ(AberturaPoker, 150);
  LimiteAbertura = false;
  Run("CUBRE1", 8);
  EXPECT_EQ(AberturaPoker, 900);

  // Straight against straight, not ahead: LimiteFichas, plus a band only with no limit.
  JogoPoker = JogoPlayer = "ES";
  AberturaPlayer = 0;
  LimiteAbertura = true;
  Run("ABRE", 1);
  EXPECT_EQ(AberturaPoker, 150);
  EXPECT_FALSE(BandDrawn());
  LimiteAbertura = false;
  Run("ABRE", 1, kTop);
  EXPECT_EQ(AberturaPoker, 150 + 399);

  // The raise has no limit: a huge raise at mood 0 pushes everything in.
  LimiteAbertura = true;
  JogoPoker = "NN";
  JogoPlayer = "FU";
  AberturaPlayer = 400;
  AberturaPoker = 30;
  MesaPote = 400;
  MesaApostas = 30;
  Run("CUBRE2", 0);
  EXPECT_EQ(AumentoAberturaPoker, 900);
}

TEST_F(Decision, TiesReadAsNotAhead) {
  PontosPoker = 5000;
  for (int diff : {0, 1}) {
    PontosPlayer = PontosPoker + diff;
    const bool ahead = diff > 0;
    JogoPoker = "P1";
    JogoPlayer = "P2";
    Run("ABRE", 1, kBottom);
    EXPECT_EQ(AberturaPoker, ahead ? 0 : 40) << diff;
    MesaPote = 0;
    Run("FINAL", 0, kBottom);
    EXPECT_EQ(ApostaPoker, ahead ? 0 : 50) << diff;
    JogoPoker = "NN";
    JogoPlayer = "FU";
    AberturaPlayer = 120;
    Run("CUBRE1", 4);
    EXPECT_EQ(AberturaPoker, ahead ? 0 : 120) << diff;
  }
}

TEST_F(Decision, BandsReachBothEnds) {
  struct Case {
    const char* stage;
    std::function<void()> setup;
    int mood, a, b;
    std::function<int()> result;
  };
  const Case cases[] = {
      {"ABRE",
       [] {
         JogoPlayer = "P2";
         PontosPlayer = 1;
       },
       2, 30, 59, [] { return AberturaPoker; }},
      {"CUBRE1",
       [] {
         JogoPoker = "FU";
         AberturaPlayer = 30;
       },
       1, 50, 129, [] { return AberturaPoker; }},
      {"CUBRE3", [] {}, 0, 100, 249, [] { return int{TotalAberturaPoker}; }},
      {"FINAL",
       [] {
         MesaPote = 50;
         CartasTrocaPlayer = 4;
       },
       1, 100, 129, [] { return ApostaPoker; }},
      {"CUBREFINAL1", [] { JogoPoker = "CO"; }, 1, 20, 99, [] { return ApostaPoker; }},
  };
  for (const Case& c : cases) {
    for (float rnd : {kBottom, kTop}) {
      SetUp();
      c.setup();
      Run(c.stage, c.mood, rnd);
      EXPECT_EQ(c.result(), rnd == kBottom ? c.a : c.b) << c.stage;
    }
  }
}

TEST_F(Decision, RowsOfTheirOwn) {
  // The mood of nothing gives up even a strong hand against a stake above 5.
  JogoPoker = "ER";
  AberturaPlayer = 30;
  Run("CUBRE1", 0);
  EXPECT_EQ(AberturaPoker, 0);
  // A stake of 5 is still a small one, where a quiet mood raises; from 6 up the same mood gives
  // up.
  JogoPoker = "NN";
  AberturaPlayer = 5;
  Run("CUBRE1", 3, kBottom);
  EXPECT_EQ(AberturaPoker, 15);
  AberturaPlayer = 6;
  Run("CUBRE1", 3, kBottom);
  EXPECT_EQ(AberturaPoker, 0);
  JogoPoker = "ER";
  // A stake of nothing or less is covered as it stands.
  AberturaPlayer = -3;
  Run("CUBRE1", 1);
  EXPECT_EQ(AberturaPoker, -3);

  // Her strong hand at moods 3 and 5 keeps what she had.
  ApostaPoker = 25;
  MesaPote = 50;
  Run("FINAL", 3);
  EXPECT_EQ(ApostaPoker, 25);
  // A big final stake on a small table keeps it too.
  ApostaPlayer = 100;
  MesaPote = 80;
  Run("CUBREFINAL1", 1);
  EXPECT_EQ(ApostaPoker, 25);

  // One pair against trips: she covers only in moods 6 and 7; two pairs always cover.
  MesaPote = 70;
  MesaApostas = 40;
  JogoPoker = "P1";
  JogoPlayer = "PI";
  EXPECT_EQ(AtEveryMood("CUBREFINAL2", [] { return int{TotalApostaPoker}; }),
            (Moods{0, 0, 0, 0, 0, 0, 30, 30, 0}));
  JogoPoker = "P2";
  EXPECT_EQ(AtEveryMood("CUBREFINAL2", [] { return int{TotalApostaPoker}; }),
            (Moods{30, 30, 30, 30, 30, 30, 30, 30, 30}));
}

TEST_F(Decision, ClosingStepsInOrder) {
  // The player has no chips and she is nearly out: all in, then the opening limit cuts it.
  FichasPlayer = 0;
  FichasPoker = 200;
  MesaPote = 190;
  JogoPlayer = "P2";
  PontosPlayer = 1;  // ahead: mood 0 would pass
  Run("ABRE", 0);
  EXPECT_EQ(AberturaPoker, 150);
  LimiteAbertura = false;
  Run("ABRE", 0);
  EXPECT_EQ(AberturaPoker, 200);

  // Final round with the player out of chips: never more than he could have answered.
  JogoPlayer = "NN";
  MesaPote = 50;
  MesaApostas = 20;
  CartasTrocaPlayer = 4;
  Run("FINAL", 1, kBottom);  // 100..129
  EXPECT_EQ(ApostaPoker, 30);
}

const char* const kClasses[] = {"ER", "PO", "CO", "FU", "ES", "PI", "P2", "P1", "NN"};

// Every stage over every pair of classes, both house rules, both limits, several stakes, every
// mood: the ceilings always hold, only the stage's variable moves, at most one band is drawn.
TEST_F(Decision, WalkOfAllTables) {
  struct Stakes {
    int fichas_poker, fichas_player, pote, apostas, abertura_player, aumento_player, total_player,
        abertura_poker, aumento_poker, aposta_player, cartas_player, max_troca, limite, lead;
  };
  const Stakes stakes[] = {
      {990, 990, 3, 0, 3, 0, 0, 0, 0, 0, 0, 4, 150, 1},
      {990, 960, 30, 0, 30, 0, 0, 0, 0, 20, 1, 1, 150, 0},
      {700, 500, 80, 10, 80, 0, 0, 10, 0, 50, 2, 4, 151, -1},
      {600, 0, 60, 5, 60, 0, 0, 5, 0, 0, 3, 4, 150, 1},
      {300, 800, 500, 50, 400, 100, 0, 30, 20, 120, 4, 5, 150, 1},
      {25, 0, 10, 9, 150, 0, 0, 9, 0, 0, 0, 4, 150, 0},
      {3, 0, 0, 40, 0, 0, 0, 40, 0, 95, 5, 5, 150, -1},
      {1000, 5, 200, 190, 200, 0, 10, 100, 90, 200, 2, 0, 990, -1},
  };
  // Each stage and the slot of its variable in Results().
  const std::pair<std::string, int> stages[] = {
      {"CAR", 0},    {"ABRE", 1},  {"CUBRE1", 1},      {"CUBRE2", 2},
      {"CUBRE3", 3}, {"FINAL", 4}, {"CUBREFINAL1", 4}, {"CUBREFINAL2", 5},
  };
  const int kPreset = 500;  // the result variables before the call: "keep" rows leave it
  int car_above_chips = 0;
  for (const Stakes& s : stakes) {
    FichasPoker = s.fichas_poker;
    FichasPlayer = s.fichas_player;
    MesaPote = s.pote;
    MesaApostas = s.apostas;
    AberturaPlayer = s.abertura_player;
    AumentoAberturaPlayer = s.aumento_player;
    TotalAberturaPlayer = s.total_player;
    ApostaPlayer = s.aposta_player;
    CartasTrocaPlayer = static_cast<std::uint8_t>(s.cartas_player);
    MaxTroca = static_cast<std::uint8_t>(s.max_troca);
    LimiteFichas = s.limite;
    PontosPoker = 1000;
    PontosPlayer = 1000 + s.lead;
    for (const char* her : kClasses) {
      for (const char* his : kClasses) {
        JogoPoker = her;
        JogoPlayer = his;
        for (int rules = 0; rules < 4; ++rules) {
          TrioMataEscada = rules & 1;
          LimiteAbertura = rules & 2;
          for (const auto& stage : stages) {
            const std::string& key = stage.first;
            const int slot = stage.second;
            for (int m = 0; m < 9; ++m) {
              AberturaPoker = s.abertura_poker;
              AumentoAberturaPoker = s.aumento_poker;
              CartasTrocaPoker = 3;
              TotalAberturaPoker = ApostaPoker = TotalApostaPoker = kPreset;
              const std::array<int, 6> before = Results();
              vb::ScriptRnd({Humor(m), (m % 2) ? kTop : kBottom, kUnused});
              Desicion(key);
              const std::array<int, 6> after = Results();
              const auto where = [&] {
                return key + " " + her + "/" + his + " rules " + std::to_string(rules) + " mood " +
                       std::to_string(m) + " poker " + std::to_string(s.fichas_poker);
              };
              ASSERT_EQ(Semente, static_cast<float>(m)) << where();
              ASSERT_GE(vb::ScriptedRndLeft(), 1u) << where();
              for (int v = 0; v < 6; ++v) {
                if (v != slot) {
                  ASSERT_EQ(after[v], before[v]) << where();
                }
              }
              if (slot == 0) {
                ASSERT_LE(after[0], s.max_troca) << where();
                if (after[0] > s.fichas_poker) ++car_above_chips;
              } else {
                ASSERT_LE(after[slot], s.fichas_poker) << where();
              }
            }
          }
        }
      }
    }
  }
  EXPECT_GT(car_above_chips, 0);
}

}  // namespace
