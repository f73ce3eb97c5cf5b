// The options behind the right-click menu, played as a player plays them: between hands, each
// dialog opened from its entry, pressed and closed with its close box.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "core/cards.h"
#include "core/game_state.h"
#include "platform/runtime.h"
#include "replay.h"
#include "session/about.h"
#include "session/dialogs.h"
#include "session/sel_fundos.h"
#include "session/trapassa.h"
#include "table/frm_principal.h"

namespace {

// A game at the end of its first hand (the player gave it up), ready for the menu.
class Options : public ::testing::Test {
 protected:
  void SetUp() override {
    StartAt(3);
    ASSERT_TRUE(Play("giveup"));
    ASSERT_EQ(static_cast<int>(Fase), 50);
  }
  void StartAt(std::uint64_t seed) {
    replay::Options options;
    options.seed = seed;
    session_.reset();  // one game at a time: the process has one table
    out_.str("");
    session_ = std::make_unique<replay::Session>(options, &out_);
    session_->Start();
  }
  bool Play(const std::string& line) { return session_->Play(line, ++line_); }
  // The next hand played to its end by giving it up.
  void NextHand() {
    ASSERT_TRUE(Play("more"));
    ASSERT_TRUE(Play("giveup"));
    ASSERT_EQ(static_cast<int>(Fase), 50);
  }
  std::string Caption(vb::Control& c) { return c.Caption.get(); }
  // The sound commands printed since the last call.
  std::vector<std::string> Sent() {
    std::vector<std::string> sent;
    std::istringstream lines(out_.str().substr(read_));
    read_ = out_.str().size();
    const std::string tag = "\"command\": \"";
    for (std::string l; std::getline(lines, l);) {
      const std::size_t at = l.find(tag);
      if (l.find("\"mci\"") == std::string::npos || at == std::string::npos) continue;
      std::string command = l.substr(at + tag.size());
      command = command.substr(0, command.rfind('"'));
      std::string plain;  // JSON's doubled backslashes back to one
      for (std::size_t i = 0; i < command.size(); ++i)
        plain += command[i] == '\\' ? command[++i] : command[i];
      sent.push_back(plain);
    }
    return sent;
  }
  std::ostringstream out_;
  std::size_t read_ = 0;
  std::unique_ptr<replay::Session> session_;
  int line_ = 0;
};

TEST_F(Options, EachCountingDialogStepsRoundItsRing) {
  struct Case {
    int presses, cartas;
    const char* ranks;
  };
  // From 52 down by four to 20, then 52 again.
  const Case deck[] = {{0, 52, "2 3 4 5 6 7 8 9 10 J Q K AS "},
                       {1, 48, "3 4 5 6 7 8 9 10 J Q K AS "},
                       {7, 24, "9 10 J Q K AS "},
                       {8, 20, "10 J Q K AS "},
                       {9, 52, "2 3 4 5 6 7 8 9 10 J Q K AS "}};
  for (const Case& c : deck) {
    NroCartas = 52;
    ASSERT_TRUE(Play("menu nrocartas " + std::to_string(c.presses)));
    EXPECT_EQ(NroCartas, c.cartas) << c.presses;
    EXPECT_EQ(Caption(Frm_NumerodeCartas().Label1), std::to_string(c.cartas));
    EXPECT_EQ(Caption(Frm_NumerodeCartas().Label2), c.ranks);
  }
  // The chips: 990, 330, 660, 990; each denomination a 66th of the stack.
  const std::pair<int, const char*> chips[] = {{330, "(5=1) (5=5) (5=10) (5=50)"},
                                               {660, "(10=1) (10=5) (10=10) (10=50)"},
                                               {990, "(15=1) (15=5) (15=10) (15=50)"}};
  for (const auto& [fichas, label] : chips) {
    ASSERT_TRUE(Play("menu nrofichas 1"));
    EXPECT_EQ(static_cast<int>(NroFichas), fichas);
    EXPECT_EQ(Caption(Frm_NumerodeFichas().Label2), label);
  }
  // The exchange limit: 4 at start, down to 0, then 5.
  for (const auto& [presses, troca] : {std::pair{4, 0}, {1, 5}, {6, 5}, {0, 5}}) {
    ASSERT_TRUE(Play("menu troca " + std::to_string(presses)));
    EXPECT_EQ(MaxTroca, troca) << presses;
    EXPECT_EQ(Caption(Frm_QuantasCartas().Label1), std::to_string(troca));
  }
}

TEST(ChipValue, ReadsOnlyAPlainDecimalNumber) {
  const std::pair<const char*, float> cases[] = {
      {"7,50", 7.5f},
      {"abc", 5.0f},
      {"", 5.0f},
      {"  ", 5.0f},
      {" 3 ", 3.0f},
      {"\t3\r\n", 3.0f},
      {"1,234.5", 5.0f},
      {"1,234.50", 5.0f},
      {"0,01", 0.01f},
      {"-2", -2.0f},
      {",5", 0.5f},
      {"5.", 5.0f},
      {"1e3", 5.0f},
      {"+4", 4.0f},
      {"&H10", 5.0f},
      {"R$ 2", 5.0f},
      {"1 2", 5.0f},
      {".", 5.0f},
      {"-", 5.0f},
      {"0.1", 0.1f},
      {"340282350000000000000000000000000000000", 3.4028235e38f}};
  for (const auto& [text, value] : cases) EXPECT_EQ(LerValorFicha(text), value) << text;
  // Beyond a Single's range: the runtime's overflow.
  for (const std::string& huge :
       {std::string("340282356779733661637539395458142568447"), "-1" + std::string(400, '0')}) {
    try {
      LerValorFicha(huge);
      ADD_FAILURE() << huge << " should overflow";
    } catch (const vb::RuntimeError& e) {
      EXPECT_EQ(e.number(), vb::err::kOverflow);
    }
  }
  EXPECT_EQ(LerValorFicha("0." + std::string(400, '0') + "1"), 0.0f);
}

TEST_F(Options, TheChipValueCountsOnlyInTheFirstHand) {
  ASSERT_TRUE(Play("menu vficha \"7,50\""));
  EXPECT_EQ(ValorFicha, 7.5f);
  EXPECT_EQ(Caption(Frm_Principal().LabelPlayerMoney), "$ " + vb::FormatMoney(FichasPlayer * 7.5));
  ASSERT_TRUE(Play("menu vficha \"9\""));
  NextHand();
  NextHand();  // the third hand: the dialog takes a value, the table goes back to 5
  ASSERT_TRUE(Play("menu vficha \"2\""));
  EXPECT_EQ(ValorFicha, 5.0f);
  EXPECT_EQ(Caption(Frm_Principal().LabelPlayerMoney), "$ " + vb::FormatMoney(FichasPlayer * 5.0));
}

TEST_F(Options, ChipsAreRebuiltOnlyInTheFirstHand) {
  ASSERT_TRUE(Play("menu nrofichas 1"));  // 330 each, at once
  EXPECT_EQ(FichasPlayer, 330);
  EXPECT_EQ(FichasPoker, 330);
  EXPECT_EQ(static_cast<int>(MesaPingo), 0);
  EXPECT_EQ(static_cast<int>(LimiteFichas), 150);  // the limit is not touched
  NextHand();
  const int player = FichasPlayer, poker = FichasPoker;
  ASSERT_TRUE(Play("menu nrofichas 1"));  // later, only the number changes
  EXPECT_EQ(static_cast<int>(NroFichas), 660);
  EXPECT_EQ(FichasPlayer, player);
  EXPECT_EQ(FichasPoker, poker);
  // "Nova" then deals 990 whatever was chosen.
  ASSERT_TRUE(Play("menu nova"));
  EXPECT_EQ(FichasPlayer, 990);
}

TEST_F(Options, NewGameKeepsTheTieTheHandCountAndTheBack) {
  JogoEmpatado = true;
  Dorso = 3;
  const int mao = NroMao;
  ASSERT_TRUE(Play("menu nova"));
  EXPECT_TRUE(JogoEmpatado);
  EXPECT_EQ(Dorso, 3);
  EXPECT_EQ(static_cast<int>(NroMao), mao);
  EXPECT_EQ(static_cast<int>(Fase), 50);
}

TEST_F(Options, NewGameSweepsChipsLeftOnTheTable) {
  StartAt(9);  // she passes; so does the player: the ante stays on the table
  ASSERT_TRUE(Play("click CmdAcabei 0"));
  ASSERT_EQ(static_cast<int>(Fase), 50);
  ASSERT_GT(static_cast<int>(MesaPingo), 0);
  ASSERT_TRUE(Play("menu nova"));
  EXPECT_EQ(static_cast<int>(MesaPingo), 0);
  EXPECT_EQ(FichasPlayer + FichasPoker, 2 * 990);
}

TEST_F(Options, MenuLinesFollowTheirGrammarAndTheTable) {
  for (const char* bad :
       {"menu", "menu nova now", "menu nrocartas", "menu nrocartas -1", "menu troca 1 2",
        "menu nome João", "menu nome \"x\" y", "menu nome \"x", "menu fundos 11", "menu creditos",
        "menu carregar", "menu salvar", "menu verbaralho", "state now"})
    EXPECT_FALSE(Play(bad)) << bad;
  ASSERT_TRUE(Play("more"));  // a hand on the table: no menu
  EXPECT_FALSE(Play("menu nova"));
  EXPECT_TRUE(Play("state"));
}

}  // namespace

