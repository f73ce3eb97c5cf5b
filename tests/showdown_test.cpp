// The showdown: both hands named on the table, her cards shown when she is willing, the table to
// the winner or left for the replay of a tie, and the end of the game when a side is out of chips.
// Also the two other dead ends of a side with no chips: the ante of the last chip, and a stack
// with chips but no ones.
#include <algorithm>
#include <array>
#include <deque>
#include <string>

#include "betting/betting.h"
#include "chips/chips.h"
#include "core/deck.h"
#include "core/hand_cycle.h"
#include "opponent/leyendas.h"
#include "platform/rnd.h"
#include "platform/runtime.h"
#include "platform/settings.h"
#include "table_fixture.h"

namespace {

constexpr Hand5 kNadaAs = {"AC", "JD", "9P", "7T", "3C"};    // nothing, ace high
constexpr Hand5 kNadaRei = {"KD", "QC", "8P", "6T", "2D"};   // nothing, king high
constexpr Hand5 kParCinco = {"5C", "5D", "QP", "8T", "2C"};  // a pair of fives
constexpr Hand5 kParRei = {"KC", "KP", "9D", "4T", "3D"};    // a pair of kings
constexpr Hand5 kParRei2 = {"KD", "KT", "JC", "7P", "6D"};   // the other pair of kings
constexpr Hand5 kTrio = {"8C", "8D", "8P", "KT", "2D"};      // three eights
constexpr Hand5 kCorCopas = {"AC", "JC", "9C", "6C", "4C"};  // a flush, ace high
constexpr Hand5 kCorOuros = {"AD", "QD", "8D", "5D", "3D"};  // another, ace high

class Showdown : public MesaMontada {
 protected:
  // A hand that reached the showdown: the stakes on the table as chips, both hands dealt, her
  // cards face down, the showdown frame up.
  void Mesa(int poker, int player, int apostas, int pote, int pingo, const Hand5& dela,
            const Hand5& dele) {
    Dispor(poker, player, apostas, pote, pingo, dela, dele);
    for (int i = 1; i <= 5; ++i) F().ToolbarPoker.Button(2 * i).SetImage("FRENTE");
    EntrarConfronto();
    vb::ClearMciSent();
  }

