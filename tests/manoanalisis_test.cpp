#include "opponent/manoanalisis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/start.h"
#include "platform/runtime.h"

namespace {

using Cartas = std::vector<std::string>;

// The card code rewritten to the working format, written independently of the module.
std::string Trabalho(const std::string& codigo) {
  static const std::map<char, std::string> kLetras = {
      {'A', "14"}, {'K', "13"}, {'Q', "12"}, {'J', "11"}, {'D', "10"}};
  auto letra = kLetras.find(codigo[0]);
  return (letra != kLetras.end() ? letra->second : std::string("0") + codigo[0]) + codigo[1];
}

// "KC 9D 7P" -> {"KC", "9D", "7P"}
Cartas Lista(const std::string& texto) {
  Cartas cartas;
  for (std::size_t p = 0; p + 2 <= texto.size(); p += 3) cartas.push_back(texto.substr(p, 2));
  return cartas;
}

class DrawPlan : public ::testing::Test {
 protected:
  void SetUp() override {
    ResetProcess();
    NroCartas = 52;
    MaxTroca = 4;
  }

  // Deals `mao` (sorted, highest first) to the opponent, lays `baralho` from place 11 on and plans
  // her draw looking at `quantas` of those cards (all of them when 0).
  static std::string Planejar(const Cartas& mao, const Cartas& baralho, int quantas = 0) {
    for (int i = 0; i < 5; ++i) CartasPoker[i + 1] = mao[i];
    for (std::size_t i = 0; i < baralho.size(); ++i) Baralho[11 + i] = baralho[i];
    std::uint8_t posicao = 11;
    std::uint8_t n = static_cast<std::uint8_t>(quantas != 0 ? quantas : baralho.size());
    AnalisarMao(true, posicao, n, "");
    return ListaTroca;
  }
};

struct Caso {
  const char* mao;
  const char* baralho;  // from place 11 on
  int quantas;          // 0: every deck card listed
  int maxTroca;
  const char* regra;  // "full": FullMataCor, "trio": TrioMataEscada
  const char* esperado;
};

TEST_F(DrawPlan, PlansTheDraw) {
  const std::vector<Caso> casos = {
      // A flush of two hand cards and the next three.
      {"KC 9D 7P 4C 2T", "QC 8C 3C", 0, 4, "", "CO13C12C08C04C03C"},
      // 9C of the hand with 8C 7C 6C 5C, the last one fifth from the top: keeping even one card
      // leaves room for four new ones only. Straight and flush fail alike; two pairs remain.
      {"9C 8D 7P 4T 2T", "8C 7C 3D 6C 5C", 0, 5, "", "P208C08D07C07P"},
      // All five from the deck: only when she may throw all five away.
      {"KD JP 8T 4C 2D", "9C 8C 7C 6C 5C", 0, 5, "", "ER09C08C07C06C05C"},
      {"KD JP 8T 4C 2D", "9C 8C 7C 6C 5C", 0, 4, "", "P108C08T"},
      // She breaks a made straight for a higher one.
      {"9C 8D 7P 6T 5C", "DC", 0, 4, "", "ES10C09C08D07P06T"},
      // Ace-low: the four low cards, then the ace.
      {"9C 5D 4D 3D 2D", "AD", 0, 4, "", "ER05D04D03D02D14D"},
      {"AC 9D 5P 4T 3C", "2D", 0, 4, "", "ES05P04T03C02D14C"},
      {"9T 8T 7T 6T 2C", "5T", 0, 4, "", "ER09T08T07T06T05T"},
      // Keeping 9D with 8P 7T 6C (four cards) leaves one new card, not the 5D that comes second;
      // the deck's own nine makes it keeping three.
      {"9D 8P 7T 6C 2C", "9C 5D", 2, 4, "", "ES09C08P07T06C05D"},
      // Both sixes would do: the hand's comes first in the pool, though 6C is first by suit.
      {"9C 8D 7P 6T 2C", "5D 6C", 0, 4, "", "ES09C08D07P06T05D"},
      // Full house: the pair's cards in pool order; its rank from the top, where it can be drawn.
      {"KC KD KP 9D 4C", "9C 9T", 0, 4, "", "FU13C13D13P09D09C"},
      {"KC 9C 5C 5D 5P", "9D 2T KD", 0, 4, "", "FU05C05D05P09C09D"},
      {"KC 9C 5C 5D 5P", "KD 2T 9D", 0, 4, "", "FU05C05D05P13C13D"},
      {"KC KD KP 9D 4C", "2T 9C 9T", 0, 4, "", "PI13C13D13P"},
      // Three nines: with the third one fourth in the deck the trips can't be reached and the
      // pair is no longer a pair.
      {"KP 9C 9D 5T 2C", "3D JD QP 9T", 3, 4, "", "P109C09D"},
      {"KP 9C 9D 5T 2C", "3D JD QP 9T", 4, 4, "", "NN13P"},
      // Four out of reach are not tried as trips.
      {"9C 9D 9P 4C 2D", "3T 5C 8D KC 9T", 0, 5, "", "NN09C"},
      // Only the highest trips are tried: the kings fail, the fives in hand are not looked at.
      {"KC 5C 5D 5P 2T", "3D 4C 7T KD KP", 0, 5, "", "NN13C"},
      {"KC KD 9C 9D 9P", "9T 2C KP KT", 0, 4, "", "PO09C09D09P09T"},
      // Flush: the five highest of six; clubs before diamonds, even all from the deck.
      {"KD JD 9D 7D 4D", "QD", 0, 4, "", "CO13D12D11D09D07D"},
      {"AD QD 9D 7D 4D", "KC JC 8C 6C 2C", 0, 5, "", "CO13C11C08C06C02C"},
      // Two pairs: the aces out of reach, then within reach.
      {"AC KC KD 7P 7T", "4C 9D AD", 0, 4, "", "P213C13D07P07T"},
      {"AC KC KD 7P 7T", "AD 4C 9D", 0, 4, "", "P214C14D13C13D"},
      // One pair: both aces from the deck would need MaxTroca 5.
      {"KC 9D 7P 7T 2C", "3C 4D AD AT", 0, 4, "", "P107P07T"},
      {"KC 9D 7P 4T 2C", "3D", 0, 4, "", "NN13C"},
      // The house rules order the search.
      {"KC KD KP 9C 9D", "7C 4C 2C", 0, 4, "", "CO13C09C07C04C02C"},
      {"KC KD KP 9C 9D", "7C 4C 2C", 0, 4, "full", "FU13C13D13P09C09D"},
      {"9C 9D 9P 8T 7C", "6D 5P", 0, 4, "", "ES09C08T07C06D05P"},
      {"9C 9D 9P 8T 7C", "6D 5P", 0, 4, "trio", "PI09C09D09P"},
  };
  for (const Caso& c : casos) {
    SCOPED_TRACE(std::string(c.mao) + " | " + c.baralho + " | " + std::to_string(c.quantas));
    MaxTroca = static_cast<std::uint8_t>(c.maxTroca);
    FullMataCor = std::string(c.regra) == "full";
    TrioMataEscada = std::string(c.regra) == "trio";
    EXPECT_EQ(Planejar(Lista(c.mao), Lista(c.baralho), c.quantas), c.esperado);
  }
}

// The floor of the straights follows the deck size: the lowest straight without the ace and the
// ace-low one are drawn to, one rank lower is not. The 48 deck has its own row.
TEST_F(DrawPlan, StraightFloorByDeckSize) {
  auto carta = [](int valor, char naipe) {
    return std::string(1, static_cast<char>('0' + valor / 10)) +
           static_cast<char>('0' + valor % 10) + naipe;
  };
  for (int tamanho = 52; tamanho >= 20; tamanho -= 4) {
    SCOPED_TRACE(tamanho);
    NroCartas = static_cast<std::uint8_t>(tamanho);
    const int baixa = 2 + (52 - tamanho) / 4;  // the deck's lowest rank
    std::uint8_t posicao = 11;
    std::uint8_t quantas = 0;

    const std::string sem_as = carta(baixa + 4, 'C') + carta(baixa + 3, 'D') +
                               carta(baixa + 2, 'P') + carta(baixa + 1, 'T') + carta(baixa, 'C');
    AnalisarMao(true, posicao, quantas, sem_as);
    EXPECT_EQ(ListaTroca, "ES" + sem_as);

    const std::string baixos =
        carta(baixa + 3, 'D') + carta(baixa + 2, 'P') + carta(baixa + 1, 'T') + carta(baixa, 'C');
    AnalisarMao(true, posicao, quantas, "14C" + baixos);
    // With 20 cards the ace-low straight is the ace-high one, found first from the top.
    EXPECT_EQ(ListaTroca, tamanho == 20 ? "ES14C" + baixos : "ES" + baixos + "14C");

    if (tamanho < 52) {
      const std::string abaixo = carta(baixa + 3, 'C') + carta(baixa + 2, 'D') +
                                 carta(baixa + 1, 'P') + carta(baixa, 'T') + carta(baixa - 1, 'C');
      AnalisarMao(true, posicao, quantas, abaixo);
      EXPECT_EQ(ListaTroca, "NN" + abaixo.substr(0, 3));
      const std::string as_abaixo = "14C" + abaixo.substr(3);
      AnalisarMao(true, posicao, quantas, as_abaixo);
      EXPECT_EQ(ListaTroca, "NN14C");
    }
    EXPECT_EQ(posicao, 11);  // a given pool reads nothing
  }
}

TEST_F(DrawPlan, ReadsTheSideAndAdvancesThePlace) {
  const Cartas poker = Lista("JD JP 2C 2D 2P");
  for (int i = 0; i < 5; ++i) CartasPoker[i + 1] = poker[i];
  const Cartas player = Lista("KC 9D 7P 4C 2T");
  for (int i = 0; i < 5; ++i) CartasPlayer[i + 1] = player[i];
  const Cartas baralho = Lista("QC 8C 3C 5T 6T");
  for (std::size_t i = 0; i < baralho.size(); ++i) Baralho[14 + i] = baralho[i];

  // As after the player took three cards from place 11: her view starts at place 14.
  std::uint8_t posicao = 14;
  std::uint8_t quantas = 5;
  AnalisarMao(false, posicao, quantas, "");
  EXPECT_EQ(ListaTroca, "CO13C12C08C04C03C");
  EXPECT_EQ(posicao, 19);
  EXPECT_EQ(quantas, 5);

  posicao = 14;
  AnalisarMao(true, posicao, quantas, "");
  EXPECT_EQ(ListaTroca, "FU02C02D02P11D11P");
  EXPECT_EQ(posicao, 19);
}

// The class of five working-format cards, the ace-low straight being the ace with the deck's four
// lowest ranks.
std::string Classe(const std::vector<std::string>& cartas, int baixa) {
  std::vector<int> valores;
  std::map<int, int> conta;
  bool cor = true;
  for (const std::string& c : cartas) {
    valores.push_back(std::stoi(c.substr(0, 2)));
    ++conta[valores.back()];
    cor = cor && c[2] == cartas[0][2];
  }
  std::sort(valores.rbegin(), valores.rend());
  const bool distintos = conta.size() == 5;
  const bool escada =
      distintos && (valores[0] - valores[4] == 4 ||
                    valores == std::vector<int>{14, baixa + 3, baixa + 2, baixa + 1, baixa});
  if (escada && cor) return "ER";
  std::vector<int> grupos;
  for (auto [valor, n] : conta) grupos.push_back(n);
  std::sort(grupos.rbegin(), grupos.rend());
  if (grupos[0] == 4) return "PO";
  if (cor) return "CO";
  if (grupos[0] == 3 && grupos[1] == 2) return "FU";
  if (escada) return "ES";
  if (grupos[0] == 3) return "PI";
  if (grupos[0] == 2 && grupos[1] == 2) return "P2";
  if (grupos[0] == 2) return "P1";
  return "NN";
}

TEST_F(DrawPlan, RandomDrawsArePlansSheCanReallyDraw) {
  std::mt19937 gerador(20240611);
  const std::string ordem = "AKQJD98765432";
  const std::map<std::string, std::size_t> tamanhoDoPlano = {{"ER", 5}, {"PO", 4}, {"CO", 5},
                                                             {"FU", 5}, {"ES", 5}, {"PI", 3},
                                                             {"P2", 4}, {"P1", 2}, {"NN", 1}};
  std::map<std::string, int> vistas;
  for (int rodada = 0; rodada < 20000; ++rodada) {
    const int tamanho = 52 - 4 * static_cast<int>(gerador() % 9);
    NroCartas = static_cast<std::uint8_t>(tamanho);
    MaxTroca = static_cast<std::uint8_t>(1 + gerador() % 5);
    FullMataCor = gerador() % 2 == 0;
    TrioMataEscada = gerador() % 2 == 0;
    Cartas baralho;
    for (int i = 0; i < tamanho; ++i) baralho.push_back({ordem[i / 4], "CDPT"[i % 4]});
    std::shuffle(baralho.begin(), baralho.end(), gerador);

    // Both hands sorted as dealt: highest rank first, suits in order.
    Cartas mao(baralho.begin(), baralho.begin() + 5);
    std::sort(mao.begin(), mao.end(), [&](const std::string& a, const std::string& b) {
      return ordem.find(a[0]) * 4 + std::string("CDPT").find(a[1]) <
             ordem.find(b[0]) * 4 + std::string("CDPT").find(b[1]);
    });
    for (int i = 1; i <= tamanho; ++i) Baralho[i] = baralho[i - 1];
    const bool lado = gerador() % 2 == 0;
    Hand& alvo = lado ? CartasPoker : CartasPlayer;
    for (int i = 1; i <= 5; ++i) alvo[i] = mao[i - 1];
    const int inicio = 11 + static_cast<int>(gerador() % (MaxTroca + 1));
    std::uint8_t posicao = static_cast<std::uint8_t>(inicio);
    std::uint8_t quantas = static_cast<std::uint8_t>(1 + gerador() % MaxTroca);

    std::string pool;
    for (const std::string& c : mao) pool += Trabalho(c);
    for (int i = 0; i < quantas; ++i) pool += Trabalho(Baralho[inicio + i]);

    AnalisarMao(lado, posicao, quantas, "");
    SCOPED_TRACE(pool + " -> " + ListaTroca + " MaxTroca " + std::to_string(MaxTroca));
    ASSERT_EQ(posicao, inicio + quantas);
    ASSERT_GE(ListaTroca.size(), 5u);
    const std::string classe = ListaTroca.substr(0, 2);
    const std::string plano = ListaTroca.substr(2);
    ASSERT_TRUE(tamanhoDoPlano.count(classe));
    ASSERT_EQ(plano.size(), 3 * tamanhoDoPlano.at(classe));
    ++vistas[classe];

    std::vector<std::string> cartas;
    for (std::size_t p = 0; p < plano.size(); p += 3) cartas.push_back(plano.substr(p, 3));
    for (const std::string& c : cartas) {
      ASSERT_NE(pool.find(c), std::string::npos) << c;
      ASSERT_EQ(std::count(cartas.begin(), cartas.end(), c), 1) << c;
    }
    ASSERT_TRUE(ValorDaCarta(plano, pool));
    if (classe == "NN") {
      ASSERT_EQ(plano, pool.substr(0, 3));
    }
    if (cartas.size() == 5) {
      ASSERT_EQ(Classe(cartas, 2 + (52 - tamanho) / 4), classe);
    }

    // The exchange throws away, in hand order, the cards the plan leaves out, up to the count,
    // and takes the deck cards she looked at: every planned card must be in the new hand.
    std::vector<std::string> nova;
    int trocadas = 0;
    for (const std::string& c : mao) {
      const std::string t = Trabalho(c);
      const bool fica = std::find(cartas.begin(), cartas.end(), t) != cartas.end();
      if (!fica && trocadas < quantas) {
        nova.push_back(Trabalho(Baralho[inicio + trocadas]));
        ++trocadas;
      } else {
        nova.push_back(t);
      }
    }
    for (const std::string& c : cartas) {
      ASSERT_NE(std::find(nova.begin(), nova.end(), c), nova.end()) << c << " not drawn";
    }
  }
  // Every class turned up, so each branch of the search was exercised.
  for (const auto& [classe, n] : tamanhoDoPlano) EXPECT_GT(vistas[classe], 0) << classe;
}

}  // namespace
