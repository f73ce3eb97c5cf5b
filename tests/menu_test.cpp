// The menu's switches between hands: the house rules, the limit, the sound, leaving.
#include "session/menu.h"

#include <algorithm>

#include "game_fixture.h"

namespace {

class Menu : public GameTest {
 protected:
  void SetUp() override {
    GameTest::SetUp();
    IniciarJogo();
    ASSERT_TRUE(Click("CmdSair", 0));  // give the first hand up: the menu works at Fase 50
    ASSERT_EQ(static_cast<int>(Fase), 50);
  }
  bool Choose(const std::string& entry) {
    return vb::Engine::Get().Deliver(On(entry, -1, vb::Input::Type::Menu));
  }
};

TEST_F(Menu, EffectsTurnTheSoundOnForTheNextHand) {
  ASSERT_TRUE(Choose("MnuEfeitos"));
  EXPECT_TRUE(EfeitosOn);
  vb::ClearMciSent();
  ASSERT_TRUE(Click("CmdMaisUma"));
  const auto& sent = vb::MciSent();
  ASSERT_FALSE(sent.empty());
  // She takes the table with its rattle, the tracks close, and the next shuffle plays its tune.
  EXPECT_EQ(sent.front(), "Play MUSICAS\\EFEITOS\\FICHAS.WAV");
  EXPECT_NE(std::find(sent.begin(), sent.end(), "Close All"), sent.end());
  EXPECT_NE(std::find(sent.begin(), sent.end(), "Play MUSICAS\\MELODIAS\\BARAJANDO1.WAV"),
            sent.end());
}

TEST_F(Menu, MusicOffStopsTheClockButNeverClosesTheTrack) {
  ASSERT_TRUE(Choose("MnuEfeitos"));
  ASSERT_TRUE(Choose("MnuMusica"));
  EXPECT_TRUE(MusicaOn);
  EXPECT_EQ(Trilha, 0);
  vb::ClearMciSent();
  ASSERT_TRUE(Choose("MnuMusica"));
  EXPECT_FALSE(MusicaOn);
  EXPECT_FALSE(F().Timer1.Enabled);
  EXPECT_TRUE(vb::MciSent().empty());
}

TEST_F(Menu, LeavingUnloadsAndKeepsTheSeed) {
  try {
    Choose("MnuSair");
    FAIL() << "the program should have ended";
  } catch (const vb::ProgramEnded& e) {
    EXPECT_EQ(e.how, vb::EndHow::Unloaded);
  }
  EXPECT_EQ(vb::GetSetting("Trevim", "Ramdomize", "Seed"), "0.6484358");
}

}  // namespace

namespace {

TEST_F(Menu, NewGameResetsChipsAndRulesButNotTheHandCount) {
  // ZEVA took the table of the first hand; a new game gives both sides their chips again.
  ASSERT_TRUE(Click("CmdMaisUma"));
  ASSERT_TRUE(Click("CmdSair", 0));
  ASSERT_TRUE(Choose("MnuLimite"));  // the limit off before the new game
  ASSERT_TRUE(Choose("MnuNova"));
  EXPECT_EQ(FichasPlayer, 990);
  EXPECT_EQ(FichasPoker, 990);
  EXPECT_EQ(MesaPote + MesaApostas + MesaPingo, 0);
  EXPECT_EQ(Caption(F().LabelPlayerFichas), "990 Fichas");
  EXPECT_TRUE(EfeitosOn);
  EXPECT_FALSE(TrioMataEscada);
  EXPECT_FALSE(F().MnuTrioXEscada.Checked);
  // The limit's mark shows on while the flag stays off, as a new game leaves them.
  EXPECT_TRUE(F().MnuLimite.Checked);
  EXPECT_FALSE(LimiteAbertura);
  EXPECT_EQ(static_cast<int>(LimiteFichas), 150);
  EXPECT_EQ(static_cast<int>(NroMao), 3);
  EXPECT_EQ(Caption(F().LabelManoMesa), "mão 2");
  EXPECT_EQ(Baralho[1], "AC");  // the deck back in list order
  EXPECT_EQ(Baralho[52], "2T");
  // The next hand is the third, held by ZEVA.
  ASSERT_TRUE(Click("CmdMaisUma"));
  EXPECT_EQ(Caption(F().LabelManoMesa), "mão 3");
}

}  // namespace