  bool CartasDelaVisiveis() {
    for (int i = 1; i <= 5; ++i)
      if (F().ToolbarPoker.Button(2 * i).Image() != CartasPoker[i]) return false;
    return true;
  }
  int Enviados(const std::string& command) {
    const auto& sent = vb::MciSent();
    return static_cast<int>(std::count(sent.begin(), sent.end(), command));
  }
};

constexpr const char* kMelodia = "Play MUSICAS\\MELODIAS\\";
constexpr const char* kCartaShow = "Play MUSICAS\\EFEITOS\\CARTASHOW.WAV";

// Every column of the outcome: the speeches, the names and their suffixes, her cards, the table,
// the melody and the message.
TEST_F(Showdown, OutcomeOfEachComparison) {
  enum Vence { kEla, kEle, kEmpate };
  struct Row {
    const char* name;
    Hand5 dela, dele;
    bool mao_player;  // she holds the hand
    float sorteio;    // the draw over her hand of nothing; < 0: none is made
    Vence vence;
    const char* nome_dela;
    const char* nome_dele;
    bool mostra;
  };
  const Row rows[] = {
      {"she wins with another class", kTrio, kParCinco, true, -1, kEla, "TRIO", "Par", true},
      {"she wins, both a pair", kParRei, kParCinco, false, -1, kEla, "Par MAIOR", "Par", true},
      {"she wins, both nothing", kNadaAs, kNadaRei, true, -1, kEla, "Nada valor MAIOR", "Nada",
       true},
      {"he wins with another class", kParCinco, kTrio, true, -1, kEle, "Par", "TRIO", true},
      {"he wins, both a pair", kParCinco, kParRei, true, -1, kEle, "Par", "Par MAIOR", true},
      {"he wins, both nothing, she shows", kNadaRei, kNadaAs, true, 0.5f / 9, kEle, "Nada",
       "Nada valor MAIOR", true},
      {"he wins, her nothing kept hidden", kNadaRei, kParCinco, true, 3.5f / 9, kEle, "Nada", "Par",
       false},
      {"he wins, she did not hold the hand", kParCinco, kTrio, false, -1, kEle, "Par", "TRIO",
       false},
      {"he wins over nothing, she did not hold the hand", kNadaRei, kParCinco, false, 0.5f / 9,
       kEle, "Nada", "Par", false},
      {"a pair of kings each, other side cards", kParRei, kParRei2, true, -1, kEmpate, "Par IGUAIS",
       "Par IGUAIS", true},
      {"a flush each, the same top card", kCorCopas, kCorOuros, false, -1, kEmpate, "Côr IGUAIS",
       "Côr IGUAIS", true},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    Fresh();
    Mesa(100, 100, 20, 20, 1, r.dela, r.dele);
    MaoPlayer = r.mao_player;
    EfeitosOn = MusicaOn = true;
    Trilha = 2;
    vb::ScriptRnd(r.sorteio < 0 ? std::deque<float>{} : std::deque<float>{r.sorteio});
    const auto t0 = host->Now();
    EXPECT_TRUE(Click("CmdConfrontar"));
    EXPECT_EQ(vb::ScriptedRndLeft(), 0u);
    EXPECT_EQ(host->Now() - t0, 4000);
    EXPECT_EQ(static_cast<int>(Fase), 50);
    EXPECT_EQ(JogoEmpatado, r.vence == kEmpate);

    // The speeches come first, so the names stand on the first lines of the two balloons.
    EXPECT_EQ(Caption(F().LabelPokerCaption(1)), r.nome_dela);
    EXPECT_EQ(Caption(F().LabelPlayerCaption(1)), r.nome_dele);
    const char* empate = "Incrível...!!! Temos o mesmo jogo Então, o Pote fica na mesa...!";
    const char* fala_dela[] = {"Obrigada! Eu amo você, GANHEIII,  41 Fichas",
                               "Parabéns! Você GANHOU de min, ", empate};
    const char* fala_dele[] = {"Peninha, Ammor!, Você perdeu dessa vez",
                               "Ganhou!, então vai levar as 41 Fichas", empate};
    EXPECT_EQ(Caption(F().LabelPokerCaption(2)), fala_dela[r.vence]);
    EXPECT_EQ(Caption(F().LabelPlayerCaption(2)), fala_dele[r.vence]);

    EXPECT_EQ(CartasDelaVisiveis(), r.mostra);
    EXPECT_EQ(Enviados(kCartaShow), r.mostra ? 5 : 0);
    EXPECT_EQ(MaoPlayer, r.mao_player && r.mostra);

    // The table: to the winner, or left as it lies for the replay.
    const int mesa = r.vence == kEmpate ? 41 : 0;
    EXPECT_EQ(MesaPote + MesaApostas + MesaPingo, mesa);
    EXPECT_EQ(FichasPoker, r.vence == kEla ? 141 : 100);
    EXPECT_EQ(FichasPlayer, r.vence == kEle ? 141 : 100);

    // The track closes under the melody; both wins play "GANHEI", and "PERDI" never.
    const std::string melodia =
        std::string(kMelodia) + (r.vence == kEmpate ? "PASSOU.WAV" : "GANHEI.WAV");
    const auto& sent = vb::MciSent();
    const auto at = std::find(sent.begin(), sent.end(), melodia);
    ASSERT_NE(at, sent.end());
    ASSERT_NE(at, sent.begin());
    EXPECT_EQ(*(at - 1), "Close MUSICAS\\TRILHAS\\INGAME2.WMA");
    EXPECT_EQ(Enviados(std::string(kMelodia) + "PERDI.WAV"), 0);
    EXPECT_EQ(Enviados("Play MUSICAS\\MELODIAS\\PERDI.MP3"), 0);

    const char* mensagem[] = {
        "Eu te Ganhei...Siiiiim!\r\nQue Peninha, Meu Garotão...!\r\nOutra Vez ?",
        "Parabéns, Você Ganhou...\r\nAté que chegou finalmente tua vez de ganhar!\r\nContinuamos ?",
        ("Casquinhas!, Fico Tudo na MESA, eueeh!\r\nNa Proxima Mão, Quem vai levar esse "
         "bolão!\r\nVamos Mais Uma ?")};
    EXPECT_EQ(Caption(F().LabelPokerMensagem), mensagem[r.vence]);
    EXPECT_TRUE(F().FraMaisUma.Visible);
    EXPECT_TRUE(F().FraPokerMensagem.Visible);
    EXPECT_FALSE(F().FraConfrontarJogos.Visible);
    EXPECT_FALSE(F().FraApostaPlayer.Visible);
    EXPECT_FALSE(F().Timer1.Enabled);
  }
}

// Only a hand of nothing that loses is drawn over: 1, 3, 5 and 7 of nine keep it face down, and
// the hand stays taken from her.
TEST_F(Showdown, HerLosingNothingIsHiddenOnOddDraws) {
  for (int x = 0; x <= 8; ++x) {
    SCOPED_TRACE(x);
    Fresh();
    Mesa(100, 100, 20, 20, 1, kNadaRei, kParCinco);
    MaoPlayer = true;
    vb::ScriptRnd({(x + 0.5f) / 9});
    EXPECT_TRUE(Click("CmdConfrontar"));
    const bool oculta = x == 1 || x == 3 || x == 5 || x == 7;
    EXPECT_EQ(CartasDelaVisiveis(), !oculta);
    EXPECT_EQ(MaoPlayer, !oculta);
  }
}

// A side left with no chips by the showdown ends the game: the message stays up for seven beats
// of 750 ms with nothing to press, then the table unloads, which stops the music and keeps the
// seed for the next run.
TEST_F(Showdown, LastChipLostEndsTheGameAndKeepsTheSeed) {
  struct Row {
    const char* name;
    int poker, player;
    Hand5 dela, dele;
    const char* mensagem;
  };
  const Row rows[] = {
      {"he loses his last chip", 100, 0, kTrio, kParCinco,
       "Eu te Ganhei...Siiiiim!\r\nQue Peninha, Meu Garotão...!\r\nOutra Vez ?"},
      {"she loses her last chip", 0, 100, kParCinco, kTrio,
       "Parabéns, Você Ganhou...\r\nAté que chegou finalmente tua vez de ganhar!\r\nContinuamos "
       "?"},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    Fresh();
    Mesa(r.poker, r.player, 20, 20, 1, r.dela, r.dele);
    MaoPlayer = true;
    EfeitosOn = MusicaOn = true;
    ASSERT_EQ(vb::GetSetting("Trevim", "Ramdomize", "Seed"), "");
    bool acabou = false;
    // Two seconds into the seven beats, "Mais UMA" is already gone.
    host->QueueAt(host->Now() + 4000 + 2000, On("CmdMaisUma"));
    const auto t0 = host->Now();
    try {
      Click("CmdConfrontar");
      ADD_FAILURE() << "the game went on";
    } catch (const vb::ProgramEnded& e) {
      EXPECT_EQ(e.how, vb::EndHow::Unloaded);
      acabou = true;
    }
    EXPECT_TRUE(acabou);
    EXPECT_EQ(host->Now() - t0, 4000 + 7 * 750);
    ASSERT_EQ(host->refused.size(), 1u);  // the hidden "Mais UMA" refused the click
    EXPECT_EQ(static_cast<int>(Fase), 50);
    EXPECT_FALSE(F().FraMaisUma.Visible);
    EXPECT_EQ(Caption(F().LabelPokerMensagem), r.mensagem);
    EXPECT_NE(vb::GetSetting("Trevim", "Ramdomize", "Seed"), "");
    EXPECT_EQ(vb::MciSent().back(), "Close All");
  }
}

// A tie never ends the game, even with a side at no chips: the hand is replayed with the table
// as it lies, without an ante.
TEST_F(Showdown, TieWithASideOutOfChipsIsReplayed) {
  Mesa(100, 0, 20, 20, 1, kParRei, kParRei2);
  MaoPlayer = true;
  const auto t0 = host->Now();
  EXPECT_TRUE(Click("CmdConfrontar"));
  EXPECT_EQ(host->Now() - t0, 4000);
  EXPECT_TRUE(JogoEmpatado);
  EXPECT_EQ(static_cast<int>(Fase), 50);
  EXPECT_TRUE(F().FraMaisUma.Visible);
  const int mao = NroMao;
  EXPECT_TRUE(Click("CmdMaisUma"));  // an ante would end the program here
  EXPECT_EQ(static_cast<int>(NroMao), mao);
  EXPECT_EQ(static_cast<int>(MesaPingo), 1);
  EXPECT_EQ(MesaPote, 20);
  EXPECT_EQ(FichasPlayer, 0);
}

// The ante of his last chip: the hand is dealt, but with no chips he gets no turn, and the game
// waits at the first betting phase with nothing to press.
TEST_F(Showdown, AnteOfTheLastChipLeavesNothingToPress) {
  IniciarJogo();
  MoverFichas(true, 0, false);
  MoverFichas(false, 0, false);
  MesaApostas = 0;
  MesaPote = 0;
  MesaPingo = 0;
  Pilha(false, 1);
  NroMao = 2;  // the next hand is his to ante
  Fase = 50;
  MostrarFim("", "");
  EXPECT_TRUE(Click("CmdMaisUma"));
  EXPECT_EQ(FichasPlayer, 0);
  EXPECT_FALSE(MaoPlayer);
  EXPECT_EQ(static_cast<int>(Fase), 10);
  EXPECT_FALSE(F().FraApostaPlayer.Visible);
  EXPECT_FALSE(F().FraPedeCartasPlayer.Visible);
  EXPECT_FALSE(F().FraConfrontarJogos.Visible);
  EXPECT_FALSE(F().FraMaisUma.Visible);
  for (int i = 0; i <= 3; ++i) EXPECT_FALSE(F().PicFichasPlayer(i).Enabled) << i;
  EXPECT_FALSE(Click("CmdAcabei", 0));
  EXPECT_FALSE(Click("CmdPago"));
  EXPECT_FALSE(Click("CmdConfrontar"));
  EXPECT_FALSE(Click("CmdMaisUma"));
  EXPECT_FALSE(Click("PicFichasPlayer", 0));
  // The coin button of his last chip is still enabled over its empty pile: a press lays a
  // phantom chip on the table, stakes nothing, and leaves nothing at all to press.
  EXPECT_TRUE(Chip(2));
  EXPECT_TRUE(F().PicturePlayerCoin(0).Visible);
  EXPECT_EQ(MesaPote, 0);
  EXPECT_EQ(static_cast<int>(Fase), 10);
  for (int b = 2; b <= 8; b += 2) EXPECT_FALSE(Chip(b)) << b;
}

// The ante finds chips but no ones: the pile of ones is asked for the image of -1 chips, which
// does not exist.
TEST_F(Showdown, AnteWithoutOnesFaults) {
  IniciarJogo();
  MoverFichas(true, 0, false);
  MoverFichas(false, 0, false);
  MesaApostas = 0;
  MesaPote = 0;
  Pilha(false, 10, false);  // one chip of ten
  NroMao = 2;
  Fase = 50;
  MostrarFim("", "");
  EXPECT_EQ(ChavePilha(kUm, -1), "F01_-1");
  try {
    Click("CmdMaisUma");
    ADD_FAILURE() << "no fault";
  } catch (const vb::RuntimeError& e) {
    EXPECT_EQ(e.number(), 35601);
  }
  EXPECT_EQ(F().ToolbarPlayerCoins.Button(2).Image(), "F01_00");
}

}  // namespace
