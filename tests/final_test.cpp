// The final round: her answer to each turn of the player after the exchange, in every situation of
// the table, and its ends (the showdown opened, a side giving up, both passing).
#include <algorithm>
#include <array>
#include <deque>
#include <string>
#include <vector>

#include "betting/betting.h"
#include "chips/chips.h"
#include "core/deck.h"
#include "core/hand_cycle.h"
#include "opponent/leyendas.h"
#include "opponent/troca.h"
#include "support.h"
#include "table_fixture.h"

namespace {

// A drawn line of speech takes one Rnd; this one picks the first line of any key.
constexpr float L = 0.01f;

constexpr Hand5 kNada = {"KC", "JD", "9P", "7T", "3C"};      // nothing, king high
constexpr Hand5 kParCinco = {"5C", "5D", "QP", "8T", "2C"};  // a pair of fives
constexpr Hand5 kTrio = {"8C", "8D", "8P", "KT", "2D"};      // three eights
constexpr Hand5 kCor = {"AC", "JC", "9C", "6C", "4C"};       // a flush

class FinalRound : public MesaMontada {
 protected:
  // The table as the final round finds it after the exchange: her chips and his in front of
  // them, the opening stakes lying on the table as chips, the centre pot, both hands; Fase 30 and
  // no stake of this round yet.
  void Mesa(int poker, int player, int apostas, int pote, int pingo = 1, const Hand5& dela = kNada,
            const Hand5& dele = kParCinco) {
    Dispor(poker, player, apostas, pote, pingo, dela, dele);
    ApostaPoker = TotalApostaPoker = ApostaPlayer = TotalApostaPlayer = 0;
    CartasTrocaPlayer = 0;
    Fase = 30;
    Leyenda(true, "Clean", 0);
    Leyenda(false, "Clean", 0);
    vb::ClearMciSent();
  }

  // She has bet `n` in this round and holds the hand; the player has the turn.
  void ElaApostou(int n) {
    MoverFichas(true, n, true);
    ApostaPoker = n;
    MaoPlayer = true;
    AtualizarLabels();
    PrepararPlayer();
  }

