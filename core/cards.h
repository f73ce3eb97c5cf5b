// The 52 cards of the game and their order.
//
// A card code is two characters, rank then suit. The ranks run A K Q J D 9 8 7 6 5 4 3 2 (D is the
// ten), the suits C D P T. Each card carries a sort tag from 1 to 52: the highest rank first and,
// within a rank, the suits in the order C, D, P, T. The deck is loaded from this table in its
// order, so a smaller deck simply loses the lowest ranks; hands are sorted by the tag; the card
// pictures of the table are keyed by the same codes in the same order.
#pragma once

#include <array>
#include <string>
#include <string_view>

struct CardInfo {
  std::string_view code;  // "AC", "DT", "2P"
  int tag;                // 1 .. 52

  // The tag as the picture store keeps it, a text: "1" .. "52".
  std::string TagText() const;
};

// clang-format off
inline constexpr std::array<CardInfo, 52> kCartas = {{
    {"AC", 1},  {"AD", 2},  {"AP", 3},  {"AT", 4},
    {"KC", 5},  {"KD", 6},  {"KP", 7},  {"KT", 8},
    {"QC", 9},  {"QD", 10}, {"QP", 11}, {"QT", 12},
    {"JC", 13}, {"JD", 14}, {"JP", 15}, {"JT", 16},
    {"DC", 17}, {"DD", 18}, {"DP", 19}, {"DT", 20},
    {"9C", 21}, {"9D", 22}, {"9P", 23}, {"9T", 24},
    {"8C", 25}, {"8D", 26}, {"8P", 27}, {"8T", 28},
    {"7C", 29}, {"7D", 30}, {"7P", 31}, {"7T", 32},
    {"6C", 33}, {"6D", 34}, {"6P", 35}, {"6T", 36},
    {"5C", 37}, {"5D", 38}, {"5P", 39}, {"5T", 40},
    {"4C", 41}, {"4D", 42}, {"4P", 43}, {"4T", 44},
    {"3C", 45}, {"3D", 46}, {"3P", 47}, {"3T", 48},
    {"2C", 49}, {"2D", 50}, {"2P", 51}, {"2T", 52},
}};
// clang-format on

// The tag of a card code, looked up by the code as the picture store is. A code that is not a card
// ends the program with "Elemento não encontrado", as a missing key of the store does.
int CardTag(std::string_view code);
std::string CardTagText(std::string_view code);

// Fills Baralho(1) .. Baralho(NroCartas) with the first NroCartas codes of the table, in table
// order. Places above NroCartas keep what they held. Runs at start, at a new game and when the
// deck size changes; between those moments the deck keeps whatever order the shuffles left.
void EncherBaralho();
