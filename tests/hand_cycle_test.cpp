// The hand cycle on the virtual clock: the start-up up to the player's turn with both of her
// first moves, the second hand, the ways the game ends, and the shared wait.
#include "core/hand_cycle.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "core/cards.h"
#include "game_fixture.h"
#include "table/cards.h"
#include "table/frm_barajando.h"

namespace {

// Generator states of the first hand: with 0 she opens with 13 chips, with 9 she passes.
constexpr std::uint64_t kEstadoAbre = 0;
constexpr std::uint64_t kEstadoPassa = 9;

// What a side's balloon said, in order.
struct Fala3 {
  bool lado;
  std::string nome, linha1, linha2;
};
std::vector<Fala3> g_falas;
void GuardarFala(bool Lado) {
  auto& l = Lado ? Frm_Principal().LabelPokerCaption : Frm_Principal().LabelPlayerCaption;
  g_falas.push_back({Lado, l(0).Caption.get(), l(1).Caption.get(), l(2).Caption.get()});
}
std::vector<Fala3> FalasDe(bool lado) {
  std::vector<Fala3> r;
  for (const auto& f : g_falas)
    if (f.lado == lado) r.push_back(f);
  return r;
}

// The second lines each key can draw (only the first N of each key are ever spoken).
const std::set<std::string> kEuAbri = {
    "Abro o jogo, com",         "Desta vez, abro com",           "Eu vou começar, com",
    "vou iniciar mansinha, de", " se quiser jogar... vai valer", "Esse jogo vale"};
const std::set<std::string> kCubrirAposta = {
    "Cubra aposta", "Desta vez, e você que tem que cobrir!", "Esta Pronto?, então cubra!",
    "se você quiser... cubra"};
const std::set<std::string> kEuPassei = {"Amoor, Passo...", "Cedo a vez ao Cavalheiro", "",
                                         "Desculpa doce, não dá!"};
const std::set<std::string> kAbrirJogo = {"Abre o jogo", "Desta vez, e você",
                                          "Esta Pronto?, Você começa...", "se você quiser... abre"};

// Moments of the start-up: the shuffle dialog loading and unloading, the phase moving.
std::vector<std::pair<std::int64_t, std::string>> g_momentos;
void GuardarFase(const std::string& /*from*/, const std::string& to) {
  g_momentos.push_back({vb::Engine::Get().Now(), "fase " + to});
}

class HandCycle : public GameTest, public vb::Listener {
 protected:
  void SetUp() override {
    GameTest::SetUp();
    g_falas.clear();
    g_momentos.clear();
  }
  void Watch() override {
    g_depois_da_fala = GuardarFala;
    FaseVar::Observe(GuardarFase);
  }
  void Comecar(std::uint64_t estado) {
    Fresh(estado);
    vb::Engine::Get().AddListener(this);
    IniciarJogo();
  }
  // The state of the table as the shuffle of the first hand starts, right after the ante.
  void Changed(vb::Control& c, vb::Prop prop, int sub) override {
    if (prop != vb::Prop::Loaded || c.Name() != "FrmBarajando") return;
    g_momentos.push_back({host->Now(), sub ? "shuffle" : "shuffled"});
    if (sub && !ante.tomado) {
      ante = {true,      Caption(F().LabelManoMesa),  NroMao, MaoPlayer, FichasPoker, FichasPlayer,
              MesaPingo, Caption(F().LabelMesaFichas)};
    }
  }
  std::int64_t Momento(const std::string& o_que) {
    for (const auto& [t, m] : g_momentos)
      if (m == o_que) return t;
    return -1;
  }
  std::string SementeGuardada() { return vb::GetSetting("Trevim", "Ramdomize", "Seed"); }

