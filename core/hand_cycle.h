// The life of a hand, from start-up to the end of the game. There is no main loop: a hand is a
// chain of handlers, and the opponent's moves run synchronously inside them, with Esperar pausing
// while the screen stays alive.
#pragma once

#include "core/speeds.h"

void Form_Initialize();
void ConstruirPilhas(bool Poker);
// Both stacks as a new game has them: the table swept, the counts zeroed, the piles built again.
void RefazerFichas();
void Form_Unload(int& Cancel);
void NovaMao();
void CobrarPingo();
void IniciarApostas();
void PrepararPlayer();
void Esperar(float Vezes, int Intervalo);
// The same with one of the game's named pauses.
inline void Esperar(const Pausa& pausa) {
  Esperar(pausa.vezes, pausa.intervalo);
}
void TimerEspera_Timer();
void OcultarMoedas();
void AjustarTela();
void CmdMaisUma_Click();
void Timer1_Timer();
