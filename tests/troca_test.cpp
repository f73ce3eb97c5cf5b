// The draw on the virtual clock: whole exchanges in both orders, the marks, her sight of the deck
// and what it costs the player, and a property over many random deals that she draws exactly the
// cards she planned.
#include "opponent/troca.h"

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "betting/betting.h"
#include "core/cards.h"
#include "core/deck.h"
#include "game_fixture.h"
#include "support.h"
#include "table/cards.h"

namespace {

// With these generator states she opens the first hand (0) or passes it (9).
constexpr std::uint64_t kEstadoAbre = 0;
constexpr std::uint64_t kEstadoPassa = 9;

std::vector<std::string> g_falas_dela;  // her balloon's second lines, in order
std::vector<std::string> g_falas_dele;
std::string g_linha1_dela;
void GuardarFala(bool Lado) {
  auto& l = Lado ? Frm_Principal().LabelPokerCaption : Frm_Principal().LabelPlayerCaption;
  (Lado ? g_falas_dela : g_falas_dele).push_back(l(2).Caption.get());
  if (Lado) g_linha1_dela = l(1).Caption.get();
}

std::vector<std::string> Mao(const Hand& h) {
  return {h.begin() + 1, h.end()};
}
std::vector<std::string> Ordenada(std::vector<std::string> cartas) {
  std::sort(cartas.begin(), cartas.end(),
            [](const std::string& a, const std::string& b) { return CardTag(a) < CardTag(b); });
  return cartas;
}

// "14C" -> "AC", "10D" -> "DD", "07P" -> "7P".
std::string Codigo(const std::string& trabalho) {
  const int v = std::stoi(trabalho.substr(0, 2));
  static const char* kAltas = "DJQKA";
  const char rank = v >= 10 ? kAltas[v - 10] : static_cast<char>('0' + v);
  return std::string(1, rank) + trabalho[2];
}

class Exchange : public GameTest, public vb::Listener {
 protected:
  void Watch() override { g_depois_da_fala = GuardarFala; }

  void Comecar(std::uint64_t estado) {
    Fresh(estado);
    IniciarJogo();
    vb::Engine::Get().AddListener(this);
    imagens.clear();
    g_falas_dela.clear();
    g_falas_dele.clear();
  }

  // The deck with her hand at places 1-5, his at 6-10 and `depois` from 11 on, every other card
  // after them in table order; both hands sorted and laid on the table as a deal lays them.
  void Mesa(const std::vector<std::string>& dela, const std::vector<std::string>& dele,
            const std::vector<std::string>& depois) {
    std::vector<std::string> ordem = dela;
    ordem.insert(ordem.end(), dele.begin(), dele.end());
    ordem.insert(ordem.end(), depois.begin(), depois.end());
    for (const CardInfo& c : kCartas)
      if (std::find(ordem.begin(), ordem.end(), c.code) == ordem.end()) ordem.emplace_back(c.code);
    ASSERT_EQ(ordem.size(), 52u);
    for (int i = 1; i <= 52; ++i) Baralho[i] = ordem[i - 1];
    const auto a = Ordenada(dela), b = Ordenada(dele);
    for (int i = 1; i <= 5; ++i) {
      CartasPoker[i] = a[i - 1];
      CartasPlayer[i] = b[i - 1];
    }
    MostrarCartas(true, true, false, true);
    MostrarCartas(false, true, false, true);
    imagens.clear();
  }

