#include "soak.h"

#include <random>
#include <set>
#include <sstream>

#include "core/game_state.h"
#include "replay.h"

namespace replay {
namespace {

// The moves of Fase the rules allow.
bool FaseAllowed(int from, int to) {
  if (to == 0) return true;
  static const std::set<std::pair<int, int>> kMoves = {
      {0, 10},  {10, 11}, {11, 12}, {12, 13}, {30, 31}, {10, 20}, {11, 20},
      {12, 20}, {13, 20}, {10, 50}, {11, 50}, {12, 50}, {13, 50}, {20, 50},
      {30, 50}, {31, 50}, {20, 30}, {30, 40}, {31, 40}, {40, 50}};
  return kMoves.count({from, to}) > 0;
}

std::vector<std::pair<int, int>>* g_moves = nullptr;
void RecordFase(const std::string& from, const std::string& to) {
  if (g_moves) g_moves->push_back({std::atoi(from.c_str()), std::atoi(to.c_str())});
}

long long ChipsInPlay() {
  return static_cast<long long>(FichasPlayer) + FichasPoker + MesaPingo + MesaPote + MesaApostas;
}

}  // namespace

SoakReport RunSoak(int games, std::uint64_t seed, int max_actions_per_game) {
  SoakReport r;
  std::mt19937_64 rng(seed);
  for (int g = 0; g < games; ++g) {
    Options o;
    o.seed = rng();
    static const int kCards[] = {52, 48, 44, 40, 36, 32, 28, 24, 20};
    static const int kChips[] = {990, 660, 330};
    o.cards = kCards[rng() % 9];
    o.chips = kChips[rng() % 3];
    o.exchange = static_cast<int>(rng() % 6);
    o.no_limit = rng() % 2;
    o.full_beats_flush = rng() % 2;
    o.straight_beats_trips = rng() % 2;
    o.effects = rng() % 4 == 0;
    o.music = o.effects && rng() % 2;

    Session s(o, nullptr);
    std::vector<std::pair<int, int>> moves;
    g_moves = &moves;
    FaseVar::Observe(RecordFase);
    s.Start();
    ++r.hands;
    int line = 0;
    while (!s.over() && line < max_actions_per_game) {
      for (auto [from, to] : moves)
        if (!FaseAllowed(from, to))
          ++r.fase_errors[std::to_string(from) + "->" + std::to_string(to)];
      moves.clear();
      auto actions = s.LegalActions();
      if (actions.empty()) {
        ++r.dead_ends;
        break;
      }
      // Mostly finish turns rather than pile chips for ever.
      // Leaving the game is one choice among many, and rarely taken.
      std::string a = actions[rng() % actions.size()];
      if (a == "click CmdSair 2" && rng() % 20 != 0) a = actions.back();
      const long long before = ChipsInPlay();
      const int fase_before = Fase;
      s.Play(a, ++line);
      ++r.actions;
      if (a == "click CmdMaisUma") ++r.hands;
      const long long after = ChipsInPlay();
      if (after != before && !s.over()) {
        r.chip_changes[a.substr(0, a.rfind(' ')) + " at " + std::to_string(fase_before)] +=
            after - before;
      }
      s.Play("wait 100", ++line);
    }
    g_moves = nullptr;
    FaseVar::Observe(nullptr);
    r.virtual_seconds += s.now() / 1000.0;
    ++r.games;
    ++r.endings[s.over() ? s.over_how() : "unfinished"];
    if (s.fault()) ++r.faults[s.fault()];
  }
  return r;
}

std::string Describe(const SoakReport& r) {
  std::ostringstream o;
  o << "games " << r.games << ", hands " << r.hands << ", actions " << r.actions
    << ", virtual time " << r.virtual_seconds << " s\n";
  for (auto& [how, n] : r.endings) o << "  ended by " << how << ": " << n << "\n";
  for (auto& [num, n] : r.faults) o << "  fault " << num << ": " << n << "\n";
  o << "  dead ends (nothing to press): " << r.dead_ends << "\n";
  for (auto& [m, n] : r.fase_errors) o << "  Fase moved " << m << ": " << n << " times\n";
  for (auto& [a, n] : r.chip_changes) o << "  chips changed by '" << a << "': " << n << "\n";
  return o.str();
}

}  // namespace replay
