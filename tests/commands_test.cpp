// The player's buttons: cover (CmdPago) in both rounds, all in (CmdTudo) with and without the
// opening limit, take back (CmdDesfazer), end the turn (CmdAcabei), walk away (CmdSair), and a
// whole turn played on the keyboard alone.
#include <string>
#include <vector>

#include "betting_fixture.h"
#include "opponent/troca.h"
#include "platform/engine.h"

namespace {

class PlayerCommands : public BettingTest {
 protected:
  // The player's first speech since the records started, or an empty one.
  Falado PrimeiraDele() {
    for (const Falado& f : Falas())
      if (!f.poker) return f;
    return {};
  }
  // The speech of a key on the player's side with an amount; none below 0.
  std::vector<Falado> Dele(const char* chave, int fichas) {
    if (fichas < 0) return {};
    return Ditos({{false, chave, fichas}});
  }
  std::vector<int> Niveis() {
    return {AberturaPlayer, AumentoAberturaPlayer, TotalAberturaPlayer, ApostaPlayer,
            TotalApostaPlayer};
  }
};

struct Pago {
  const char* nome;
  Lance lance;
  std::vector<int> niveis;  // his five levels after
  int pote, mesa, fichas;   // MesaPote, his table chips, his chips in hand after
  int fala;                 // the speech amount; -1: nothing said
};

// Opening round: the first row that holds covers her, then she always draws first.
TEST_F(PlayerCommands, CmdPagoCoversHerLevelByLevelInTheOpening) {
  // clang-format off
  const std::vector<Pago> linhas = {
      {"his first level empty", {.abertura_poker = 30}, {30, 0, 0, 0, 0}, 30, 30, 630, 30},
      // The one move that does not add to the table: chips carried from an earlier hand leave
      // the table, though MesaPote still counts them.
      {"his first level empty, chips carried", {.abertura_poker = 30, .extra_player = 20},
       {30, 0, 0, 0, 0}, 50, 30, 630, 30},
      {"his third level short",
       {.fase = 12, .abertura_player = 30, .aumento_player = 20, .abertura_poker = 30, .aumento_poker = 20, .total_poker = 40},
       {30, 20, 40, 0, 0}, 90, 90, 620, 40},
      {"his third level over",
       {.fase = 13, .abertura_player = 30, .aumento_player = 20, .total_player = 60, .abertura_poker = 30, .aumento_poker = 20, .total_poker = 40},
       {30, 20, 40, 0, 0}, 90, 90, 680, 40},
      {"his second level short", {.fase = 11, .abertura_player = 30, .aumento_player = 20, .abertura_poker = 30, .aumento_poker = 50},
       {30, 50, 0, 0, 0}, 80, 80, 630, 50},
      {"his second level over", {.fase = 12, .abertura_player = 30, .aumento_player = 50, .abertura_poker = 30, .aumento_poker = 20},
       {30, 20, 0, 0, 0}, 50, 50, 690, 20},
      {"his first level short", {.abertura_player = 30, .abertura_poker = 50}, {50, 0, 0, 0, 0}, 50, 50, 640, 50},
      {"his first level over", {.fase = 11, .abertura_player = 50, .abertura_poker = 30},
       {30, 0, 0, 0, 0}, 30, 30, 680, 30},
      // The repair lays the levels again: the chips carried from an earlier hand go home.
      {"his first level over, chips carried", {.fase = 11, .abertura_player = 50, .abertura_poker = 30, .extra_player = 20},
       {30, 0, 0, 0, 0}, 30, 30, 700, 30},
      {"every level equal, chips carried", {.fase = 11, .abertura_player = 30, .abertura_poker = 30, .extra_player = 20},
       {30, 0, 0, 0, 0}, 50, 50, 660, -1},
      // 20 chips against 50: all of them move, the stake and the words say 50.
      {"fewer chips than owed", {.abertura_poker = 50, .pilha_player = {0, 0, 2, 0}},
       {50, 0, 0, 0, 0}, 20, 20, 0, 50},
  };
  // clang-format on
  for (const Pago& l : linhas) {
    SCOPED_TRACE(l.nome);
    Fresh();
    Montar(l.lance);
    MaoPlayer = false;
    Gravar();
    ASSERT_TRUE(Click("CmdPago"));
    EXPECT_EQ(Niveis(), l.niveis);
    EXPECT_EQ(MesaPote, l.pote);
    EXPECT_EQ(NaMesa(false), l.mesa);
    EXPECT_EQ(FichasPlayer, l.fichas);
    EXPECT_EQ(FalasAteCorte(), Dele("ELECUBRIUABRE", l.fala));
    // The round is closed and she draws first, whoever held the hand.
    EXPECT_EQ(static_cast<int>(Fase), 20);
    EXPECT_TRUE(PokerJaTrocou);
    EXPECT_TRUE(F().FraPedeCartasPlayer.Visible);
    EXPECT_FALSE(F().FraApostaPlayer.Visible);
  }
}

// Final round: the same shape, and the repairs lay the opening levels again too.
TEST_F(PlayerCommands, CmdPagoCoversHerLevelByLevelInTheFinalRound) {
  // clang-format off
  const std::vector<Pago> linhas = {
      // The stake is set from the table first, then that amount moves.
      {"his first stake empty", {.fase = 30, .abertura_player = 30, .abertura_poker = 30, .aposta_poker = 50},
       {30, 0, 0, 50, 0}, 80, 80, 610, 50},
      {"his first stake empty, her chips carried",
       {.fase = 30, .abertura_player = 30, .abertura_poker = 30, .aposta_poker = 50, .extra_poker = 10},
       {30, 0, 0, 60, 0}, 90, 90, 600, 60},
      {"his second stake short",
       {.fase = 31, .abertura_player = 30, .abertura_poker = 30, .aposta_player = 50, .aposta_poker = 50, .total_aposta_poker = 40},
       {30, 0, 0, 50, 40}, 120, 120, 620, 40},
      {"his second stake over",
       {.fase = 31, .abertura_player = 30, .abertura_poker = 30, .aposta_player = 50, .total_aposta_player = 70, .aposta_poker = 50,
        .total_aposta_poker = 40},
       {30, 0, 0, 50, 40}, 120, 120, 690, 40},
      {"his first stake short", {.fase = 31, .abertura_player = 30, .abertura_poker = 30, .aposta_player = 20, .aposta_poker = 50},
       {30, 0, 0, 50, 0}, 80, 80, 630, 50},
      {"his first stake over", {.fase = 31, .abertura_player = 30, .abertura_poker = 30, .aposta_player = 70, .aposta_poker = 50},
       {30, 0, 0, 50, 0}, 80, 80, 680, 50},
      {"every stake equal, chips carried",
       {.fase = 31, .abertura_player = 30, .abertura_poker = 30, .aposta_player = 50, .aposta_poker = 50, .extra_player = 10},
       {30, 0, 0, 50, 0}, 90, 90, 660, -1},
  };
  // clang-format on
  for (const Pago& l : linhas) {
    SCOPED_TRACE(l.nome);
    Fresh();
    Montar(l.lance);
    Gravar();
    ASSERT_TRUE(Click("CmdPago"));
    EXPECT_EQ(Niveis(), l.niveis);
    EXPECT_EQ(MesaPote, l.pote);
    EXPECT_EQ(NaMesa(false), l.mesa);
    EXPECT_EQ(FichasPlayer, l.fichas);
    EXPECT_EQ(Falas(), Dele("ELECUBRIUAPOSTA", l.fala));
    if (l.fala >= 0) {
      EXPECT_EQ(Linha2(false), "Cubro a sua aposta de " + std::to_string(l.fala) + " Fichas");
    }
    // On to the showdown.
    EXPECT_EQ(static_cast<int>(Fase), 40);
    EXPECT_TRUE(F().FraConfrontarJogos.Visible);
    EXPECT_EQ(F().ActiveControl(), &F().CmdConfrontar);
    EXPECT_FALSE(F().FraApostaPlayer.Visible);
  }
}

TEST_F(PlayerCommands, CmdPagoWithNothingToCoverDoesNothing) {
  const Lance linhas[] = {
      {.abertura_player = 30},                                             // she has not opened
      {.abertura_player = 30, .abertura_poker = 20, .extra_player = -10},  // the table is level
      {.fase = 20, .abertura_player = 30, .abertura_poker = 50},           // not a betting phase
  };
  for (const Lance& l : linhas) {
    Fresh();
    Montar(l);
    F().FraApostaPlayer.Visible = true;
    Gravar();
    Click("CmdPago");
    EXPECT_EQ(static_cast<int>(Fase), l.fase);
    EXPECT_EQ(MesaPote, l.abertura_player + l.extra_player);
    EXPECT_TRUE(F().FraApostaPlayer.Visible);
    EXPECT_TRUE(Falas().empty());
  }
}

struct Tudo {
  const char* nome;
  bool limite;
  Lance lance;
  std::vector<int> niveis;  // his five levels after
  int movido;               // chips moved to the table (below 0: taken off it)
  int fala;                 // "Aposto tudo" amount; -1: nothing said
};

// All in: the limit aims the opening at LimiteFichas (150), without it at his chips in hand.
TEST_F(PlayerCommands, CmdTudoStakesWhatTheRulesAllow) {
  // clang-format off
  const std::vector<Tudo> linhas = {
      {"limit, nothing staked", true, {}, {150, 0, 0, 0, 0}, 150, 150},
      {"limit, 40 staked", true, {.abertura_player = 40}, {150, 0, 0, 0, 0}, 110, 150},
      // A short stack under the limit: no chip moves, the stake says all 40 did.
      {"limit, 40 chips", true, {.pilha_player = {0, 0, 4, 0}}, {40, 0, 0, 0, 0}, 0, 40},
      {"limit, second level", true, {.fase = 11, .abertura_player = 30}, {30, 120, 0, 0, 0}, 120, 150},
      // 100 + 80 is above 150: the trim takes the second level back to 50.
      {"limit, second level trimmed", true, {.fase = 11, .abertura_player = 100, .pilha_player = {0, 0, 8, 0}},
       {100, 50, 0, 0, 0}, 0, 150},
      // The chips already staked count against those in hand: 10 stay in the stack.
      {"no limit, 10 staked, 90 in hand", false, {.abertura_player = 10, .pilha_player = {0, 0, 9, 0}},
       {90, 0, 0, 0, 0}, 80, 90},
      // 100 staked, 50 in hand: Quantia is -50, and 50 come off the table into the stack.
      {"no limit, 100 staked, 50 in hand", false, {.abertura_player = 100, .pilha_player = {0, 0, 5, 0}},
       {50, 0, 0, 0, 0}, -50, 50},
      {"no limit, she has no chips", false, {.abertura_poker = 100, .pilha_poker = {0, 0, 0, 0}},
       {100, 0, 0, 0, 0}, 100, 100},
      {"no limit, she has no chips, he barely more", false,
       {.abertura_poker = 100, .pilha_player = {0, 0, 11, 0}, .pilha_poker = {0, 0, 0, 0}},
       {110, 0, 0, 0, 0}, 110, 110},
      {"no limit, third level", false, {.fase = 12, .abertura_player = 30, .aumento_player = 20, .pilha_player = {0, 0, 20, 0}},
       {30, 20, 150, 0, 0}, 150, 200},
      {"no limit, phase 13 under the target", false, {.fase = 13, .abertura_player = 30, .aumento_player = 20, .total_player = 10},
       {30, 20, 10, 0, 0}, 0, -1},
      {"final round, first stake", false, {.fase = 30, .pilha_player = {0, 0, 10, 0}},
       {0, 0, 0, 100, 0}, 100, 100},
      {"final round, second stake", false, {.fase = 31, .aposta_player = 20, .pilha_player = {0, 0, 10, 0}},
       {0, 0, 0, 20, 100}, 100, 100},
  };
  // clang-format on
  for (const Tudo& l : linhas) {
    SCOPED_TRACE(l.nome);
    Fresh();
    Montar(l.lance);
    LimiteAbertura = l.limite;
    const int pote = MesaPote, fichas = FichasPlayer;
    Gravar();
    ASSERT_TRUE(Click("CmdTudo"));
    EXPECT_EQ(Niveis(), l.niveis);
    EXPECT_TRUE(ApostouTudo);
    const Falado dele = PrimeiraDele();
    if (l.fala < 0) {
      EXPECT_NE(dele.linha2.rfind("Aposto tudo", 0), 0u) << dele;
      continue;
    }
    ASSERT_EQ(std::vector<Falado>{dele}, Dele("ELEAPOSTATUDO", l.fala));
    // The table as her answer found it.
    EXPECT_EQ(dele.pote - pote, l.movido);
    EXPECT_EQ(dele.fichas_player, fichas - l.movido);
  }
}

// At phase 13 no level can be trimmed: with the levels above the target the program stops
// responding, and only its window's close box answers.
TEST_F(PlayerCommands, CmdTudoAtPhase13AboveTheTargetHangs) {
  const struct {
    bool limite;
    Lance lance;
  } linhas[] = {
      {true, {.fase = 13, .abertura_player = 100, .aumento_player = 60, .total_player = 20}},
      {false,
       {.fase = 13,
        .abertura_player = 30,
        .aumento_player = 20,
        .total_player = 10,
        .pilha_player = {0, 0, 4, 0}}},
  };
  for (const auto& l : linhas) {
    Fresh();
    Montar(l.lance);
    LimiteAbertura = l.limite;
    const std::string titulo = Caption(F());
    EXPECT_THROW(Click("CmdTudo"), vb::ProgramHung);
    EXPECT_TRUE(vb::Engine::Get().hung());
    EXPECT_EQ(Caption(F()), titulo + " (Não está respondendo)");
    EXPECT_EQ(MesaPote, l.lance.abertura_player + l.lance.aumento_player + l.lance.total_player);
    EXPECT_FALSE(Click("CmdAcabei", 0));
    vb::Input fechar = On("", -1, vb::Input::Type::Close);
    try {
      vb::Engine::Get().Deliver(fechar);
      ADD_FAILURE() << "the close box did not end the program";
    } catch (const vb::ProgramEnded& e) {
      EXPECT_EQ(e.how, vb::EndHow::HungClose);
    }
  }
}

struct Desfazer {
  const char* nome;
  Lance lance;
  std::vector<int> niveis;
  int pote, mesa, fichas;
};

// Take back the highest level that holds chips, whichever turn laid it.
TEST_F(PlayerCommands, CmdDesfazerTakesBackTheLastLevel) {
  // clang-format off
  const std::vector<Desfazer> linhas = {
      {"third level", {.fase = 12, .abertura_player = 30, .aumento_player = 20, .total_player = 40}, {30, 20, 0, 0, 0}, 50, 50, 700},
      {"second level", {.fase = 12, .abertura_player = 30, .aumento_player = 20}, {30, 0, 0, 0, 0}, 30, 30, 680},
      {"first level", {.abertura_player = 30}, {0, 0, 0, 0, 0}, 0, 0, 690},
      // She has answered it already; it goes all the same.
      {"first level, answered", {.fase = 11, .abertura_player = 30, .abertura_poker = 30}, {0, 0, 0, 0, 0}, 0, 0, 690},
      {"nothing staked", {}, {0, 0, 0, 0, 0}, 0, 0, 660},
      // The sweep gives back the carried 20 too, while MesaPote still counts them: 20 chips
      // appear.
      {"first level, chips carried", {.abertura_player = 30, .extra_player = 20}, {0, 0, 0, 0, 0}, 20, 0, 710},
      {"final, second stake", {.fase = 31, .abertura_player = 30, .aposta_player = 50, .total_aposta_player = 40},
       {30, 0, 0, 50, 0}, 80, 80, 700},
      {"final, first stake", {.fase = 31, .abertura_player = 30, .aposta_player = 50}, {30, 0, 0, 0, 0}, 30, 30, 710},
  };
  // clang-format on
  for (const Desfazer& l : linhas) {
    SCOPED_TRACE(l.nome);
    Fresh();
    Montar(l.lance);
    F().LabelPlayerFichas.Caption = "?";
    ASSERT_TRUE(Click("CmdDesfazer", 0));
    EXPECT_EQ(Niveis(), l.niveis);
    EXPECT_EQ(MesaPote, l.pote);
    EXPECT_EQ(NaMesa(false), l.mesa);
    EXPECT_EQ(FichasPlayer, l.fichas);
    EXPECT_EQ(NaPilha(false), l.fichas);
    EXPECT_EQ(Caption(F().LabelPlayerFichas), std::to_string(l.fichas) + " Fichas");
    EXPECT_EQ(static_cast<int>(Fase), l.lance.fase);  // the phase does not move back
  }
}

// In the exchange it undoes the marks.
TEST_F(PlayerCommands, CmdDesfazerInTheExchangeUndoesTheMarks) {
  Montar({.fase = 20});
  PrepararTroca();
  MarcarCarta(2);
  MarcarCarta(8);
  ASSERT_EQ(MarcadasTroca, 2);
  F().PicCartasPlayer(3).Visible = false;
  ASSERT_TRUE(Click("CmdDesfazer", 1));
  for (int i = 2; i <= 10; i += 2) EXPECT_TRUE(F().ToolbarPlayer.Button(i).Enabled()) << i;
  for (int i = 0; i <= 4; ++i) EXPECT_TRUE(F().PicCartasPlayer(i).Visible) << i;
  EXPECT_EQ(F().ActiveControl(), &F().PicCartasPlayer(0));
  EXPECT_EQ(MarcadasTroca, 0);
}

// Ending the turn with nothing staked is a pass: the hand goes to her, and she answers.
TEST_F(PlayerCommands, CmdAcabeiWithNothingStakedPassesTheHand) {
  Montar({.mao = false});
  MostrarSeta(false);
  Gravar();
  vb::ScriptRnd({kLinha, Humor(0), kLinha, kLinha});
  ASSERT_TRUE(Click("CmdAcabei", 0));
  EXPECT_TRUE(MaoPlayer);
  EXPECT_EQ(F().PictureMão.Picture.get(), F().ImageListExtras.PictureOf("SetaAcima"));
  EXPECT_EQ(Falas(), Ditos({{false, "ELEPASSOU"}, {true, "EUPASSEI"}, {false, "ELEPASSOU"}}));
  EXPECT_EQ(static_cast<int>(Fase), 50);  // she passed too
  EXPECT_EQ(MesaPingo, 2);
}

struct Sair {
  const char* nome;
  int index;
  Lance lance;
  bool empate;
  int pote_depois, pingo_depois;  // the table after CmdMaisUma's payment, before the ante
  int fichas_dela;                // her chips after it
};

// Walking away moves no chip; CmdMaisUma pays her what lies on the table, if she has staked
// and the hand does not replay a tie.
TEST_F(PlayerCommands, CmdSairLeavesTheTableForCmdMaisUmaToPay) {
  const std::vector<Sair> linhas = {
      {"betting, she staked",
       0,
       {.fase = 11, .abertura_player = 30, .abertura_poker = 30},
       false,
       0,
       0,
       660 + 62},
      {"betting, she did not stake", 0, {.abertura_player = 30}, false, 30, 2, 660},
      {"betting, a replayed tie", 0, {.extra_player = 100, .extra_poker = 100}, true, 100, 2, 640},
      {"exchange",
       1,
       {.fase = 20, .abertura_player = 40, .abertura_poker = 40},
       false,
       0,
       0,
       660 + 82},
  };
  for (const Sair& l : linhas) {
    SCOPED_TRACE(l.nome);
    Fresh();
    Montar(l.lance);
    JogoEmpatado = l.empate;
    if (l.index == 1) {
      PrepararTroca();
      MarcarCarta(4);
    }
    const int player = FichasPlayer, pote = MesaPote, apostas = MesaApostas;
    ComSom();
    vb::ScriptRnd({kLinha});
    ASSERT_TRUE(Click("CmdSair", l.index));

    EXPECT_EQ(vb::MciSent(), (Sons{kFechaTudo, "Play MUSICAS\\MELODIAS\\EMBORA.MP3"}));
    EXPECT_EQ(Falas(), Ditos({{false, "EUDESISTI"}, {true, "Clean"}}));
    EXPECT_FALSE(F().Timer1.Enabled);
    EXPECT_EQ(MusicTime, 0);
    EXPECT_EQ(static_cast<int>(Fase), 50);
    EXPECT_TRUE(F().FraMaisUma.Visible);
    EXPECT_EQ(F().ActiveControl(), &F().CmdMaisUma);
    EXPECT_EQ(Caption(F().LabelPokerMensagem),
              "Que Peninha, Meu Garotão...!,\r\nQuer uma outra chance...?\r\nVai Embora ???");
    EXPECT_FALSE(F().FraApostaPlayer.Visible);
    EXPECT_FALSE(F().FraPedeCartasPlayer.Visible);
    if (l.index == 1) {
      for (int i = 2; i <= 10; i += 2) EXPECT_TRUE(F().ToolbarPlayer.Button(i).Enabled());
      for (int i = 0; i <= 4; ++i) EXPECT_FALSE(F().PicCartasPlayer(i).Visible);
    }
    EXPECT_EQ(FichasPlayer, player);
    EXPECT_EQ(MesaPote, pote);
    EXPECT_EQ(MesaApostas, apostas);

    // The next hand: her price is paid first, then the ante (his, in the second hand) unless a
    // tie is replayed.
    EfeitosOn = false;
    // In the replayed tie she answers at once: she raises by 20.
    if (l.empate) Roteiro() = {Humor(2), Faixa(10, 49, 20), kLinha, kLinha};
    ASSERT_TRUE(Click("CmdMaisUma"));
    EXPECT_EQ(FichasPoker, l.fichas_dela);
    EXPECT_EQ(MesaPote, l.pote_depois);
    EXPECT_EQ(MesaPingo, l.pingo_depois + (l.empate ? 0 : 1));
    EXPECT_EQ(AberturaPlayer, 0);
    EXPECT_TRUE(F().Timer1.Enabled);
  }
}

}  // namespace