namespace {

// The card backs, the cheat and the credits.
using Extras = Options;

TEST_F(Extras, TheChooserKeepsOneChoiceUntilUndoneAndDefaultsToTheFirstBack) {
  ASSERT_TRUE(Play("menu fundos 3 aplicar"));
  EXPECT_EQ(Dorso, 5);
  EXPECT_EQ(Frm_Principal().ImageListBarajas.PictureOf("FRENTE"),
            Frm_Principal().ImageListFundos.PictureOf(5));
  EXPECT_EQ(Frm_Principal().ImageListBarajas.PictureOf("DORSO"),
            Frm_Principal().ImageListFundos.PictureOf(6));
  ASSERT_TRUE(Play("menu fundos"));  // closed at once: the first design, not the one in force
  EXPECT_EQ(Dorso, 1);
  ASSERT_TRUE(Play("menu fundos 2 9 desfazer 9"));  // the second click waits for "D e s f a z e r"
  EXPECT_EQ(Dorso, 17);
  const auto& preview = Frm_SelFundos().ToolbarCartas(3);
  EXPECT_EQ(preview.Buttons()[1]->Image(), "0");  // never applied: the preview shows nothing
}

TEST_F(Extras, ApplyingWithNothingChosenIsTheStoresFault) {
  EXPECT_TRUE(Play("menu fundos aplicar"));
  EXPECT_EQ(session_->fault(), vb::err::kElementNotFound);
  EXPECT_FALSE(Play("state"));  // the game has ended
}

TEST_F(Extras, TheCheatOpensOnlyToTheWholeCode) {
  auto& f = Frm_Principal();
  ASSERT_TRUE(Play("menu trapassa \"OBaralhoLimpo\""));  // without its two blanks
  EXPECT_FALSE(f.MnuVerBaralho.Visible);
  EXPECT_EQ(Frm_Trapassa().Text1.Text.get(), "Eu acho que não");
  ASSERT_TRUE(Play("menu trapassa \"OBaralhoLimpo  \""));
  EXPECT_TRUE(f.MnuVerBaralho.Visible && f.MnuVerBaralho.Enabled && f.MnuVerCartas.Visible);
  ASSERT_TRUE(Play("menu verbaralho"));
  ASSERT_TRUE(Play("menu vercartas"));
  EXPECT_TRUE(VerBaralho && VerCartas);
  EXPECT_EQ(f.Height, 9210);  // the table grows for the deck
  // The right code again: the flags stay, the marks go.
  ASSERT_TRUE(Play("menu trapassa \"OBaralhoLimpo  \""));
  EXPECT_TRUE(VerBaralho && VerCartas);
  EXPECT_FALSE(f.MnuVerBaralho.Checked || f.MnuVerCartas.Checked);
  // Her cards show face up at the next deal.
  ASSERT_TRUE(Play("more"));
  EXPECT_EQ(f.ToolbarPoker.Button(2).ImageKey(), CartasPoker[1]);
  ASSERT_TRUE(Play("giveup"));
  // Any other text hides the entries and takes both cheats back.
  ASSERT_TRUE(Play("menu trapassa \"Eu Não Sei...\""));
  EXPECT_FALSE(f.MnuVerBaralho.Visible || f.MnuVerCartas.Visible);
  EXPECT_FALSE(VerBaralho || VerCartas);
  EXPECT_EQ(f.Height, 7650);
}

TEST_F(Extras, TheCreditsTuneNeedsEffectsAndMusicAndComesBackAfter310Seconds) {
  ASSERT_TRUE(Play("menu efeitos"));  // effects on, music off: the tracks stop, nothing plays
  Sent();
  ASSERT_TRUE(Play("menu creditos 1000"));
  EXPECT_EQ(Sent(), std::vector<std::string>{"Close All"});
  ASSERT_TRUE(Play("menu musica"));
  Sent();
  ASSERT_TRUE(Play("menu creditos 310100"));  // the 3101st tick plays the tune again
  const std::vector<std::string> want = {"Close All", "Play MUSICAS\\TRILHAS\\CREDITOS.WMA",
                                         "Play MUSICAS\\TRILHAS\\CREDITOS.WMA",
                                         "Close MUSICAS\\TRILHAS\\CREDITOS.WMA"};
  std::vector<std::string> credits;
  for (const std::string& c : Sent())
    if (c.find("CREDITOS") != std::string::npos || c == "Close All") credits.push_back(c);
  EXPECT_EQ(credits, want);
  EXPECT_EQ(Frm_About().lblVersion.Caption.get(), "Versão 2.0.0");
}

}  // namespace
