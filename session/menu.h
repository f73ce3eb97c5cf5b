// The right-click menu's switches, which take effect from the next hand on. (It opens only
// between hands.)
#pragma once

void MnuNova_Click();
void MnuLimite_Click();
void MnuFullxCor_Click();
void MnuTrioXEscada_Click();
void MnuMusica_Click();
void MnuEfeitos_Click();
void MnuSair_Click();
