#include "platform/rnd.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <random>
#include <string>

namespace vb {
namespace {

std::uint64_t g_state = 0;
std::deque<float> g_script;

std::uint64_t Mix(std::uint64_t z) {
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
  return z ^ (z >> 31);
}

}  // namespace

float Rnd() {
  if (!g_script.empty()) {
    const float v = g_script.front();
    g_script.pop_front();
    return v;
  }
  g_state += 0x9E3779B97F4A7C15ULL;
  const std::uint64_t z = Mix(g_state);
  return static_cast<float>(static_cast<double>(z >> 40) * 0x1p-24);
}

void Randomize(double seed) {
  g_state = Mix(g_state ^ std::bit_cast<std::uint64_t>(seed));
}

int DrawInt(double n, double a) {
  return static_cast<int>(std::floor(static_cast<double>(Rnd()) * n + a));
}

std::uint64_t RndState() {
  return g_state;
}
void SetRndState(std::uint64_t state) {
  g_state = state;
}

std::uint64_t StartStateFromEnvironment() {
  if (const char* s = std::getenv("POKERZEVA_SEED")) {
    char* end = nullptr;
    const unsigned long long v = std::strtoull(s, &end, 10);
    if (end != s && *end == '\0') return v;
  }
  std::random_device rd;
  return (std::uint64_t{rd()} << 32) ^ rd();
}

void ScriptRnd(std::deque<float> values) {
  g_script = std::move(values);
}
std::size_t ScriptedRndLeft() {
  return g_script.size();
}

}  // namespace vb
