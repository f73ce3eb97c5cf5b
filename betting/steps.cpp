// Steps shared by the player's commands and the opponent's turns in both rounds.
#include "betting/betting.h"
#include "chips/chips.h"
#include "core/game_state.h"
#include "core/hand_cycle.h"
#include "evaluation/analisis.h"
#include "opponent/leyendas.h"
#include "opponent/troca.h"
#include "platform/runtime.h"
#include "sound/trilha.h"
#include "table/frm_principal.h"

void AnalisarJogos() {
  AnalisarJogo(true);
  AnalisarJogo(false);
}

void FecharAposta() {
  auto& f = Frm_Principal();
  f.FraApostaPlayer.Visible = false;
  f.FraApostaPlayer.Enabled = false;
  for (int i = 0; i <= 3; ++i) f.PicFichasPlayer(i).Enabled = false;
  for (int b = 2; b <= 8; b += 2) f.ToolbarPlayerCoins.Button(b).SetEnabled(false);
}

void FecharPlayer() {
  auto& f = Frm_Principal();
  f.FraPedeCartasPlayer.Visible = false;
  f.FraPedeCartasPlayer.Enabled = false;
  for (int i = 0; i <= 4; ++i) f.PicCartasPlayer(i).Visible = false;
  FecharAposta();
}

void AcertarPilhas() {
  if (FichasPoker > 0) TrocarFichas(true, true);
  if (FichasPlayer > 0) TrocarFichas(false, true);
  AtualizarLabels();
}

bool SemMaisApostas() {
  return (FichasPlayer == 0 && FichasPoker == 0) ||
         (FichasPlayer == 0 && FichasPoker > 0 && MesaPote <= MesaApostas) ||
         (FichasPoker == 0 && FichasPlayer > 0 && MesaApostas <= MesaPote);
}

void EntrarConfronto() {
  auto& f = Frm_Principal();
  Fase = 40;
  f.FraConfrontarJogos.Visible = true;
  f.FraConfrontarJogos.Enabled = true;
  f.CmdConfrontar.SetFocus();
}

void EntrarTroca() {
  Fase = 20;
  if (MaoPlayer) {
    TrocarCartasPoker();
    PokerJaTrocou = true;
  } else {
    PokerJaTrocou = false;
  }
  PrepararTroca();
}

void MostrarFim(const char* linha1, const char* linha2, const char* linha3) {
  auto& f = Frm_Principal();
  f.FraMaisUma.Visible = true;
  f.FraMaisUma.Enabled = true;
  f.CmdMaisUma.SetFocus();
  f.FraPokerMensagem.Visible = true;
  f.FraPokerMensagem.Enabled = true;
  std::string text = std::string(linha1) + "\r\n" + linha2;
  if (linha3) text += std::string("\r\n") + linha3;
  f.LabelPokerMensagem.Caption = text;
}

void PokerDesiste(bool dizer_o_ganho) {
  Leyenda(true, "EUDESISTI", 0);
  if (dizer_o_ganho) Leyenda(false, "ELEGANHOU", MesaApostas + MesaPote + MesaPingo);
  MesaApostas = 0;
  MesaPote = 0;
  MesaPingo = 0;
  MontarFichas(false, true);
  AcertarPilhas();
  TocarFim("WAIT");
  Esperar(kPausaDesistencia);
  MostrarFim("Põe Ser, Mão Ruim, eueeh!", "Vamos Mais Uma ?");
  Fase = 50;
}

void PlayerDesiste() {
  Leyenda(true, "EUGANHEI", 0);
  Leyenda(false, "ELEDESISTIU", 0);
  MesaApostas = 0;
  MesaPote = 0;
  MesaPingo = 0;
  MontarFichas(true, true);
  AcertarPilhas();
  FecharPlayer();
  TocarFim("GANHEI");
  Esperar(kPausaDesistencia);
  MostrarFim("Pode deixar, Eu levo tudo por você, Obrigada!", "Peninha, Garotão...!",
             "Outra Vez ?");
  Fase = 50;
}