  // Every image a card button of either hand took, with its moment.
  struct Imagem {
    std::int64_t t;
    bool dela;
    int pos;
    std::string chave;
  };
  std::vector<Imagem> imagens;
  void Changed(vb::Control& c, vb::Prop prop, int sub) override {
    if (prop != vb::Prop::ButtonImage || sub % 2) return;
    if (c.Name() != "ToolbarPoker" && c.Name() != "ToolbarPlayer") return;
    imagens.push_back({host->Now(), c.Name() == "ToolbarPoker", sub / 2, c.Button(sub).ImageKey()});
  }
  // What one card showed since t0, a change at a time, with the moment of each change.
  std::vector<std::pair<std::int64_t, std::string>> Historia(bool dela, int pos, std::int64_t t0) {
    std::vector<std::pair<std::int64_t, std::string>> h;
    for (const Imagem& i : imagens) {
      if (i.dela != dela || i.pos != pos || i.t < t0) continue;
      if (h.empty() || h.back().second != i.chave) h.push_back({i.t, i.chave});
    }
    return h;
  }
  bool Dorso(int pos) {
    for (const Imagem& i : imagens)
      if (i.dela && i.pos == pos && i.chave == "DORSO") return true;
    return false;
  }
  bool Marcada(int i) { return !F().ToolbarPlayer.Button(2 * (i + 1)).Enabled(); }
  bool Borda(int i) {
    for (int k = 0; k < 4; ++k)
      if (!F().FraCartasFocus(4 * i + k).Visible) return false;
    return true;
  }
  int Efeitos(const std::string& nome) {
    int n = 0;
    for (const std::string& m : vb::MciSent())
      if (m == "Play MUSICAS\\EFEITOS\\" + nome + ".WAV") ++n;
    return n;
  }
};

// He covers her opening, so she draws first. Her pair of nines would have her throw three, but
// she sees the king of clubs on top of the deck: she keeps her four clubs and takes one card.
TEST_F(Exchange, SheDrawsFirstAndKeepsFourForTheFlushSheSaw) {
  Comecar(kEstadoAbre);
  ASSERT_TRUE(MaoPlayer);
  Mesa({"9C", "9D", "7C", "4C", "2C"}, {"AD", "KD", "QP", "8T", "6P"},
       {"KC", "5D", "3T", "QD", "JP"});
  vb::ScriptRnd({Humor(1)});  // a pair, mood 1: three cards
  const std::int64_t t0 = host->Now();
  ASSERT_TRUE(Click("CmdPago"));
  EXPECT_EQ(vb::ScriptedRndLeft(), 0u);

  EXPECT_EQ(static_cast<int>(CartasTrocaPoker), 3);
  EXPECT_EQ(ListaTroca.substr(0, 2), "CO");
  EXPECT_EQ(Mao(CartasPoker), (std::vector<std::string>{"KC", "9C", "7C", "4C", "2C"}));
  // Announced and taken: one card, said twice; the count of three never shows.
  ASSERT_GE(g_falas_dela.size(), 3u);
  const std::vector<std::string> pedido(g_falas_dela.end() - 2, g_falas_dela.end());
  EXPECT_EQ(pedido, std::vector<std::string>(2, "Eu Vou ter que pedir 1 Cartinha do Baralho"));
  // Her nine of D goes down at the second beat, the king turns up in plain sight, then the hand
  // is covered again.
  EXPECT_EQ(Historia(true, 2, t0),
            (std::vector<std::pair<std::int64_t, std::string>>{
                {t0 + 2000, "DORSO"}, {t0 + 5500, "KC"}, {t0 + 6250, "FRENTE"}}));
  for (int pos : {1, 3, 4, 5}) EXPECT_FALSE(Dorso(pos)) << pos;

  // His turn to mark: 5 seconds of hers, half a second for the card she turned, 1.5 to cover.
  EXPECT_EQ(host->Now() - t0, 5000 + 500 + 1500);
  EXPECT_EQ(static_cast<int>(Fase), 20);
  EXPECT_TRUE(PokerJaTrocou);
  EXPECT_TRUE(F().FraPedeCartasPlayer.Visible);
  EXPECT_TRUE(F().FraPedeCartasPlayer.Enabled);
  EXPECT_FALSE(F().FraApostaPlayer.Visible);
  EXPECT_EQ(Caption(F().CmdAcabei(1)), "&Acabei");
  EXPECT_EQ(Caption(F().CmdDesfazer(1)), "&DesFazer");
  EXPECT_EQ(g_falas_dele.back(), "Indica Quais Cartas desejas Trocar, clicando-as com o mouse!");
  EXPECT_EQ(F().ActiveControl(), &F().PicCartasPlayer(0));
  EXPECT_TRUE(Borda(0));

  // A mark by mouse, one by keyboard; the marked card takes the focus without its border.
  ASSERT_TRUE(Click("PicCartasPlayer", 3));
  ASSERT_TRUE(Key(39));
  EXPECT_EQ(F().ActiveControl(), &F().PicCartasPlayer(4));
  EXPECT_TRUE(Borda(4));
  EXPECT_FALSE(Borda(3));
  ASSERT_TRUE(Key(32));
  ASSERT_TRUE(Key(37));
  EXPECT_EQ(F().ActiveControl(), &F().PicCartasPlayer(3));
  EXPECT_FALSE(Borda(3));
  EXPECT_EQ(static_cast<int>(MarcadasTroca), 2);
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(Marcada(i), i >= 3) << i;
  // The pressed buttons come up again at the next tick of the key spring.
  EXPECT_EQ(F().ToolbarPlayer.Button(10).Value(), 1);
  EXPECT_TRUE(F().TimerKeyPot.Enabled);
  host->RunFor(100);
  EXPECT_EQ(F().ToolbarPlayer.Button(8).Value(), 0);
  EXPECT_EQ(F().ToolbarPlayer.Button(10).Value(), 0);
  EXPECT_FALSE(F().TimerKeyPot.Enabled);

  // He draws after her, from place 10 + her count of three: places 12 and 13 are skipped.
  const std::int64_t t1 = host->Now();
  ASSERT_TRUE(Click("CmdAcabei", 1));
  EXPECT_EQ(Historia(false, 4, t1).front(), std::make_pair(t1 + 1000, std::string("QD")));
  EXPECT_EQ(Historia(false, 5, t1).front(), std::make_pair(t1 + 2000, std::string("JP")));
  EXPECT_EQ(Mao(CartasPlayer), (std::vector<std::string>{"AD", "KD", "QD", "QP", "JP"}));
  EXPECT_NE(std::find(g_falas_dele.begin(), g_falas_dele.end(),
                      "Eu Vou ter que pedir 2 Cartinhas do Baralho"),
            g_falas_dele.end());
  for (int i = 0; i <= 4; ++i) EXPECT_FALSE(Marcada(i)) << i;
  // She drew once only; the round of final bets has begun.
  EXPECT_EQ(Mao(CartasPoker), (std::vector<std::string>{"KC", "9C", "7C", "4C", "2C"}));
  EXPECT_GE(static_cast<int>(Fase), 30);
  EXPECT_FALSE(F().FraPedeCartasPlayer.Visible);
}

// She passed, so he holds the hand and draws first: all five with MaxTroca 5, from places 11 to
// 15, and her cards start at place 16, where she has seen three deuces.
TEST_F(Exchange, HeDrawsFiveFirstAndHerCardsStartAtPlace16) {
  Comecar(kEstadoPassa);
  ASSERT_FALSE(MaoPlayer);
  MaxTroca = 5;
  Mesa({"KD", "JT", "8P", "5C", "3D"}, {"AC", "QC", "9D", "7T", "4P"},
       {"6C", "6D", "6P", "6T", "9C", "2C", "2D", "2P", "9T", "4T"});
  EntrarTroca();
  EXPECT_FALSE(PokerJaTrocou);
  for (int i = 0; i <= 4; ++i) ASSERT_TRUE(Click("PicCartasPlayer", i));
  EXPECT_EQ(static_cast<int>(MarcadasTroca), 5);

  vb::ScriptRnd({Humor(4)});  // nothing, mood 4: all her cards
  const std::int64_t t1 = host->Now();
  ASSERT_TRUE(Click("CmdAcabei", 1));
  EXPECT_EQ(static_cast<int>(CartasTrocaPlayer), 5);
  EXPECT_EQ(Mao(CartasPlayer), Ordenada({"6C", "6D", "6P", "6T", "9C"}));
  for (int pos = 1; pos <= 5; ++pos) {
    EXPECT_EQ(Historia(false, pos, t1).front(), std::make_pair(t1 + 1000 * pos, Baralho[10 + pos]));
  }

  // Her draw starts when his is laid: 5 s of his cards, 2.75 s to lay them.
  const std::int64_t t2 = t1 + 5000 + 2750;
  EXPECT_EQ(static_cast<int>(CartasTrocaPoker), 5);
  EXPECT_EQ(ListaTroca, "PI02C02D02P");
  EXPECT_EQ(Mao(CartasPoker), Ordenada({"2C", "2D", "2P", "9T", "4T"}));
  for (int pos = 1; pos <= 5; ++pos) {
    // Each card goes down at its beat and turns up in hand order, place 15 + pos.
    EXPECT_EQ(Historia(true, pos, t2), (std::vector<std::pair<std::int64_t, std::string>>{
                                           {t2 + 1000 * pos, "DORSO"},
                                           {t2 + 5000 + 500 * pos, Baralho[15 + pos]},
                                           {t2 + 5000 + 2500 + 750, "FRENTE"}}))
        << pos;
  }
  const std::vector<std::string> pedido(g_falas_dela.begin() + 1, g_falas_dela.begin() + 3);
  EXPECT_EQ(pedido, std::vector<std::string>(2, "Eu Vou ter que pedir 5 Cartinhas do Baralho"));
}

// MaxTroca 1: a second mark is refused, by card or by toolbar button, and each click is heard.
// He takes place 11, she place 12.
TEST_F(Exchange, WithMaxTroca1ASecondMarkIsUndone) {
  Comecar(kEstadoPassa);
  MaxTroca = 1;
  Mesa({"9C", "9D", "7C", "4C", "2C"}, {"AD", "KD", "QP", "8T", "6P"}, {"AT", "KC", "5D"});
  EntrarTroca();
  EfeitosOn = true;
  vb::ClearMciSent();
  ASSERT_TRUE(Click("PicCartasPlayer", 0));
  ASSERT_TRUE(Click("PicCartasPlayer", 1));
  vb::Input botao = On("ToolbarPlayer", -1, vb::Input::Type::ButtonClick);
  botao.button = 6;
  ASSERT_TRUE(vb::Engine::Get().Deliver(botao));
  EXPECT_EQ(static_cast<int>(MarcadasTroca), 1);
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(Marcada(i), i == 0) << i;
  EXPECT_EQ(F().ToolbarPlayer.Button(4).Value(), 1);  // pressed, though not marked
  EXPECT_EQ(Efeitos("CARTASEL"), 3);
  // Unmarking and marking again are heard too.
  ASSERT_TRUE(Click("PicCartasPlayer", 0));
  ASSERT_TRUE(Click("PicCartasPlayer", 0));
  EXPECT_EQ(Efeitos("CARTASEL"), 5);
  EXPECT_TRUE(Marcada(0));

  vb::ScriptRnd({Humor(1)});  // a pair, mood 1: three, held to one
  ASSERT_TRUE(Click("CmdAcabei", 1));
  EXPECT_EQ(static_cast<int>(CartasTrocaPlayer), 1);
  EXPECT_EQ(Mao(CartasPlayer), Ordenada({"AT", "KD", "QP", "8T", "6P"}));
  EXPECT_EQ(Efeitos("CARTAMESA"), 1);
  EXPECT_EQ(static_cast<int>(CartasTrocaPoker), 1);
  EXPECT_EQ(Mao(CartasPoker), Ordenada({"KC", "9C", "7C", "4C", "2C"}));
  EXPECT_EQ(Efeitos("CARTAINI"), 1);
  EXPECT_EQ(Efeitos("CARTASHOW"), 1);
}

// Over many random deals, deck sizes, house rules, counts and orders: after her exchange every
// card of her plan is in her hand, and what she took is the run of deck places from her first.
TEST_F(Exchange, SheDrawsExactlyWhatSheSaw) {
  Comecar(kEstadoAbre);
  std::mt19937 gen(20240611);
  auto sorte = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(gen); };
  static constexpr int kTamanhos[] = {52, 48, 44, 40, 36, 32, 28, 24, 20};
  std::map<int, int> pedidas, tomadas;
  std::set<std::string> classes;
  for (int rodada = 0; rodada < 3000; ++rodada) {
    NroCartas = static_cast<std::uint8_t>(kTamanhos[sorte(0, 8)]);
    EncherBaralho();
    std::shuffle(Baralho.begin() + 1, Baralho.begin() + 1 + NroCartas, gen);
    MaxTroca = static_cast<std::uint8_t>(sorte(1, 5));
    MaoPlayer = sorte(0, 1);
    FullMataCor = sorte(0, 1);
    TrioMataEscada = sorte(0, 1);
    CartasTrocaPlayer = static_cast<std::uint8_t>(MaoPlayer ? 0 : sorte(0, MaxTroca));
    for (int i = 1; i <= 5; ++i) {
      CartasPoker[i] = Baralho[MaoPlayer ? i : i + 5];
      CartasPlayer[i] = Baralho[MaoPlayer ? i + 5 : i];
    }
    OrdenarCartas(true);
    OrdenarCartas(false);
    const auto antes = Mao(CartasPoker);
    Fase = 20;
    vb::ScriptRnd({Humor(sorte(0, 8))});
    TrocarCartasPoker();
    ASSERT_EQ(vb::ScriptedRndLeft(), 0u);

    SCOPED_TRACE("round " + std::to_string(rodada) + " plan " + ListaTroca);
    const auto depois = Mao(CartasPoker);
    for (std::size_t k = 2; k + 3 <= ListaTroca.size(); k += 3) {
      const std::string carta = Codigo(ListaTroca.substr(k, 3));
      ASSERT_NE(std::find(depois.begin(), depois.end(), carta), depois.end()) << carta;
    }
    std::vector<std::string> novas;
    for (const auto& c : depois)
      if (std::find(antes.begin(), antes.end(), c) == antes.end()) novas.push_back(c);
    const int primeira = 11 + (MaoPlayer ? 0 : CartasTrocaPlayer);
    std::vector<std::string> lugares(Baralho.begin() + primeira,
                                     Baralho.begin() + primeira + novas.size());
    ASSERT_EQ(Ordenada(novas), Ordenada(lugares));
    ASSERT_LE(novas.size(), static_cast<std::size_t>(CartasTrocaPoker));
    pedidas[CartasTrocaPoker]++;
    tomadas[static_cast<int>(novas.size())]++;
    classes.insert(ListaTroca.substr(0, 2));
  }
  // The rounds reached every count, asked and taken, and plans of many kinds.
  for (int n = 0; n <= 5; ++n) {
    EXPECT_GT(pedidas[n], 0) << n;
    EXPECT_GT(tomadas[n], 0) << n;
  }
  EXPECT_GE(classes.size(), 7u);
}

}  // namespace
