// The exchange of cards between the two betting rounds. There is no deck pointer: the hands hold
// places 1 to 10 of the deck and every new card is found by arithmetic from place 11 on.
#pragma once

void PrepararTroca();
void MarcarCarta(int Indice);
void TrocarCartasPlayer();
void TrocarCartasPoker();
