// pokerzeva-soak [GAMES] [SEED]: a long run of the random player, with its figures. Exits 1 when
// Fase left its table, a game stopped where no rule stops it, or a change of the chips had no rule
// behind it.
// POKERZEVA_SOAK_DEBUG=1 prints each unexplained change of the chips with what the screen did;
// POKERZEVA_SOAK_KEEP=DIR keeps every game so flagged as a replay script, DIR/game-N.script, whose
// first line gives its options ("# options: --seed ...").
#include <chrono>
#include <cstdlib>
#include <iostream>

#include "soak.h"

int main(int argc, char** argv) {
  const int games = argc > 1 ? std::atoi(argv[1]) : 2000;
  const unsigned long long seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
  const auto start = std::chrono::steady_clock::now();
  const replay::SoakReport r = replay::RunSoak(games, seed);
  const double secs =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  std::cout << replay::Describe(r) << "wall time " << secs << " s, " << r.hands / secs
            << " hands a second\n";
  return replay::Unexpected(r) ? 1 : 0;
}
