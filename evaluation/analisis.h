// Module ANALISIS: the value string, the hand code and the score of a sorted five-card hand.
//
// Two hands are compared by their scores and by nothing else, so the way the score is built is the
// rule of the game, quirks included: kickers never count, two pairs go by the sum of the pairs,
// and the last digits of both sides' scores come from the opponent's cards.
//
// Every routine expects the hand sorted by OrdenarCartas, highest card first.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The value string of CartasPoker (Lado True) or CartasPlayer (False): each card as a two-digit
// value and its suit, in hand order. Ace 14, King 13, Queen 12, Jack 11, Ten 10, the others a zero
// and the digit: "14C13D09P09T02C".
std::string ValoresDaMao(bool Lado);

// The hand code of that hand: the class (ER PO CO FU ES PI P2 P1 NN) and up to two two-digit
// values, "ER14", "P21309", "NN09". Every straight flush is ER; an ace-low straight reads as
// ace-high (ES14). The deck size decides which ace-low run counts as a straight.
std::string JogoDaMao(bool Lado);

// The score of hand code Jogo with value string Valores: the text of a three-digit base for the
// class, the two characters at places 3 and 4 of Jogo and the sum of the five values of Valores,
// read as a number. The house rules FullMataCor and TrioMataEscada swap the bases of flush and
// full house, of straight and three of a kind.
std::int32_t PontosDoJogo(std::string_view Jogo, std::string_view Valores);

// Analyses one side into the shared variables: Lado True fills ValoresPoker, JogoTemp, JogoPoker
// and PontosPoker; False fills ValoresPlayer, JogoTemp, JogoPlayer and PontosPlayer. Both sides
// are scored with ValoresPoker, so the opponent must be analysed first.
void AnalisarJogo(bool Lado);
