// Hands a second of the headless game on the virtual clock: the random legal player of the soak
// plays whole games, with every check of the soak on. Items processed are hands dealt.
#include <benchmark/benchmark.h>

#include <cstdint>

#include "soak.h"

namespace {

void BM_RandomPlayerHands(benchmark::State& state) {
  std::uint64_t seed = 1;
  long long hands = 0;
  for (auto _ : state) {
    const replay::SoakReport r = replay::RunSoak(static_cast<int>(state.range(0)), seed++);
    hands += r.hands;
    benchmark::DoNotOptimize(r.unexplained_chips);
  }
  state.SetItemsProcessed(hands);
  state.counters["hands_per_game"] =
      benchmark::Counter(static_cast<double>(hands) / static_cast<double>(state.iterations()) /
                         static_cast<double>(state.range(0)));
}
BENCHMARK(BM_RandomPlayerHands)->Arg(100)->Unit(benchmark::kMillisecond);

}  // namespace
