#include "core/hand_cycle.h"

#include "betting/betting.h"
#include "game_fixture.h"

namespace {

using HandCycle = GameTest;

TEST_F(HandCycle, FirstStartUpReachesThePlayersTurn) {
  IniciarJogo();
  EXPECT_EQ(Caption(F().LabelManoMesa), "mão 1");
  EXPECT_EQ(static_cast<int>(NroMao), 2);
  EXPECT_EQ(static_cast<int>(Fase) >= 10, true);
  EXPECT_TRUE(F().FraApostaPlayer.Visible);
  std::printf("t=%lld fase=%d poker=%d player=%d mesa=%d pote=%d apostas=%d abertura=%d\n",
              (long long)host->Now(), (int)Fase, FichasPoker, FichasPlayer, (int)MesaPingo,
              MesaPote, (int)MesaApostas, AberturaPoker);
  std::printf("%s | %s | %s\n", Caption(F().LabelPokerCaption(0)).c_str(),
              Caption(F().LabelPokerCaption(1)).c_str(), Caption(F().LabelPokerCaption(2)).c_str());
}

}  // namespace
