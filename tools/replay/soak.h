// A random legal player: whole games from many generator states with the options drawn at random,
// checking after every action what the rules allow.
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace replay {

struct SoakReport {
  int games = 0;
  long long hands = 0;
  long long actions = 0;
  double virtual_seconds = 0;
  std::map<std::string, int> endings;  // how each game ended
  std::map<int, int> faults;           // run-time error number -> games
  int dead_ends = 0;                   // nothing to press: the player without chips at Fase 10
  std::map<std::string, long long> fase_errors;   // a move of Fase outside the table
  std::map<std::string, long long> chip_changes;  // chips made or lost, by the action that did it
};

SoakReport RunSoak(int games, std::uint64_t seed, int max_actions_per_game = 4000);
std::string Describe(const SoakReport& report);

}  // namespace replay
