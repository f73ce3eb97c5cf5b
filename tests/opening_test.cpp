// ZEVA's answer in the opening round, case by case: the table she finds, the question she asks
// her mind, the chips she moves, the lines on both balloons, the sounds, and where the round goes
// from there. Then the edges of the round and whole rounds played from a fresh start.
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "betting_fixture.h"

namespace {

enum class Fim { Player, Troca, Passam, PokerDesiste, PlayerDesiste };

struct Caso {
  const char* nome;
  Lance lance;
  std::deque<float> roteiro;  // the draws, in the order she makes them
  int humor;                  // the mood her mind drew; -1: she was not asked
  std::vector<Chave> falas;
  Sons sons;
  Fim fim;
  int depois = 0;            // MesaApostas after her move (Player and Troca ends)
  int fase = 0;              // the phase the player's turn reopens at (Player end)
  int nivel[3] = {0, 0, 0};  // her three levels after the answer
  const char* dela = kFracaDela;
  const char* dele = kFracaDele;
  bool passou = false;               // PassouSemCobrir on entry
  int mesa_dela = -1;                // her table chips after, when they differ from MesaApostas
  const char* jogo_velho = nullptr;  // her class as an earlier analysis left it
};

const Sons kPokerDesiste = Junta({Chocalho(), {kLaluz, kFechaTudo, Melodia("Play", "WAIT")}});
const Sons kPlayerDesiste = Junta({Chocalho(), {kLaluz, kFechaTudo, Melodia("Play", "GANHEI")}});

class OpeningRound : public BettingTest {
 protected:
  void Jogar(const Caso& c) {
    SCOPED_TRACE(c.nome);
    Fresh();
    Montar(c.lance, c.dela, c.dele);
    PassouSemCobrir = c.passou;
    if (c.jogo_velho) JogoPoker = c.jogo_velho;
    JogoEmpatado = true;  // only the double pass clears it here
    const int player_antes = FichasPlayer, poker_antes = FichasPoker;
    const int mesa = MesaPote + MesaApostas + MesaPingo, apostas_antes = MesaApostas;
    const float semente = Semente;
    ComSom();
    vb::ScriptRnd(c.roteiro);

    VezPokerAbertura();

    // Her mind: the mood it drew, the level it set, every draw used.
    EXPECT_EQ(Corte().feito ? Corte().semente : Semente,
              c.humor < 0 ? semente : static_cast<float>(c.humor));
    EXPECT_EQ(Corte().feito ? Corte().roteiro : vb::ScriptedRndLeft(), 0u);
    EXPECT_EQ(AberturaPoker, c.nivel[0]);
    EXPECT_EQ(AumentoAberturaPoker, c.nivel[1]);
    EXPECT_EQ(TotalAberturaPoker, c.nivel[2]);
    EXPECT_EQ(FalasAteCorte(), Ditos(c.falas));
    EXPECT_EQ(SonsAteCorte(), c.sons);

    EXPECT_EQ(JogoEmpatado, c.fim != Fim::Passam);
    const std::string fim = Caption(F().LabelPokerMensagem);
    switch (c.fim) {
      case Fim::Player:
        EXPECT_EQ(static_cast<int>(Fase), c.fase);
        EXPECT_TRUE(MaoPlayer);
        EXPECT_TRUE(F().FraApostaPlayer.Visible && F().FraApostaPlayer.Enabled);
        EXPECT_FALSE(F().FraMaisUma.Visible);
        break;
      case Fim::Troca:
        EXPECT_TRUE(Corte().feito);
        EXPECT_EQ(static_cast<int>(Fase), 20);
        EXPECT_EQ(PokerJaTrocou, MaoPlayer);
        EXPECT_TRUE(F().FraPedeCartasPlayer.Visible);
        EXPECT_FALSE(F().FraApostaPlayer.Visible);
        break;
      case Fim::Passam:
        EXPECT_EQ(static_cast<int>(Fase), 50);
        EXPECT_EQ(fim,
                  "Eueee!, As cartas estão carregadas ou Que?\r\nEssa Não Valeu!, Ninguém "
                  "Merece!\r\nUma Outra ?");
        EXPECT_EQ(MesaPingo, c.lance.pingo);  // the antes wait for the next hand
        EXPECT_EQ(FichasPlayer, player_antes);
        EXPECT_EQ(FichasPoker, poker_antes);
        break;
      case Fim::PokerDesiste:
        EXPECT_EQ(static_cast<int>(Fase), 50);
        EXPECT_EQ(fim, "Põe Ser, Mão Ruim, eueeh!\r\nVamos Mais Uma ?");
        EXPECT_EQ(FichasPlayer, player_antes + mesa);
        EXPECT_EQ(FichasPoker, poker_antes);
        break;
      case Fim::PlayerDesiste:
        EXPECT_EQ(static_cast<int>(Fase), 50);
        EXPECT_EQ(fim,
                  "Pode deixar, Eu levo tudo por você, Obrigada!\r\nPeninha, Garotão...!\r\nOutra "
                  "Vez ?");
        EXPECT_EQ(FichasPoker, poker_antes + mesa);
        EXPECT_EQ(FichasPlayer, player_antes);
        EXPECT_FALSE(F().FraApostaPlayer.Visible);
        EXPECT_FALSE(PassouSemCobrir);
        break;
    }
    if (c.fim == Fim::Player || c.fim == Fim::Troca) {
      EXPECT_EQ(MesaApostas, c.depois);
      EXPECT_EQ(FichasPoker, poker_antes - (c.depois - apostas_antes));
      EXPECT_EQ(NaMesa(true), c.mesa_dela < 0 ? c.depois : c.mesa_dela);
      EXPECT_FALSE(F().FraMaisUma.Visible);
    } else {
      EXPECT_EQ(MesaPote, 0);
      EXPECT_EQ(MesaApostas, 0);
      EXPECT_TRUE(F().FraMaisUma.Visible);
      EXPECT_EQ(F().ActiveControl(), &F().CmdMaisUma);
      EXPECT_FALSE(F().Timer1.Enabled);  // the music stopped for the end of the hand
      if (c.fim != Fim::Passam) {
        EXPECT_EQ(MesaPingo, 0);
        EXPECT_EQ(NaMesa(true) + NaMesa(false), 0);
      }
    }
  }
  void JogarTodos(const std::vector<Caso>& casos) {
    for (const Caso& c : casos) Jogar(c);
  }
};

// A: the player ended his turn short of her stake. She moves no chip.
TEST_F(OpeningRound, HisFirstEmptyTurnIsAWarningTheSecondASurrender) {
  JogarTodos({
      {.nome = "first empty turn: a warning",
       .lance = {.abertura_poker = 30},
       .roteiro = {kLinha, kLinha},
       .humor = -1,
       .falas = {{true, "EUABRI", 30}, {false, "CUBRIRAPOSTA", 30}},
       .sons = {},
       .fim = Fim::Player,
       .depois = 30,
       .fase = 10,
       .nivel = {30, 0, 0}},
      {.nome = "second empty turn: his surrender",
       .lance = {.abertura_poker = 30},
       .roteiro = {kLinha, kLinha, kLinha},
       .humor = -1,
       .falas = {{true, "EUABRI", 30},
                 {false, "CUBRIRAPOSTA", 30},
                 {true, "EUGANHEI"},
                 {false, "ELEDESISTIU"}},
       .sons = kPlayerDesiste,
       .fim = Fim::PlayerDesiste,
       .nivel = {30, 0, 0},
       .passou = true},
  });
}

// The player opened, she had nothing on the table: "CUBRE1".
TEST_F(OpeningRound, AgainstHisOpeningSheCoversRaisesOrGivesUp) {
  const Lance abriu{.abertura_player = 30, .mao = true};
  JogarTodos({
      {.nome = "his opening, cover",
       .lance = abriu,
       .roteiro = {kLinha, Humor(0), kLinha},
       .humor = 0,
       .falas = {{false, "ELEABRIU", 30}, {true, "EUCUBRIABRE", 30}},
       .sons = Junta({{kPausa, Melodia("Play", "ABRE")}, Cliques(30), {kLaluz, kRetoma}}),
       .fim = Fim::Troca,
       .depois = 30,
       .nivel = {30, 0, 0}},
      {.nome = "his opening, raise",
       .lance = abriu,
       .roteiro = {kLinha, Humor(7), Faixa(10, 49, 20), kLinha, kLinha},
       .humor = 7,
       .falas = {{false, "ELEABRIU", 30},
                 {true, "EUAUMENTEIABRE", 20},
                 {false, "CUBRIRAPOSTA", 20}},
       .sons = Junta({{kPausa, Melodia("Play", "ABRE")}, Cliques(50), {kLaluz, kRetoma}}),
       .fim = Fim::Player,
       .depois = 50,
       .fase = 11,
       .nivel = {50, 0, 0}},
      // Her raise is cut to the 20 chips she has: 20 against 30 reads as a cover, in words
      // naming the player's stake, and the table goes on unequal.
      {.nome = "his opening, short of chips",
       .lance = {.abertura_player = 30, .mao = true, .pilha_poker = {0, 0, 2, 0}},
       .roteiro = {kLinha, Humor(7), Faixa(10, 49, 20), kLinha},
       .humor = 7,
       .falas = {{false, "ELEABRIU", 30}, {true, "EUCUBRIABRE", 30}},
       .sons = Junta({{kPausa, Melodia("Play", "ABRE")}, Cliques(20), {kLaluz, kRetoma}}),
       .fim = Fim::Troca,
       .depois = 20,
       .nivel = {20, 0, 0}},
      {.nome = "his opening, give up",
       .lance = abriu,
       .roteiro = {kLinha, Humor(1), kLinha},
       .humor = 1,
       .falas = {{false, "ELEABRIU", 30}, {true, "EUDESISTI"}},
       .sons = kPokerDesiste,
       .fim = Fim::PokerDesiste},
      // Chips carried from an earlier hand read as his opening, though his stake is 0: she
      // answers 0 to a stake of 0, and 0 is giving up.
      {.nome = "his opening, against carried chips",
       .lance = {.extra_player = 30, .mao = true},
       .roteiro = {kLinha, Humor(4), kLinha},
       .humor = 4,
       .falas = {{false, "ELEABRIU", 30}, {true, "EUDESISTI"}},
       .sons = kPokerDesiste,
       .fim = Fim::PokerDesiste},
  });
  EXPECT_FALSE(MaoPlayer);  // the player's stake took the hand
}

// The player raised over her first level: "CUBRE2".
TEST_F(OpeningRound, AgainstHisRaiseSheCoversRaisesOrGivesUp) {
  const Lance aumentou{
      .fase = 11, .abertura_player = 30, .aumento_player = 20, .abertura_poker = 30};
  JogarTodos({
      // He laid 60 against her 40 in one go; her covered line names her own 20, not his 60.
      {.nome = "his raise, cover",
       .lance = {.abertura_player = 60, .abertura_poker = 40},
       .roteiro = {Humor(0), kLinha},
       .humor = 0,
       .falas = {{false, "ELEAUMENTOUABRE", 20}, {true, "EUCUBRIABRE", 20}},
       .sons = Junta({{kPausa, Melodia("Play", "APOSTA")},
                      Cliques(20),
                      {kLaluz, Melodia("Play", "APOSTA"), kRetoma}}),
       .fim = Fim::Troca,
       .depois = 60,
       .nivel = {40, 20, 0}},
      {.nome = "his raise, raise",
       .lance = aumentou,
       .roteiro = {Humor(3), Faixa(5, 49, 10), kLinha, kLinha},
       .humor = 3,
       .falas = {{false, "ELEAUMENTOUABRE", 20},
                 {true, "EUAUMENTEIABRE", 10},
                 {false, "CUBRIRAPOSTA", 10}},
       .sons = Junta({{kPausa, Melodia("Play", "APOSTA")},
                      Cliques(30),
                      {kLaluz, Melodia("Close", "APOSTA"), kRetoma}}),
       .fim = Fim::Player,
       .depois = 60,
       .fase = 12,
       .nivel = {30, 30, 0}},
      {.nome = "his raise, give up",
       .lance = aumentou,
       .roteiro = {Humor(1), kLinha},
       .humor = 1,
       .falas = {{false, "ELEAUMENTOUABRE", 20}, {true, "EUDESISTI"}},
       .sons = kPokerDesiste,
       .fim = Fim::PokerDesiste,
       .nivel = {30, 0, 0}},
  });
}

// Her third answer, "CUBRE3": she covers or gives up, never raises, and speaks first.
TEST_F(OpeningRound, AgainstHisSecondRaiseSheCoversOrGivesUp) {
  const Lance terceiro{.fase = 12,
                       .abertura_player = 30,
                       .aumento_player = 30,
                       .total_player = 40,
                       .abertura_poker = 30,
                       .aumento_poker = 30};
  JogarTodos({
      {.nome = "his second raise, cover",
       .lance = terceiro,
       .roteiro = {Humor(4), kLinha},
       .humor = 4,
       .falas = {{false, "ELEAUMENTOUABRE", 40}, {true, "EUCUBRIABRE", 40}},
       .sons = Junta({Cliques(40), {kLaluz, Melodia("Play", "APOSTA"), kRetoma}}),
       .fim = Fim::Troca,
       .depois = 100,
       .nivel = {30, 30, 40}},
      // His full house against her pair: every mood but 7 gives the excess over her levels,
      // which is 0 here, and 0 is surrender.
      {.nome = "his second raise, give up",
       .lance = terceiro,
       .roteiro = {Humor(0), kLinha},
       .humor = 0,
       .falas = {{false, "ELEAUMENTOUABRE", 40}, {true, "EUDESISTI"}},
       .sons = kPokerDesiste,
       .fim = Fim::PokerDesiste,
       .nivel = {30, 30, 0},
       .dele = kFullDele},
  });
  // She spoke her cover before her chips went down.
  Fresh();
  Montar(terceiro);
  Gravar();
  vb::ScriptRnd({Humor(4), kLinha});
  VezPokerAbertura();
  ASSERT_GE(FalasAteCorte().size(), 2u);
  EXPECT_EQ(FalasAteCorte()[1].apostas, 60);
}

// The player raised at phase 13; she is not asked. Her stake is his chips less hers.
TEST_F(OpeningRound, AgainstHisLastRaiseSheStakesHisChipsLessHersUnclamped) {
  const Lance quarto{.fase = 13,
                     .abertura_player = 100,
                     .aumento_player = 100,
                     .total_player = 100,
                     .abertura_poker = 100,
                     .aumento_poker = 100,
                     .total_poker = 100,
                     .extra_player = 100,
                     .pilha_player = {0, 10, 5, 0},   // 100
                     .pilha_poker = {10, 10, 9, 3}};  // 300
  JogarTodos({
      // 100 - 300 = -200: she takes 200 off her side of the table into her stack.
      {.nome = "his last raise, negative",
       .lance = quarto,
       .roteiro = {kLinha},
       .humor = -1,
       .falas = {{false, "ELEAUMENTOUABRE", 100}, {true, "EUCUBRIABRE", -200}},
       .sons = {kLaluz, Melodia("Play", "APOSTA"), kRetoma},
       .fim = Fim::Troca,
       .depois = 100,
       .nivel = {100, 100, -200},
       .mesa_dela = 300},
      // 300 - 100 = 200, clamped to the 100 she has: all in, the table unequal.
      {.nome = "his last raise, she runs short",
       .lance = {.fase = 13,
                 .abertura_player = 100,
                 .aumento_player = 100,
                 .total_player = 100,
                 .abertura_poker = 100,
                 .aumento_poker = 100,
                 .total_poker = 100,
                 .extra_player = 100,
                 .pilha_player = {10, 10, 9, 3},
                 .pilha_poker = {0, 0, 10, 0}},
       .roteiro = {kLinha},
       .humor = -1,
       .falas = {{false, "ELEAUMENTOUABRE", 100}, {true, "EUCUBRIABRE", 200}},
       .sons =
           Junta({Vezes(10, Efeito("FICHAS_10")), {kLaluz, Melodia("Play", "APOSTA"), kRetoma}}),
       .fim = Fim::Troca,
       .depois = 400,
       .nivel = {100, 100, 200}},
  });
  EXPECT_EQ(FichasPoker, 0);
  EXPECT_EQ(MesaPote, 400);  // no side pot, nothing goes back to the player
}

// Both on 0, the player passed. "CUBRE1" with his stake 0 is 0: she passes too.
TEST_F(OpeningRound, AfterHisPassSheOpensOrBothPass) {
  JogarTodos({
      {.nome = "his pass, both pass",
       .lance = {.mao = true},
       .roteiro = {kLinha, Humor(5), kLinha, kLinha},
       .humor = 5,
       .falas = {{false, "ELEPASSOU"}, {true, "EUPASSEI"}, {false, "ELEPASSOU"}},
       .sons = {kFechaTudo, Melodia("Play", "PASSOU")},
       .fim = Fim::Passam},
      // A stake that moved no chip (all in under the limit with a short stack) leaves the
      // table at 0: the round reads it as a pass, and she opens against it.
      {.nome = "his pass, she opens",
       .lance =
           {.abertura_player = 40, .extra_player = -40, .mao = true, .pilha_player = {0, 0, 4, 0}},
       .roteiro = {kLinha, Humor(0), kLinha, kLinha},
       .humor = 0,
       .falas = {{false, "ELEPASSOU"}, {true, "EUABRI", 40}, {false, "CUBRIRAPOSTA", 40}},
       .sons = Junta({{kPausa, Melodia("Play", "ABRE")}, Cliques(40), {kLaluz, kRetoma}}),
       .fim = Fim::Player,
       .depois = 40,
       .fase = 11,
       .nivel = {40, 0, 0}},
  });
}

// Level after her third level: straight to the exchange.
TEST_F(OpeningRound, HisCoverOfHerLastLevelGoesToTheExchange) {
  JogarTodos({{.nome = "his cover of her last level",
               .lance = {.fase = 12,
                         .abertura_player = 30,
                         .aumento_player = 20,
                         .total_player = 40,
                         .abertura_poker = 30,
                         .aumento_poker = 20,
                         .total_poker = 40,
                         .mao = true},
               .roteiro = {},
               .humor = -1,
               .falas = {{false, "ELECUBRIUABRE", 90}},
               .sons = {},
               .fim = Fim::Troca,
               .depois = 90,
               .nivel = {30, 20, 40}}});
  EXPECT_TRUE(PokerJaTrocou);  // she held the hand and drew first
}

// Level after her second level: "CUBRE3" on the analysis of her last question.
TEST_F(OpeningRound, HisCoverOfHerRaiseLetsHerRaiseOnceMoreWithoutAFreshLook) {
  const Lance raise{.fase = 11,
                    .abertura_player = 30,
                    .aumento_player = 20,
                    .abertura_poker = 30,
                    .aumento_poker = 20,
                    .mao = true};
  const Lance coberto{.fase = 12,
                      .abertura_player = 30,
                      .aumento_player = 20,
                      .total_player = 10,
                      .abertura_poker = 30,
                      .aumento_poker = 30,
                      .mao = true};
  const std::vector<Caso> casos = {
      // He covered her raise with a third level: 0 in every mood, she stays.
      {.nome = "his cover of her raise, stays",
       .lance = coberto,
       .roteiro = {Humor(2)},
       .humor = 2,
       .falas = {{false, "ELECUBRIUABRE", 20}},
       .sons = {Melodia("Play", "APOSTA"), kRetoma},
       .fim = Fim::Troca,
       .depois = 60,
       .nivel = {30, 30, 0}},
      // Covered within his second level: the same key twice, her stake then the difference.
      {.nome = "his cover of her raise, raise",
       .lance = raise,
       .roteiro = {Humor(2), Faixa(10, 49, 30), kLinha, kLinha, kLinha},
       .humor = 2,
       .falas = {{false, "ELECUBRIUABRE", 20},
                 {true, "EUAUMENTEIABRE", 30},
                 {true, "EUAUMENTEIABRE", 30},
                 {false, "CUBRIRAPOSTA", 30}},
       .sons = Junta({Cliques(30), {kLaluz, kRetoma}}),
       .fim = Fim::Player,
       .depois = 80,
       .fase = 12,
       .nivel = {30, 20, 30}},
      {.nome = "his cover of her raise, stays in a quiet mood",
       .lance = raise,
       .roteiro = {Humor(3)},
       .humor = 3,
       .falas = {{false, "ELECUBRIUABRE", 20}},
       .sons = {Melodia("Play", "APOSTA"), kRetoma},
       .fim = Fim::Troca,
       .depois = 50,
       .nivel = {30, 20, 0}},
  };
  for (Caso c : casos) {
    // A stale analysis, as her last question left it: she must not look again.
    c.jogo_velho = "ZZ";
    Jogar(c);
    if (c.fim == Fim::Player) {
      EXPECT_EQ(JogoPoker, "ZZ") << c.nome;
    } else {
      EXPECT_EQ(Corte().jogo_poker, "ZZ") << c.nome;
    }
  }
}

// Level at her first level (or a replayed tie): "CUBRE2"; 0 is surrender though she owes
// nothing.
TEST_F(OpeningRound, HisCoverOfHerOpeningLetsHerRaiseOrGiveUpThoughLevel) {
  JogarTodos({
      {.nome = "his cover of her opening, raise",
       .lance = {.abertura_player = 30, .abertura_poker = 30},
       .roteiro = {Humor(2), Faixa(10, 49, 20), kLinha, kLinha},
       .humor = 2,
       .falas = {{false, "ELECUBRIUABRE", 0},
                 {true, "EUAUMENTEIABRE", 20},
                 {false, "CUBRIRAPOSTA", 20}},
       .sons = Junta({{kPausa, Melodia("Play", "APOSTA")},
                      Cliques(20),
                      {kLaluz, Melodia("Close", "APOSTA"), kRetoma}}),
       .fim = Fim::Player,
       .depois = 50,
       .fase = 11,
       .nivel = {30, 20, 0}},
      {.nome = "his cover of her opening, give up",
       .lance = {.abertura_player = 30, .abertura_poker = 30},
       .roteiro = {Humor(3), kLinha},
       .humor = 3,
       .falas = {{false, "ELECUBRIUABRE", 0}, {true, "EUDESISTI"}},
       .sons = kPokerDesiste,
       .fim = Fim::PokerDesiste,
       .nivel = {30, 0, 0}},
      // Level with chips carried from an earlier hand: the line names her first level less his.
      {.nome = "his cover of her opening, with carried chips",
       .lance = {.abertura_player = 30, .abertura_poker = 40, .extra_player = 10},
       .roteiro = {Humor(0), kLinha},
       .humor = 0,
       .falas = {{false, "ELECUBRIUABRE", 10}, {true, "EUDESISTI"}},
       .sons = kPokerDesiste,
       .fim = Fim::PokerDesiste,
       .nivel = {40, 0, 0}},
  });
}

// The replay of a tied showdown: no ante, all stake levels 0, her chips level with his. She
// is a level table with the amount 0 and either raises or gives up; with nothing more to stake she
// goes straight to the exchange.
TEST_F(OpeningRound, TheReplayOfATieIsALevelTableSheRaisesOrGivesUp) {
  for (int humor : {3, 2}) {
    SCOPED_TRACE(humor);
    Fresh();
    Montar({.fase = 50, .extra_player = 100, .extra_poker = 100, .pingo = 3});
    JogoEmpatado = true;
    MostrarFim("Incrível", "empate");
    const int player = FichasPlayer, poker = FichasPoker, mao = NroMao;
    Gravar();
    Roteiro() = humor == 3 ? std::deque<float>{Humor(3), kLinha}
                           : std::deque<float>{Humor(2), Faixa(10, 49, 20), kLinha, kLinha};
    ASSERT_TRUE(Click("CmdMaisUma"));

    EXPECT_EQ(static_cast<int>(NroMao), mao);  // no ante was taken
    const std::vector<Falado> falas = Falas();
    ASSERT_GE(falas.size(), 2u);
    if (humor == 3) {
      EXPECT_EQ(std::vector<Falado>(falas.end() - 2, falas.end()),
                Ditos({{false, "ELECUBRIUABRE", 0}, {true, "EUDESISTI"}}));
      EXPECT_EQ(static_cast<int>(Fase), 50);
      EXPECT_EQ(FichasPlayer, player + 203);
      EXPECT_EQ(FichasPoker, poker);
      EXPECT_TRUE(JogoEmpatado);  // only a showdown with a winner or a double pass clears it
    } else {
      EXPECT_EQ(std::vector<Falado>(falas.end() - 3, falas.end()),
                Ditos({{false, "ELECUBRIUABRE", 0},
                       {true, "EUAUMENTEIABRE", 20},
                       {false, "CUBRIRAPOSTA", 20}}));
      EXPECT_EQ(static_cast<int>(Fase), 10);
      EXPECT_EQ(AumentoAberturaPoker, 20);
      EXPECT_EQ(MesaApostas, 120);
      EXPECT_EQ(MesaPingo, 3);
      EXPECT_TRUE(F().FraApostaPlayer.Visible);
    }
    EXPECT_EQ(vb::ScriptedRndLeft(), 0u);
  }

  // All in before the tie: nothing more to stake, so no word and straight to the exchange.
  Fresh();
  Montar({.fase = 50,
          .extra_player = 100,
          .extra_poker = 100,
          .pingo = 3,
          .pilha_player = {0, 0, 0, 0}});
  JogoEmpatado = true;
  MostrarFim("Incrível", "empate");
  Gravar();
  ASSERT_TRUE(Click("CmdMaisUma"));
  EXPECT_TRUE(Corte().feito);
  EXPECT_EQ(Corte().falas, 2u);  // the two balloons wiped by the new hand, nothing said
  EXPECT_EQ(MesaPote, 100);
  EXPECT_EQ(MesaApostas, 100);
}

// One empty turn against her stake in one hand, one more in a later hand: the second is taken as
// surrender at once, since nothing resets the warning.
TEST_F(OpeningRound, TheWarningOfAnEmptyTurnOutlivesTheHand) {
  Montar({.abertura_poker = 30, .mao = true});
  vb::ScriptRnd({kLinha, kLinha});
  ASSERT_TRUE(Click("CmdAcabei", 0));
  EXPECT_TRUE(PassouSemCobrir);
  EXPECT_EQ(static_cast<int>(Fase), 10);
  EXPECT_TRUE(F().FraApostaPlayer.Visible);
  EXPECT_EQ(Linha2(true), Ditos({{true, "EUABRI", 30}})[0].linha2);

  // He covers, then walks away in the exchange; the next hand is dealt.
  ASSERT_TRUE(Click("CmdPago"));
  ASSERT_EQ(static_cast<int>(Fase), 20);
  ASSERT_TRUE(Click("CmdSair", 1));
  ASSERT_TRUE(Click("CmdMaisUma"));
  ASSERT_EQ(static_cast<int>(NroMao), 3);
  ASSERT_TRUE(PassouSemCobrir);

  // Later, she stakes and he ends his turn empty once more.
  Montar({.abertura_poker = 40, .mao = true});
  F().FraApostaPlayer.Visible = true;
  F().FraApostaPlayer.Enabled = true;
  const int poker = FichasPoker;
  Gravar();
  vb::ScriptRnd({kLinha, kLinha, kLinha});
  ASSERT_TRUE(Click("CmdAcabei", 0));
  EXPECT_EQ(Falas(), Ditos({{true, "EUABRI", 40},
                            {false, "CUBRIRAPOSTA", 40},
                            {true, "EUGANHEI"},
                            {false, "ELEDESISTIU"}}));
  EXPECT_FALSE(PassouSemCobrir);
  EXPECT_EQ(static_cast<int>(Fase), 50);
  EXPECT_EQ(FichasPoker, poker + 40 + 2);
}

// Whole opening rounds from a fresh start: the generator state is found by trying states until
// the first hand takes the wanted road, and the round is then checked where it ended.
class WholeOpeningRound : public BettingTest {
 protected:
  // The settings of every fresh start, applied as the menu would.
  void (*ajustes)() = nullptr;
  void Watch() override {
    BettingTest::Watch();
    g_ajustes_iniciais = ajustes;
  }
  // Tries generator states from 1 until `jogada` (played on a fresh start) says yes; the table
  // is left as that play ended.
  std::uint64_t Semear(const std::function<bool()>& jogada) {
    for (std::uint64_t s = 1; s <= 500; ++s) {
      Fresh(s);
      Gravar();
      IniciarJogo();
      if (jogada()) {
        RecordProperty("estado", std::to_string(s));
        return s;
      }
    }
    ADD_FAILURE() << "no generator state gives this round";
    return 0;
  }
  // Lays n chips by clicks on the coin buttons, the largest first.
  void Apostar(int n) {
    const int antes = MesaPote;
    for (int i = 3; i >= 0; --i) {
      const Denominacao& d = kDenominacoes[i];
      while (n >= d.valor && Contagem(false, d) > 0) {
        ASSERT_TRUE(Chip(d.botao));
        n -= d.valor;
      }
    }
    ASSERT_EQ(n, 0) << "stake laid: " << MesaPote - antes;
  }
  // The last speech of a side.
  Falado Ultima(bool poker) {
    for (auto it = Falas().rbegin(); it != Falas().rend(); ++it)
      if (it->poker == poker) return *it;
    return {};
  }
};

// She opens; he ends his turn with nothing, and is warned; then he covers.
TEST_F(WholeOpeningRound, HerOpeningAndThePlayersPass) {
  int x = 0;
  const auto s = Semear([&] {
    x = MesaApostas;
    return x > 0 && Click("CmdAcabei", 0);
  });
  SCOPED_TRACE(s);
  EXPECT_EQ(static_cast<int>(Fase), 10);
  EXPECT_TRUE(MaoPlayer);
  EXPECT_TRUE(PassouSemCobrir);
  EXPECT_TRUE(F().FraApostaPlayer.Visible);
  EXPECT_EQ(MesaApostas, x);
  EXPECT_EQ(MesaPote, 0);
  EXPECT_EQ(FichasPlayer, 990);
  EXPECT_TRUE(DaChave(Ultima(true), {true, "EUABRI", x})) << Ultima(true);
  EXPECT_TRUE(DaChave(Ultima(false), {false, "CUBRIRAPOSTA", x})) << Ultima(false);

  ASSERT_TRUE(Click("CmdPago"));
  EXPECT_EQ(static_cast<int>(Fase), 20);
  EXPECT_EQ(MesaPote, x);
  EXPECT_EQ(AberturaPlayer, x);
  EXPECT_TRUE(PokerJaTrocou);
  EXPECT_TRUE(F().FraPedeCartasPlayer.Visible);
}

// She passes; he passes: nobody plays the hand, no chip moves, and the ante waits for the next
// hand, where his ante joins it.
TEST_F(WholeOpeningRound, HerPassAndThePlayersPassVoidTheHand) {
  const auto s = Semear([&] { return MesaApostas == 0 && Click("CmdAcabei", 0); });
  SCOPED_TRACE(s);
  EXPECT_EQ(static_cast<int>(Fase), 50);
  EXPECT_EQ(MesaPingo, 1);
  EXPECT_EQ(FichasPlayer, 990);
  EXPECT_EQ(FichasPoker, 989);
  EXPECT_FALSE(JogoEmpatado);
  EXPECT_TRUE(DaChave(Ultima(true), {true, "EUPASSEI"})) << Ultima(true);
  EXPECT_TRUE(DaChave(Ultima(false), {false, "ELEPASSOU"})) << Ultima(false);
  ASSERT_TRUE(Click("CmdMaisUma"));
  EXPECT_EQ(MesaPingo, 2);
  EXPECT_EQ(FichasPlayer, 989);
  EXPECT_EQ(FichasPoker, 989);
}

}  // namespace