  struct {
    bool tomado = false;
    std::string mao;
    int nro_mao = 0;
    bool mao_player = false;
    int poker = 0, player = 0, pingo = 0;
    std::string mesa;
  } ante;
};

TEST_F(HandCycle, TheFirstAnteIsHersAndSheHoldsTheHand) {
  Comecar(kEstadoAbre);
  ASSERT_TRUE(ante.tomado);
  EXPECT_EQ(ante.mao, "mão 1");
  EXPECT_EQ(ante.nro_mao, 2);
  EXPECT_TRUE(ante.mao_player);
  EXPECT_EQ(ante.poker, 989);
  EXPECT_EQ(ante.player, 990);
  EXPECT_EQ(ante.pingo, 1);
  EXPECT_EQ(ante.mesa, "1 Fichas");
  // She was dealt the first block.
  std::vector<std::string> bloco(Baralho.begin() + 1, Baralho.begin() + 6);
  std::vector<std::string> mao(CartasPoker.begin() + 1, CartasPoker.end());
  std::sort(bloco.begin(), bloco.end());
  std::sort(mao.begin(), mao.end());
  EXPECT_EQ(mao, bloco);
}

// Her first move, both ways, and the player's turn that follows it.
TEST_F(HandCycle, HerFirstMoveThenThePlayersTurn) {
  struct Caso {
    std::uint64_t estado;
    bool abre;
    std::int64_t vez_do_player;  // 3.2 s shuffle + 7.5 s cards + her move
  };
  for (const Caso& c : {Caso{kEstadoAbre, true, 3200 + 7500 + 1500},
                        Caso{kEstadoPassa, false, 3200 + 7500 + 800}}) {
    SCOPED_TRACE(c.abre ? "she opens" : "she passes");
    g_falas.clear();
    g_momentos.clear();
    Comecar(c.estado);

    // The clock, effects off: shuffle, cards laid one by one, her move.
    EXPECT_EQ(Momento("shuffle"), 0);
    EXPECT_EQ(Momento("shuffled"), 3200);
    EXPECT_EQ(Momento("fase 10"), 3200 + 7500);
    EXPECT_EQ(host->Now(), c.vez_do_player);

    EXPECT_EQ(static_cast<int>(Fase), 10);
    EXPECT_EQ(Fase.Text(), "10");
    EXPECT_EQ(MaoPlayer, c.abre);
    const auto dela = FalasDe(true);
    ASSERT_EQ(dela.size(), 3u);  // wiped, then her two lines
    EXPECT_EQ(dela[0].linha2, "");
    for (const auto& f : dela) EXPECT_EQ(f.nome, "Poker (ZEVA)");
    if (c.abre) {
      ASSERT_GT(AberturaPoker, 0);
      const std::string fichas = std::string(" ").append(std::to_string(AberturaPoker)) + " Fichas";
      EXPECT_EQ(FichasPoker, 989 - AberturaPoker);
      EXPECT_EQ(static_cast<int>(MesaApostas), AberturaPoker);
      EXPECT_EQ(Caption(F().LabelPokerFichas), std::to_string(989 - AberturaPoker) + " Fichas");
      EXPECT_EQ(Caption(F().LabelPokerMesaTotalCoims), std::to_string(AberturaPoker) + " fs.");
      EXPECT_EQ(Caption(F().LabelMesaFichas), std::to_string(AberturaPoker + 1) + " Fichas");
      EXPECT_TRUE(F().PicturePokerCoin(0).Visible);
      // "EUABRI" first, then "CUBRIRAPOSTA" over it, both with the chips text.
      ASSERT_TRUE(dela[1].linha2.ends_with(fichas)) << dela[1].linha2;
      EXPECT_TRUE(kEuAbri.count(dela[1].linha2.substr(0, dela[1].linha2.size() - fichas.size())))
          << dela[1].linha2;
      ASSERT_TRUE(dela[2].linha2.ends_with(fichas)) << dela[2].linha2;
      EXPECT_TRUE(
          kCubrirAposta.count(dela[2].linha2.substr(0, dela[2].linha2.size() - fichas.size())))
          << dela[2].linha2;
      EXPECT_EQ(Caption(F().LabelPokerCaption(2)), dela[2].linha2);
    } else {
      EXPECT_EQ(AberturaPoker, 0);
      EXPECT_EQ(FichasPoker, 989);
      EXPECT_EQ(static_cast<int>(MesaApostas), 0);
      EXPECT_FALSE(F().PicturePokerCoin(0).Visible);
      EXPECT_TRUE(kEuPassei.count(dela[1].linha2)) << dela[1].linha2;
      EXPECT_TRUE(kAbrirJogo.count(dela[2].linha2)) << dela[2].linha2;
      EXPECT_EQ(Caption(F().LabelPokerCaption(2)), dela[2].linha2);
    }

    // The betting frame, open with its captions, the chip places live, focus on the first.
    EXPECT_TRUE(F().FraApostaPlayer.Visible);
    EXPECT_TRUE(F().FraApostaPlayer.Enabled);
    EXPECT_FALSE(F().FraPedeCartasPlayer.Visible);
    EXPECT_EQ(Caption(F().CmdPago), "&P A G O");
    EXPECT_EQ(Caption(F().CmdTudo), "Aposto &TUDO");
    EXPECT_EQ(Caption(F().CmdDesfazer(0)), "&DesFazer");
    EXPECT_EQ(Caption(F().CmdSair(0)), "&EMBORA...");
    EXPECT_EQ(Caption(F().CmdAcabei(0)), "&Acabei");
    for (int i = 0; i <= 3; ++i) {
      EXPECT_TRUE(F().PicFichasPlayer(i).Enabled) << i;
      EXPECT_TRUE(F().ToolbarPlayerCoins.Button(2 * (i + 1)).Enabled()) << i;
    }
    for (int i = 0; i <= 4; ++i) EXPECT_FALSE(F().PicCartasPlayer(i).Visible) << i;
    EXPECT_EQ(F().ActiveControl(), &F().PicFichasPlayer(0));
    // Its focus rectangle shows: the focus events ran once the turn was open.
    for (int k = 0; k < 4; ++k) EXPECT_TRUE(F().FraFichasFocus(k).Visible) << k;
    // And the player's input is taken: a chip goes to the table.
    EXPECT_TRUE(Chip(2));
    EXPECT_EQ(MesaPote, 1);
  }
}

TEST_F(HandCycle, TheSecondHandIsThePlayersAnteAndFirstBlock) {
  Comecar(kEstadoAbre);
  ASSERT_TRUE(Click("CmdSair", 0));  // he gives up her opening
  ASSERT_EQ(static_cast<int>(Fase), 50);
  g_falas.clear();
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
  EXPECT_TRUE(kAbrirJogo.count(dele[1].linha2)) << dele[1].linha2;
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

TEST_F(HandCycle, PrepararPlayerWithNoChipsDoesNothing) {
  for (int fase : {10, 30}) {
    SCOPED_TRACE(fase);
    Comecar(kEstadoAbre);
    Fase = fase;
    AberturaPlayer = 5;  // would move 10 to 11
    ApostaPlayer = 5;    // would move 30 to 31
    FichasPlayer = 0;
    F().FraApostaPlayer.Visible = false;
    F().FraApostaPlayer.Enabled = false;
    F().CmdPago.Caption = "";
    for (int i = 0; i <= 3; ++i) {
      F().PicFichasPlayer(i).Enabled = false;
      F().ToolbarPlayerCoins.Button(2 * (i + 1)).SetEnabled(false);
    }
    PrepararPlayer();
    EXPECT_EQ(static_cast<int>(Fase), fase);
    EXPECT_FALSE(F().FraApostaPlayer.Visible);
    EXPECT_FALSE(F().FraApostaPlayer.Enabled);
    EXPECT_EQ(Caption(F().CmdPago), "");
    for (int i = 0; i <= 3; ++i) {
      EXPECT_FALSE(F().PicFichasPlayer(i).Enabled) << i;
      EXPECT_FALSE(F().ToolbarPlayerCoins.Button(2 * (i + 1)).Enabled()) << i;
    }
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
    g_falas.clear();
    vb::ScriptRnd({(humor + 0.5f) / 9});
    const std::int64_t t0 = host->Now();
    IniciarApostas();
    const bool aposta = ApostaPoker > 0;
    visto.insert(aposta);
    EXPECT_EQ(MaoPlayer, aposta);
    EXPECT_EQ(fichas_na_mesa(), 13 + ApostaPoker);
    EXPECT_EQ(static_cast<int>(MesaApostas), 13 + ApostaPoker);
    EXPECT_EQ(host->Now() - t0, aposta ? 1000 : 800);
    // After a bet she asks to be covered with no chips text; after a pass, for his bet.
    ASSERT_FALSE(FalasDe(true).empty());
    const std::string ultima = FalasDe(true).back().linha2;
    const std::set<std::string> fazer_aposta = {"Aposta, se quiser", "Desta vez, e você",
                                                "Esta Pronto?, Você faz aposta...",
                                                "se você quiser... faz aposta"};
    EXPECT_TRUE((aposta ? kCubrirAposta : fazer_aposta).count(ultima)) << ultima;
    EXPECT_TRUE(F().FraApostaPlayer.Visible);
    EXPECT_EQ(static_cast<int>(Fase), 30);
  }
  EXPECT_EQ(visto.size(), 2u);
}

}  // namespace
