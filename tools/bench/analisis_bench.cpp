// AnalisarJogo for both sides, opponent first, as every betting turn and the showdown run it.
#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

#include "core/cards.h"
#include "core/deck.h"
#include "core/game_state.h"
#include "evaluation/analisis.h"
#include "platform/rnd.h"

namespace {

struct Pair {
  Hand poker, player;
};

// Dealt, sorted pairs of hands from real shuffles of each deck size.
std::vector<Pair> DealPairs(int count) {
  ResetGameState();
  vb::SetRndState(12345);
  std::vector<Pair> pairs;
  const int sizes[] = {52, 48, 44, 40, 36, 32, 28, 24, 20};
  for (int k = 0; static_cast<int>(pairs.size()) < count; ++k) {
    NroCartas = static_cast<std::uint8_t>(sizes[k % 9]);
    EncherBaralho();
    for (int s = 0; s < 4; ++s) {
      Semente = static_cast<float>(vb::DrawInt(9));
      MisturarBaralho(NroCartas);  // the mixing alone: no form, no sound
    }
    NroMao = k;
    DarCartas();
    OrdenarCartas(true);
    OrdenarCartas(false);
    pairs.push_back({CartasPoker, CartasPlayer});
  }
  NroCartas = 52;
  TrioMataEscada = true;
  return pairs;
}

// Puts a dealt hand into the shared hand, card by card, reusing the room of each code.
void LoadHand(Hand& to, const Hand& from) {
  for (int i = 1; i <= 5; ++i) {
    if (to[i].size() == 2 && from[i].size() == 2) {
      std::memcpy(to[i].data(), from[i].data(), 2);
    } else {
      to[i] = from[i];
    }
  }
}

void BM_AnalisarJogoBothSides(benchmark::State& state) {
  const std::vector<Pair> pairs = DealPairs(4096);
  std::size_t k = 0;
  for (auto _ : state) {
    const Pair& p = pairs[k++ & 4095];
    LoadHand(CartasPoker, p.poker);
    LoadHand(CartasPlayer, p.player);
    AnalisarJogo(true);
    AnalisarJogo(false);
    benchmark::DoNotOptimize(PontosPoker);
    benchmark::DoNotOptimize(PontosPlayer);
  }
  state.SetItemsProcessed(state.iterations());
  state.SetLabel("items = pairs of hands");
}
BENCHMARK(BM_AnalisarJogoBothSides);

}  // namespace
