// The right-click menu: a new game, the settings behind their dialogs, the card back, the switches
// (all of which take effect from the next hand on), the cheat and the credits. It opens only
// between hands.
#pragma once

void MnuNova_Click();
void MnuNroCartas_Click();
void MnuNroFichas_Click();
void MnuTroca_Click();
void MnuVFicha_Click();
void MnuNome_Click();
void MnuFundos_Click();
void MnuTrapassa_Click();
void MnuVerBaralho_Click();
void MnuVerCartas_Click();
void MnuAbout_Click();
void MnuLimite_Click();
void MnuFullxCor_Click();
void MnuTrioXEscada_Click();
void MnuMusica_Click();
void MnuEfeitos_Click();
void MnuSair_Click();
