// The game's random source: Randomize with a number, then Rnd, a uniform float from 0 up to
// below 1.
//
// The state is one 64-bit number driven by the splitmix64 step. A reseed mixes the bits of the new
// value into the whole state, so reseeding twice with the same value goes on instead of
// restarting, and nothing that came before is lost.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>

namespace vb {

float Rnd();
void Randomize(double seed);

// Int(Rnd x n + a), computed in double from the float draw: a band a..a+n-1.
int DrawInt(double n, double a = 0);

// The whole state, for tests, the replay tool and the desktop start.
std::uint64_t RndState();
void SetRndState(std::uint64_t state);

// The start state: POKERZEVA_SEED when it holds a decimal number, else the system's entropy.
std::uint64_t StartStateFromEnvironment();

// Tests can script the next values of Rnd: each Rnd call takes the front of the queue while it
// holds values; Randomize leaves the script alone. An empty queue falls back to the generator.
void ScriptRnd(std::deque<float> values);
std::size_t ScriptedRndLeft();

}  // namespace vb
