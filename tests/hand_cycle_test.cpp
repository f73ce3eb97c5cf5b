// The hand cycle on the virtual clock: the second hand, the ways the game ends, the shared wait,
// and her first move of the final round.
#include "core/hand_cycle.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "core/cards.h"
#include "game_fixture.h"
#include "table/cards.h"

namespace {

// With this generator state she opens the first hand with 13 chips. Her first moves from a fresh
// start, both ways, are played line by line by the replays of the first hands.
constexpr std::uint64_t kEstadoAbre = 0;

class HandCycle : public GameTest {
 protected:
  void Comecar(std::uint64_t estado) {
    Fresh(estado);
    IniciarJogo();
  }
  std::string SementeGuardada() { return vb::GetSetting("Trevim", "Ramdomize", "Seed"); }
};

TEST_F(HandCycle, TheSecondHandIsThePlayersAnteAndFirstBlock) {
  Comecar(kEstadoAbre);
  ASSERT_TRUE(Click("CmdSair", 0));  // he gives up her opening
  ASSERT_EQ(static_cast<int>(Fase), 50);
  Falas().clear();
  const std::int64_t t0 = host->Now();
  ASSERT_TRUE(Click("CmdMaisUma"));

  EXPECT_EQ(Caption(F().LabelManoMesa), "mão 2");
  EXPECT_EQ(static_cast<int>(NroMao), 3);
  EXPECT_FALSE(MaoPlayer);
  EXPECT_EQ(FichasPlayer, 989);
  EXPECT_EQ(static_cast<int>(MesaPingo), 1);
  std::vector<std::string> bloco(Baralho.begin() + 1, Baralho.begin() + 6);
  std::sort(bloco.begin(), bloco.end(),
            [](const std::string& a, const std::string& b) { return CardTag(a) < CardTag(b); });
  EXPECT_EQ(std::vector<std::string>(CartasPlayer.begin() + 1, CartasPlayer.end()), bloco);
  for (int i = 1; i <= 5; ++i)
    EXPECT_EQ(F().ToolbarPlayer.Button(2 * i).ImageKey(), CartasPlayer[i]) << i;

  // Both balloons wiped, and the first thing said is his turn to open.
  const auto dele = FalasDe(false);
  ASSERT_EQ(dele.size(), 2u);
  EXPECT_EQ(dele[0].linha2, "");
  EXPECT_EQ(dele[1].nome, "Challenger");
  EXPECT_FALSE(dele[1].linha2.empty());
  ASSERT_EQ(FalasDe(true).size(), 1u);
  EXPECT_EQ(FalasDe(true)[0].linha2, "");

  EXPECT_EQ(static_cast<int>(Fase), 10);
  EXPECT_TRUE(F().FraApostaPlayer.Visible);
  EXPECT_FALSE(F().FraMaisUma.Visible);
  EXPECT_EQ(F().ActiveControl(), &F().PicFichasPlayer(0));
  EXPECT_EQ(host->Now() - t0, 3200 + 7500);  // no move of hers before his turn
}

// A side with no chips left at the next ante: the runtime's End, at once, with no unload.
TEST_F(HandCycle, TheAnteEndsTheProgramWhenASideHasNoChips) {
  for (bool sem_fichas_player : {true, false}) {
    SCOPED_TRACE(sem_fichas_player ? "player at 0" : "ZEVA at 0");
    Comecar(kEstadoAbre);
    ASSERT_TRUE(Click("CmdSair", 0));
    // Her stake stays out of it: CmdMaisUma would sweep it back into her stack.
    MesaApostas = 0;
    (sem_fichas_player ? FichasPlayer : FichasPoker) = 0;
    try {
      Click("CmdMaisUma");
      ADD_FAILURE() << "the game went on";
    } catch (const vb::ProgramEnded& e) {
      EXPECT_EQ(e.how, vb::EndHow::End);
    }
    EXPECT_TRUE(F().Loaded());         // no unload event ran
    EXPECT_EQ(SementeGuardada(), "");  // so no seed was written
    EXPECT_EQ(Caption(F().LabelManoMesa), "mão 1");
    EXPECT_EQ(static_cast<int>(NroMao), 2);
    EXPECT_FALSE(F().FraMaisUma.Visible);
  }
}

// The wait's counter is shared: a wait inside a nested handler ends the outer one with it.
TEST_F(HandCycle, ANestedWaitEndsTheOuterOne) {
  struct Caso {
    bool aninhada;
    std::int64_t dura;
  };
  for (const Caso& c : {Caso{false, 10000}, Caso{true, 2800}}) {
    SCOPED_TRACE(c.aninhada);
    Comecar(kEstadoAbre);
    std::int64_t fim_interna = -1;
    F().CmdPago.Click = [&] {
      Esperar(1.0f, 300);
      fim_interna = host->Now();
    };
    const std::int64_t t0 = host->Now();
    if (c.aninhada) host->QueueAt(t0 + 2500, On("CmdPago"));
    Esperar(10.0f, 1000);
    EXPECT_EQ(host->Now() - t0, c.dura);
    EXPECT_EQ(fim_interna, c.aninhada ? t0 + 2800 : -1);
    EXPECT_LT(ContaEspera, 1);
    EXPECT_FALSE(F().TimerEspera.Enabled);
    EXPECT_TRUE(host->refused.empty());
  }
}

// Her first move of the final round: a bet joins the chips she opened with, which are still on
// the table; a pass leaves them. Each mood is tried until she has done both.
TEST_F(HandCycle, HerFinalRoundMoveKeepsHerOpeningChips) {
  auto fichas_na_mesa = [&] {
    int n = 0;
    for (auto& [i, c] : F().PicturePokerCoin.items()) {
      if (!c->Visible) break;
      n += std::stoi(c->Tag.get());
    }
    return n;
  };
  std::set<bool> visto;
  for (int humor = 0; humor <= 8; ++humor) {
    SCOPED_TRACE(humor);
    Comecar(kEstadoAbre);
    ASSERT_EQ(fichas_na_mesa(), 13);
    Fase = 30;
    Falas().clear();
    vb::ScriptRnd({(humor + 0.5f) / 9});
    const std::int64_t t0 = host->Now();
    IniciarApostas();
    const bool aposta = ApostaPoker > 0;
    visto.insert(aposta);
    EXPECT_EQ(MaoPlayer, aposta);
    EXPECT_EQ(fichas_na_mesa(), 13 + ApostaPoker);
    EXPECT_EQ(static_cast<int>(MesaApostas), 13 + ApostaPoker);
    EXPECT_EQ(host->Now() - t0, aposta ? 1000 : 800);
    // After a bet she asks to be covered with no chips text.
    ASSERT_FALSE(FalasDe(true).empty());
    EXPECT_FALSE(FalasDe(true).back().linha2.ends_with("Fichas"));
    EXPECT_TRUE(F().FraApostaPlayer.Visible);
    EXPECT_EQ(static_cast<int>(Fase), 30);
  }
  EXPECT_EQ(visto.size(), 2u);
}

}  // namespace