  // Her first line and second line, or his.
  std::string Fala(bool poker) {
    vb::ControlArray<>& l = poker ? F().LabelPokerCaption : F().LabelPlayerCaption;
    return Caption(l(1)) + "|" + Caption(l(2));
  }
  int Visiveis(vb::ControlArray<>& heap) {
    int value = 0;
    for (int i = 0; i < heap.Count(); ++i)
      if (heap(i).Visible) value += std::stoi(heap(i).Tag.get());
    return value;
  }
  int Total() { return FichasPoker + FichasPlayer + MesaPote + MesaApostas + MesaPingo; }
  bool Enviado(const std::string& command) {
    const auto& sent = vb::MciSent();
    return std::find(sent.begin(), sent.end(), command) != sent.end();
  }
  std::int64_t Desde(std::int64_t t0) { return host->Now() - t0; }
};

// ---------------------------------------------------------------------------------------------
// Case C: the two are level.

// She passes first, he passes: she is asked "FINAL" once more and may bet after all.
TEST_F(FinalRound, SheIsAskedAgainAfterBothPassAndMayStillBet) {
  Mesa(100, 100, 10, 10);
  MaoPlayer = true;
  // Her lead: mood 1 against a player who stood pat is a pass.
  vb::ScriptRnd({Humor(1), L, L});
  CmdAcabei_Click(1);
  EXPECT_EQ(Fala(true), "Vai!,|Aposta, se quiser");
  EXPECT_FALSE(MaoPlayer);
  ASSERT_EQ(static_cast<int>(Fase), 30);
  ASSERT_TRUE(F().FraApostaPlayer.Visible);

  // His pass; asked again, mood 0 bets 20 to 49: 25.
  vb::ScriptRnd({L, Humor(0), Faixa(20, 49, 25), L, L});
  const auto t0 = host->Now();
  EXPECT_TRUE(Click("CmdAcabei", 0));
  EXPECT_EQ(vb::ScriptedRndLeft(), 0u);
  EXPECT_EQ(ApostaPoker, 25);
  EXPECT_EQ(static_cast<int>(MesaApostas), 35);
  EXPECT_EQ(FichasPoker, 75);
  EXPECT_TRUE(MaoPlayer);
  EXPECT_EQ(Fala(true), "Vou AAAumentar |essa, amor mais 25 Fichas");
  EXPECT_EQ(Fala(false), "Vai!,|Cubra aposta 25 Fichas");
  EXPECT_EQ(Desde(t0), 1500);
  EXPECT_EQ(static_cast<int>(Fase), 30);  // his stake of this round is still 0
  EXPECT_TRUE(F().FraApostaPlayer.Visible);

  // He covers: the showdown opens.
  EXPECT_TRUE(Click("CmdPago"));
  EXPECT_EQ(static_cast<int>(Fase), 40);
  EXPECT_TRUE(F().FraConfrontarJogos.Visible);
}

// A double pass leaves every chip of the hand in the centre for the next hand; in a replayed tie
// the next hand is again a replay, with no ante.
TEST_F(FinalRound, DoublePassMovesTheWholeTableToTheCentre) {
  struct Row {
    const char* name;
    int apostas, pote, pingo;
    bool empate;
    int mood;  // a pass, by the row of her table that this table reads
  };
  const Row rows[] = {
      {"opening chips on the table", 10, 10, 1, false, 1},
      {"nothing but the ante", 0, 0, 3, false, 0},
      {"a replayed tie", 10, 10, 21, true, 1},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    Fresh();
    Mesa(100, 100, r.apostas, r.pote, r.pingo);
    JogoEmpatado = r.empate;
    EfeitosOn = true;
    MaoPlayer = false;
    PrepararPlayer();
    const int total = Total();
    const int mesa = r.apostas + r.pote + r.pingo;
    vb::ScriptRnd({L, Humor(r.mood), L});  // his pass; asked again, she passes too
    const auto t0 = host->Now();
    EXPECT_TRUE(Click("CmdAcabei", 0));
    EXPECT_EQ(vb::ScriptedRndLeft(), 0u);
    EXPECT_EQ(Fala(true), "|Amoor, Passo...");
    EXPECT_EQ(static_cast<int>(Fase), 50);
    EXPECT_EQ(Desde(t0), 3000);
    EXPECT_EQ(static_cast<int>(MesaPingo), mesa);
    EXPECT_EQ(MesaPote, 0);
    EXPECT_EQ(static_cast<int>(MesaApostas), 0);
    EXPECT_EQ(Visiveis(F().PictureCoin), mesa);
    EXPECT_EQ(Visiveis(F().PicturePokerCoin), 0);
    EXPECT_EQ(Visiveis(F().PicturePlayerCoin), 0);
    EXPECT_EQ(Total(), total);
    EXPECT_TRUE(Enviado("Play MUSICAS\\MELODIAS\\PASSOU.WAV"));
    EXPECT_EQ(Caption(F().LabelPokerMensagem),
              "Caraíba!, Fico Tudo na MESA, eueeh!\r\nNa Proxima Mão, Quem vai levar esse "
              "bolão!\r\nVamos Mais Uma ?");
    EXPECT_TRUE(F().FraMaisUma.Visible);
    EXPECT_EQ(JogoEmpatado, r.empate);

    // The next hand: the ante comes on top of the centre, except in a replay, which has none
    // and does not count.
    const int mao = NroMao;
    EXPECT_TRUE(Click("CmdMaisUma"));
    EXPECT_EQ(static_cast<int>(NroMao), r.empate ? mao : mao + 1);
    EXPECT_EQ(static_cast<int>(MesaPingo), r.empate ? mesa : mesa + 1);
  }
}

// The exchange ended with every chip already committed: the showdown, and she says nothing.
TEST_F(FinalRound, AllCommittedAfterTheExchangeGoesStraightToTheShowdown) {
  Mesa(100, 0, 30, 30);
  MaoPlayer = true;
  Fase = 20;
  PokerJaTrocou = true;
  PrepararTroca();
  vb::ScriptRnd({L});
  EXPECT_TRUE(Click("CmdAcabei", 1));
  EXPECT_EQ(vb::ScriptedRndLeft(), 1u);
  EXPECT_EQ(static_cast<int>(Fase), 40);
  EXPECT_TRUE(F().FraConfrontarJogos.Visible);
  EXPECT_FALSE(F().FraPedeCartasPlayer.Visible);
  EXPECT_EQ(Fala(true), "|");
  EXPECT_EQ(Fala(false), "|Não Peço Cartas...");  // the exchange's own words stay
}

// ---------------------------------------------------------------------------------------------
// Case A: the player is below her.

// A pass below her stake hands him the turn back once; the next empty turn gives the table to
// her. The toggle keeps the state the opening round left.
TEST_F(FinalRound, PassingBelowHerStakeTwiceGivesTheTableToHer) {
  for (bool deixado : {false, true}) {
    SCOPED_TRACE(deixado ? "the opening left the toggle on" : "toggle off");
    Fresh();
    Mesa(100, 100, 10, 10);
    PassouSemCobrir = deixado;
    ElaApostou(20);
    vb::ScriptRnd({L, L, L});
    EXPECT_TRUE(Click("CmdAcabei", 0));
    if (!deixado) {
      EXPECT_TRUE(PassouSemCobrir);
      EXPECT_EQ(Fala(true), "Bem, amor |eu vou apostar... mais 20 Fichas");
      EXPECT_EQ(Fala(false), "Vai!,|Cubra aposta 20 Fichas");
      EXPECT_EQ(static_cast<int>(Fase), 30);
      EXPECT_TRUE(F().FraApostaPlayer.Visible);
      EXPECT_EQ(vb::ScriptedRndLeft(), 1u);
      vb::ScriptRnd({L, L, L});
      EXPECT_TRUE(Click("CmdAcabei", 0));
    }
    EXPECT_FALSE(PassouSemCobrir);
    EXPECT_EQ(vb::ScriptedRndLeft(), 0u);
    EXPECT_EQ(static_cast<int>(Fase), 50);
    EXPECT_EQ(FichasPoker, 80 + 30 + 10 + 1);
    EXPECT_EQ(FichasPlayer, 100);
    EXPECT_EQ(MesaPote + MesaApostas + MesaPingo, 0);
    EXPECT_EQ(Fala(false), "Que pena |eu não tinha nada...");
    EXPECT_EQ(Caption(F().LabelPokerMensagem),
              "Pode deixar, Eu levo tudo por você, Obrigada!\r\nPeninha, Garotão...!\r\nOutra "
              "Vez ?");
  }
}

// He put chips in but stays below her: her words repeat what he owes, and his turn moves on to
// the second stake level.
TEST_F(FinalRound, BetBelowHersGetsTheTurnBack) {
  Mesa(100, 100, 10, 10);
  ElaApostou(30);
  EXPECT_TRUE(Chip(6));
  vb::ScriptRnd({L});
  EXPECT_TRUE(Click("CmdAcabei", 0));
  EXPECT_EQ(vb::ScriptedRndLeft(), 0u);
  EXPECT_EQ(Fala(true), "| 20 Fichas");  // her key has no lines: only the chips text
  EXPECT_EQ(Fala(false), "Vai!,|Cubra aposta 20 Fichas");
  EXPECT_TRUE(MaoPlayer);
  EXPECT_EQ(static_cast<int>(Fase), 31);
  EXPECT_TRUE(F().FraApostaPlayer.Visible);
  EXPECT_EQ(static_cast<int>(MesaApostas), 40);
  EXPECT_EQ(MesaPote, 20);
}

// ---------------------------------------------------------------------------------------------
// Case B: the player is above her.

// She passed first and he bets 10: she gives up, covers, raises, or covers with all she has and
// is short.
TEST_F(FinalRound, HerAnswerToHisFirstBet) {
  struct Row {
    const char* name;
    Hand5 dela;
    int poker;
    std::vector<float> draws;  // her mood, a band, then her lines
    int fase;
    std::int64_t espera;
    int apostas, pote, fichas_poker, fichas_player;
    bool mao_player;
    const char* fala_dela;
    const char* fala_dele;
  };
  const Row rows[] = {
      // Mood 1 against a small bet, nothing in hand: she gives up, and tells him what he won.
      {"gives up",
       kNada,
       100,
       {Humor(1), L},
       50,
       2000,
       0,
       0,
       100,
       90 + 31,
       false,
       "Nossa!, |Você e louco",
       "|Ganhou!, então vai levar as 31 Fichas"},
      {"covers",
       kNada,
       100,
       {Humor(0), L},
       40,
       1500,
       20,
       20,
       90,
       90,
       false,
       "Vou Pagar |essa, amor de  10 Fichas",
       "Aposto,|faço Aposta final de 10 Fichas"},
      // A flush, mood 0: his 10 plus 10 to 19.
      {"raises",
       kCor,
       100,
       {Humor(0), Faixa(10, 19, 15), L, L},
       31,
       1500,
       35,
       20,
       75,
       90,
       true,
       "Vou AAAumentar |essa, amor mais 15 Fichas",
       "Vai!,|Cubra aposta 15 Fichas"},
      // She covers with her last 5 chips; his surplus stays on the table.
      {"all in and short",
       kNada,
       5,
       {Humor(0), L},
       40,
       1500,
       15,
       20,
       0,
       90,
       false,
       "Vou Dar |Todinhas minhas 5 Fichas",
       "Aposto,|faço Aposta final de 10 Fichas"},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    Fresh();
    Mesa(r.poker, 100, 10, 10, 1, r.dela);
    EfeitosOn = true;
    MaoPlayer = false;
    PrepararPlayer();
    EXPECT_TRUE(Chip(6));
    const int total = Total();
    vb::ClearMciSent();
    vb::ScriptRnd(std::deque<float>(r.draws.begin(), r.draws.end()));
    const auto t0 = host->Now();
    EXPECT_TRUE(Click("CmdAcabei", 0));
    EXPECT_EQ(vb::ScriptedRndLeft(), 0u);
    EXPECT_EQ(static_cast<int>(Fase), r.fase);
    EXPECT_EQ(Desde(t0), r.espera);
    EXPECT_EQ(static_cast<int>(MesaApostas), r.apostas);
    EXPECT_EQ(MesaPote, r.pote);
    EXPECT_EQ(FichasPoker, r.fichas_poker);
    EXPECT_EQ(FichasPlayer, r.fichas_player);
    EXPECT_EQ(Total(), total);
    EXPECT_EQ(MaoPlayer, r.mao_player);
    EXPECT_EQ(Fala(true), r.fala_dela);
    EXPECT_EQ(Fala(false), r.fala_dele);
    EXPECT_EQ(F().FraConfrontarJogos.Visible, r.fase == 40);
    EXPECT_EQ(F().FraApostaPlayer.Visible, r.fase == 31);
    EXPECT_EQ(F().FraMaisUma.Visible, r.fase == 50);
    EXPECT_EQ(Enviado("Play MUSICAS\\MELODIAS\\WAIT.WAV"), r.fase == 50);
    EXPECT_EQ(Enviado("Play MUSICAS\\MELODIAS\\ABRE.WAV"), r.fase != 50);
    if (r.fase == 50) {
      EXPECT_EQ(Caption(F().LabelPokerMensagem), "Põe Ser, Mão Ruim, eueeh!\r\nVamos Mais Uma ?");
    }
  }
}

// She had bet and he raised: she covers the difference (not her first stake again), whatever her
// stake then is, or gives up.
TEST_F(FinalRound, HerAnswerToHisRaise) {
  struct Row {
    const char* name;
    Hand5 dele;
    int mood;
    bool cobre;
  };
  const Row rows[] = {
      {"he has one pair", kParCinco, 0, true},
      {"his trips against her nothing", kTrio, 0, false},
      {"his trips, but mood 6", kTrio, 6, true},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    Fresh();
    Mesa(100, 100, 10, 10, 1, kNada, r.dele);
    ElaApostou(10);
    EXPECT_TRUE(Chip(6));
    EXPECT_TRUE(Chip(6));
    EXPECT_TRUE(Chip(4));  // 25 against her 10
    vb::ScriptRnd({Humor(r.mood), L, L});
    const auto t0 = host->Now();
    EXPECT_TRUE(Click("CmdAcabei", 0));
    EXPECT_EQ(vb::ScriptedRndLeft(), 1u);
    EXPECT_FALSE(MaoPlayer);
    if (r.cobre) {
      EXPECT_EQ(Caption(F().LabelPlayerCaption(2)), "Aumento, Aposta com mais 15 Fichas");
      EXPECT_EQ(static_cast<int>(TotalApostaPoker), 15);
      EXPECT_EQ(static_cast<int>(MesaApostas), 35);
      EXPECT_EQ(MesaPote, 35);
      EXPECT_EQ(Fala(true), "Vou Pagar |essa, amor de  15 Fichas");
      EXPECT_EQ(static_cast<int>(Fase), 40);
      EXPECT_EQ(Desde(t0), 200 + 1000);
      EXPECT_TRUE(F().FraConfrontarJogos.Visible);
    } else {
      EXPECT_EQ(static_cast<int>(Fase), 50);
      EXPECT_EQ(Desde(t0), 200 + 2000);
      EXPECT_EQ(FichasPlayer, 75 + 35 + 20 + 1);
      EXPECT_EQ(Fala(false), "|Ganhou!, então vai levar as 56 Fichas");
    }
  }
}

}  // namespace
