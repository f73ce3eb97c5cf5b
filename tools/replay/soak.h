// A random legal player: whole games from many generator states with the options drawn at random,
// checking after every action what the rules allow.
//
// The chips are watched in two ways at once: the totals the game counts (FichasPlayer,
// FichasPoker, MesaPingo, MesaPote, MesaApostas) and the chips the screen shows (the four piles
// of each stack and the chip pictures on the table). The rules let the two drift apart in a few
// known places, and let the count catch up with the screen whenever a stack is counted again
// (TrocarFichas, MontarFichas). Every change of either is named by the rule that made it; what no
// rule explains is counted apart, and a sound game has none of it.
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace replay {

// Chips made or lost by one rule: how often, how many on the screen, how many the totals made or
// lost by the rule itself, and how many of the screen's the totals took up later, when a stack was
// counted again (the split of what is taken up among the rules is oldest first).
struct ChipCause {
  long long times = 0;
  long long on_screen = 0;  // chips the screen gained (+) or lost (-)
  long long in_totals = 0;  // chips the totals gained (+) or lost (-) by the rule itself
  long long taken_up = 0;   // chips of the screen's the totals took up later
};

struct SoakReport {
  int games = 0;
  long long hands = 0;  // hands dealt (NovaMao), replayed ties included
  long long actions = 0;
  double virtual_seconds = 0;
  std::map<std::string, int> endings;            // how each game ended
  std::map<int, int> faults;                     // run-time error number -> games
  std::map<std::string, int> fault_causes;       // each fault, by where it struck
  int dead_ends = 0;                             // the player without chips at Fase 10
  int hung = 0;                                  // CmdTudo at Fase 13
  int no_turn_final = 0;                         // the player without chips at Fase 30
  std::map<std::string, long long> stuck;        // nothing to press anywhere else: a fault
  std::map<int, std::string> stuck_examples;     // the first table seen in each such state
  std::map<std::string, long long> fase_errors;  // a move of Fase outside the table
  std::map<std::string, ChipCause> chips;        // chip changes by the rule that made them
  long long unexplained_chips = 0;               // changes no rule accounts for: a fault
};

SoakReport RunSoak(int games, std::uint64_t seed, int max_actions_per_game = 4000);
std::string Describe(const SoakReport& report);
// Whether the report holds anything the rules do not explain: a move of Fase outside its table,
// a game stuck or hung where no rule says so, a change of the chips with no rule behind it.
bool Unexpected(const SoakReport& report);

// The names of the chip rules, as the report gives them.
namespace chip_rule {
inline constexpr const char* kPhantom = "a phantom chip from an empty chip place (EscolherFicha)";
inline constexpr const char* kOnes = "the ones change in MoverFichas does not balance";
inline constexpr const char* kNegative =
    "a negative stake in MoverFichas (CmdTudo, or her raise below what she has out)";
inline constexpr const char* kUnswept =
    "chips already on the table hidden without a sweep (MoverFichas with Acumular False)";
inline constexpr const char* kDoublePass =
    "a double pass folds the stake counters into MesaPingo; their pictures go unswept";
inline constexpr const char* kDesfazer = "CmdDesfazer sweeps chips MesaPote still counts";
inline constexpr const char* kMintShown = "TrocarFichas minting (shown in the stack)";
inline constexpr const char* kMintAnte = "TrocarFichas minting at the ante (count only, not shown)";
inline constexpr const char* kFull =
    "MontarFichas drops what a full stack (30 of each, 1980 chips) cannot hold";
inline constexpr const char* kNewStacks =
    "a new game or a new number of chips from the menu builds both stacks again";
inline constexpr const char* kCap =
    "the opponent's stack loses chips over 1810 (PilhaDeFichas cap)";
}  // namespace chip_rule

}  // namespace replay
