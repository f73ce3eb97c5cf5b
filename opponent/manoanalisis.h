// MANOANALISIS: which cards the opponent keeps when she draws.
//
// She does not play the odds. Before her exchange she reads the very cards the deck is about to
// deal her, joins them to her hand, and plans the best hand she can really reach: the cards she
// keeps plus the next cards of the deck, in the order she will receive them. The plan goes to
// ListaTroca; the exchange then throws away every card of her hand that the plan does not name.
//
// Working format of a card: three characters, the rank in two digits ("14" for an ace down to
// "02") and the suit letter C, D, P or T; "AC" reads "14C", "DD" (ten of D) "10D", "7P" "07P".
//
// The pool: one string of working-format cards. Places 1 to 5 are the hand in hand order
// (string positions 1, 4, 7, 10, 13, counted from 1), places 6 on are the next deck cards in
// deck order (positions 16, 19, 22, 25, 28).
#pragma once

#include <cstdint>
#include <string>

// Plans the draw of one side and writes it to ListaTroca: the two-character class code (ER, PO,
// CO, FU, ES, PI, P2, P1 or NN) followed by the kept cards in working format.
//
// Lado True reads CartasPoker, False CartasPlayer. Quantas deck cards are read from
// Baralho(PosicaoBaralho) on; PosicaoBaralho is left just past the last card read. When Texto is
// not empty it is the pool itself, and neither the hand nor the deck is read.
void AnalisarMao(bool Lado, std::uint8_t& PosicaoBaralho, std::uint8_t& Quantas,
                 const std::string& Texto);

// True when the candidate Jogo (working-format cards) can really be drawn from Pool: to reach
// the j-th next deck card she must throw away at least j cards, so she keeps at most 5 - j of
// her own; keeping none means throwing all five, which only MaxTroca 5 allows. A card that is not
// in the pool at all can't be reached.
bool ValorDaCarta(const std::string& Jogo, const std::string& Pool);
