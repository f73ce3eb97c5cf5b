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

// Each drawn key and the number of its lines she ever says (the list holds one more).
const std::pair<const char*, int> kSorteios[] = {
    {"ABRIRJOGO", 4}, {"FAZERAPOSTA", 4},    {"CUBRIRAPOSTA", 4},  {"ELEABRIU", 2},
    {"ELEPASSOU", 3}, {"ELEDESISTIU", 4},    {"EUABRI", 6},        {"EUPASSEI", 4},
    {"EUAPOSTEI", 9}, {"EUAUMENTEIABRE", 5}, {"EUAPOSTEITUDO", 3}, {"EUAUMENTEI", 5},
    {"EUDESISTI", 5}, {"EUCUBRI", 7},        {"EUCUBRIABRE", 7}};

TEST_F(Speech, EachDrawnKeyReachesItsNLinesAndNeverTheLast) {
  for (const auto& [chave, n] : kSorteios) {
    SCOPED_TRACE(chave);
    // Over the whole range of the draw, each of the N lines in its own band, in order.
    std::vector<std::string> vistas;
    for (int k = 0; k < 1000; ++k) {
      const Fala f = Sorteada(chave, k / 1000.0f);
      if (vistas.empty() || vistas.back() != f.Linha1 + "/" + f.Linha2)
        vistas.push_back(f.Linha1 + "/" + f.Linha2);
    }
    EXPECT_EQ(vistas.size(), static_cast<std::size_t>(n));
    EXPECT_EQ(std::set<std::string>(vistas.begin(), vistas.end()).size(), vistas.size());
    const Fala ultima = Sorteada(chave, 0.99999994f);  // the largest draw: still entry N
    EXPECT_EQ(ultima.Linha1 + "/" + ultima.Linha2, vistas.back());
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
      {"EUCUBRI", 5.5f / 7, "Ver você todinho..., Pago a Ficha"},
      // Not marked: the line stands and " Uma Ficha" follows.
      {"EUCUBRIABRE", 2.5f / 7, "Mumm!... que bom, estou dentro com Uma Ficha"},
      {"EUCUBRI", 0.0f, "essa, amor de  Uma Ficha"},
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
