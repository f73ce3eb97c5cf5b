// The betting flow: the player's commands, the opponent's turns in the two rounds, the showdown.
#pragma once

// The player's commands.
void CmdPago_Click();
void CmdTudo_Click();
void CmdDesfazer_Click(int Index);
void CmdAcabei_Click(int Index);
void CmdAcabei_GotFocus(int Index);
void CmdAcabei_LostFocus(int Index);
void CmdSair_Click(int Index);
void CmdConfrontar_Click();

// The opponent's turns and the showdown.
void VezPokerAbertura();
void VezPokerFinal();
// Her answer once the turn has passed the all-committed check, by the table alone (tests reach
// the tables that the check keeps play from reaching).
void ResponderFinal();
void ConfrontarJogos();

// Steps shared by the commands and both rounds.
// Both hands scored afresh, hers first, before she decides.
void AnalisarJogos();
void FecharAposta();
void FecharPlayer();
void AcertarPilhas();
bool SemMaisApostas();
void EntrarConfronto();
void EntrarTroca();
void MostrarFim(const char* linha1, const char* linha2, const char* linha3 = nullptr);
// She gives up and the player takes the whole table; in the final round she tells him what he won.
void PokerDesiste(bool dizer_o_ganho);
void PlayerDesiste();
