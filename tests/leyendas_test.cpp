#include "opponent/leyendas.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/start.h"
#include "platform/rnd.h"

namespace {

class Speech : public ::testing::Test {
 protected:
  void SetUp() override { ResetProcess(); }
  void TearDown() override { ResetProcess(); }

  // The speech of a drawn key with Rnd scripted to one value.
  static Fala Sorteada(const std::string& chave, float rnd, int fichas = 0) {
    vb::ScriptRnd({rnd});
    return FalaDe(true, chave, fichas);
  }
};

// Just below 1: the largest value Rnd can give, which must land on entry N.
constexpr float kQuaseUm = 0.99999994f;

// Both lines joined by a slash, as the lines are written down.
std::string Linhas(const Fala& f) {
  return f.Linha1 + "/" + f.Linha2;
}

struct Sorteio {
  const char* chave;
  int n;
  const char* primeira;  // entry 1 (Rnd 0)
  const char* enesima;   // entry N (Rnd just below 1)
  const char* nunca;     // the entry after N, which she never says
};

// clang-format off
const std::vector<Sorteio> kSorteios = {
    {"ABRIRJOGO", 4, "Vai!,/Abre o jogo", "Fofo!/se você quiser... abre",
     "Amor/diz para min, o valor desse jogo"},
    {"FAZERAPOSTA", 4, "Vai!,/Aposta, se quiser", "Fofo!/se você quiser... faz aposta",
     "Amor, aposta!/diz para min, o valor desse jogo"},
    {"CUBRIRAPOSTA", 4, "Vai!,/Cubra aposta", "Fofo!/se você quiser... cubra",
     "Amor, cubra aposta!/diz para min, o valor do teu jogo..."},
    {"ELEABRIU", 2, "Vou,/Abrir as Apostas com", "/Este jogo vai valer,", "Inicio,/as Apostas com"},
    {"ELEPASSOU", 3, "Eh! /Perdeu a vez...", "Entendi! /eu vou falar por você",
     "Ahhh! de novo /quer que eu te mande!"},
    {"ELEDESISTIU", 4, "Que pena /eu não tinha nada...", "Ahhh de novo /foi embora...",
     "Fica comigo/na próxima, vai ser bom!"},
    {"EUABRI", 6, "Simm!,/Abro o jogo, com", "/Esse jogo vale", "/Abrou o jogo com"},
    {"EUPASSEI", 4, "/Amoor, Passo...", "/Desculpa doce, não dá!",
     "Com licença,/Uma mocinha vai passar..."},
    {"EUAUMENTEIABRE", 5, "/Vou Aumentar essa Abertura, amor mais",
     "Surpresa!... /Estou muita bem servida... então mais", "/Agora, Te Peguei, segura... vou com"},
    {"EUAPOSTEITUDO", 3, "Vou Dar /Todinhas minhas", "/Estou botando tudas minhas fichas... as",
     "Vou Arriscar /essa, amor, boto todo meu dinheiro as"},
    {"EUAPOSTEI", 9, "Bem, amor /eu vou apostar... mais", "/Segura Essa, Aposto mais",
     "Nossa!, /Eu fique louca, Aposto mais"},
    {"EUAUMENTEI", 5, "Vou AAAumentar /essa, amor mais",
     "Surpresa!... /Estou muita bem servida... Então Aumento com",
     "/Agora, Te Peguei, segura... vou Aumentar mais"},
    {"EUDESISTI", 5, "Nossa!, /Você e louco", "Vou, Embora.../", "Verdade!/Não tenho nada, "},
    {"EUCUBRI", 7, "Vou Pagar /essa, amor de ", "Amor, /Cubro a sua aposta de",
     "Vai devagar, /Eu sou uma moça, pago as"},
    {"EUCUBRIABRE", 7, "Eu pago, /se for verdade as", "/Vou pagar essa!, amor, de",
     "Amor, /Cubro essa abertura de"},
};
// clang-format on

TEST_F(Speech, EachDrawnKeyReachesItsNLinesAndNeverTheLast) {
  for (const Sorteio& s : kSorteios) {
    SCOPED_TRACE(s.chave);
    EXPECT_EQ(Linhas(Sorteada(s.chave, 0.0f)), s.primeira);
    EXPECT_EQ(Linhas(Sorteada(s.chave, kQuaseUm)), s.enesima);

    // The middle of each band of the draw: N different pairs, none of them the last one.
    std::set<std::string> vistas;
    for (int k = 1; k <= s.n; ++k) vistas.insert(Linhas(Sorteada(s.chave, (k - 0.5f) / s.n)));
    EXPECT_EQ(vistas.size(), static_cast<std::size_t>(s.n));
    EXPECT_EQ(vistas.count(s.primeira) + vistas.count(s.enesima), 2u);
    EXPECT_EQ(vistas.count(s.nunca), 0u);
    EXPECT_EQ(vb::ScriptedRndLeft(), 0u);  // one draw per speech
  }
}

TEST_F(Speech, DrawnKeyReseedsWithSementeAndLeavesItAlone) {
  Semente = 0.6484358f;
  vb::SetRndState(12345);
  vb::Randomize(Semente);
  const int esperada = vb::DrawInt(9, 1);  // EUAPOSTEI has N 9
  const auto depois = vb::RndState();

  vb::SetRndState(12345);
  const Fala sorteada = FalaDe(true, "EUAPOSTEI", 0);
  EXPECT_EQ(vb::RndState(), depois);  // one reseed, one draw
  vb::ScriptRnd({(esperada - 0.5f) / 9});
  EXPECT_EQ(sorteada, FalaDe(true, "EUAPOSTEI", 0));
  EXPECT_FLOAT_EQ(Semente, 0.6484358f);
}

TEST_F(Speech, OneChip) {
  struct Caso {
    const char* chave;
    float rnd;
    const char* linha2;
  };
  const std::vector<Caso> casos = {
      // (as): the "s" goes and " Ficha" follows the " a".
      {"EUCUBRIABRE", 1.5f / 7, "Vou Arriscar, pago a Ficha"},
      {"EUCUBRIABRE", 3.5f / 7, "Esse meu jogo ta ótimo!, vou pagar a Ficha"},
      {"EUCUBRI", 1.5f / 7, "estamos... Agora ? então pago a Ficha"},
      {"EUCUBRI", 5.5f / 7, "Ver você todinho..., Pago a Ficha"},
      // Not marked: the line stands and " Uma Ficha" follows.
      {"EUCUBRIABRE", 2.5f / 7, "Mumm!... que bom, estou dentro com Uma Ficha"},
      {"EUCUBRI", 4.5f / 7, "Agora, Te Peguei, segura... vou Uma Ficha"},
      {"EUCUBRI", 0.0f, "essa, amor de  Uma Ficha"},
      {"EUABRI", 5.5f / 6, "Esse jogo vale Uma Ficha"},
      {"EUAPOSTEITUDO", 1.5f / 3, "Aposto TUDO as Uma Ficha"},  // "as" without the mark
      {"EUDESISTI", 2.5f / 5, "Eu sou uma moça Uma Ficha"},     // ends in "a", not in " a"
  };
  for (const Caso& c : casos) {
    SCOPED_TRACE(c.linha2);
    EXPECT_EQ(Sorteada(c.chave, c.rnd, 1).Linha2, c.linha2);
  }
  // The mark only counts for one chip.
  EXPECT_EQ(Sorteada("EUCUBRIABRE", 1.5f / 7, 2).Linha2, "Vou Arriscar, pago as 2 Fichas");
}

TEST_F(Speech, SevenChipsFollowEveryLineEvenAfterABlank) {
  EXPECT_EQ(Sorteada("EUCUBRI", 0.0f, 7).Linha2, "essa, amor de  7 Fichas");
  EXPECT_EQ(Sorteada("EUDESISTI", 4.5f / 5, 7).Linha2, " 7 Fichas");  // "first" line only
  EXPECT_EQ(Sorteada("EUABRI", 4.5f / 6, 7),
            (Fala{"Poker (ZEVA)", "Amor!", " se quiser jogar... vai valer 7 Fichas"}));
  EXPECT_EQ(Sorteada("EUAUMENTEI", 2.5f / 5, 7).Linha2, "Aumento mais um pouquinho mais 7 Fichas");
}

TEST_F(Speech, KeyWithNoLinesStillTakesTheChips) {
  MeuNome = "Ana";
  EXPECT_EQ(FalaDe(true, "Clean", 0), (Fala{"Poker (ZEVA)", "", ""}));
  EXPECT_EQ(FalaDe(false, "Clean", 0), (Fala{"Ana", "", ""}));
  EXPECT_EQ(FalaDe(true, "EUAUMENTE", 13), (Fala{"Poker (ZEVA)", "", " 13 Fichas"}));
  EXPECT_EQ(FalaDe(true, "EUAUMENTE", 1), (Fala{"Poker (ZEVA)", "", " Uma Ficha"}));
  EXPECT_EQ(FalaDe(true, "euabri", 0).Linha2, "");  // keys are exact
}

TEST_F(Speech, LeyendaHandsTheSpeechToTheScreen) {
  static std::vector<std::pair<bool, Fala>> recebidas;
  recebidas.clear();
  Leyenda(true, "TROCARCARTAS");  // no screen yet: nothing happens
  g_leyenda_screen = [](bool lado, const Fala& f) { recebidas.emplace_back(lado, f); };
  MeuNome = "Ana";
  Leyenda(false, "ELEAPOSTATUDO", 40);
  Leyenda(true, "Clean");
  EXPECT_EQ(recebidas,
            (std::vector<std::pair<bool, Fala>>{{false, {"Ana", "", "Aposto tudo 40 Fichas"}},
                                                {true, {"Poker (ZEVA)", "", ""}}}));
}

}  // namespace
