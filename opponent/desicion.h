// The opponent's mind about chips.
//
// Desicion(Estagio) decides one thing for one moment of the hand and writes it into that moment's
// variable; it moves no chips and says nothing, the betting turns read the variable and act:
//
//   "CAR"          CartasTrocaPoker      how many cards she exchanges
//   "ABRE"         AberturaPoker         she speaks first in the opening round (0: she passes)
//   "CUBRE1"       AberturaPoker         answer to the player's opening stake (0: she folds)
//   "CUBRE2"       AumentoAberturaPoker  answer to his raise (0: she folds)
//   "CUBRE3"       TotalAberturaPoker    last answer of the opening round (0: she folds)
//   "FINAL"        ApostaPoker           she speaks first in the final round (0: she passes)
//   "CUBREFINAL1"  ApostaPoker           answer to the player's final stake
//   "CUBREFINAL2"  TotalApostaPoker      last answer of the final round (0: she folds)
//
// She cheats: she reads the class and score of the player's hidden hand (JogoPlayer,
// PontosPlayer) and holds them against her own, so the caller runs AnalisarJogo for both sides
// first. Every stage begins by drawing her mood, a whole number 0 to 8 kept in Semente, which is
// also the reseed of the next draw. Any other key changes nothing and draws nothing.
#pragma once

#include <string>

void Desicion(const std::string& Estagio);
