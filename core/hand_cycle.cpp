#include "core/hand_cycle.h"

#include "betting/betting.h"
#include "chips/chips.h"
#include "core/cards.h"
#include "core/deck.h"
#include "core/game_state.h"
#include "evaluation/analisis.h"
#include "opponent/desicion.h"
#include "opponent/leyendas.h"
#include "platform/engine.h"
#include "platform/runtime.h"
#include "sound/musicas.h"
#include "sound/trilha.h"
#include "table/cards.h"
#include "table/frm_principal.h"

// A side's stack built as at the start of a game: empty piles, then NroFichas in change.
void ConstruirPilhas(bool Poker) {
  auto& f = Frm_Principal();
  vb::Control& bar = Poker ? f.ToolbarPokerCoins : f.ToolbarPlayerCoins;
  vb::ControlArray<>& labels = Poker ? f.LabelPokerFichasPOT : f.LabelPlayerFichasPOT;
  bar.Button(8).SetImage("F50_00");
  bar.Button(6).SetImage("F10_00");
  bar.Button(4).SetImage("F05_00");
  bar.Button(2).SetImage("F01_00");
  labels(0).Caption = "01";
  labels(1).Caption = "05";
  labels(2).Caption = "10";
  labels(3).Caption = "50";
  PilhaDeFichas(Poker, NroFichas);
  if ((Poker ? FichasPoker : FichasPlayer) > 0) TrocarFichas(Poker, true);
}

// The table swept, the counts of chips at zero, and both stacks built again from NroFichas: the
// chips of a new game.
void RefazerFichas() {
  MontarFichas(true, true);
  MesaPingo = 0;
  FichasPlayer = 0;
  FichasPoker = 0;
  MesaApostas = 0;
  MesaPote = 0;
  ConstruirPilhas(true);
  ConstruirPilhas(false);
  AtualizarLabels();
}

void Form_Initialize() {
  auto& f = Frm_Principal();
  if (!Iniciado) ValoresIniciais();
  EncherBaralho();
  NroMao = 1;
  f.CmdConfrontar.Caption = "&Confrontar";
  f.CmdMaisUma.Caption = "&Mais UMA";
  f.CmdSair(2).Caption = "&EMBORA...";
  RefazerFichas();
  AjustarTela();
  OcultarMoedas();
  NovaMao();
}

void NovaMao() {
  auto& f = Frm_Principal();
  if (EfeitosOn && MusicaOn) {
    Trilha = Trilha + 1 > 3 ? 1 : Trilha + 1;
    RetomarMusica();
  }
  MusicTime = 0;
  f.Timer1.Interval = kIntervaloMusica;
  f.Timer1.Enabled = true;
  Leyenda(true, "Clean", 0);
  Leyenda(false, "Clean", 0);
  Fase = 0;
  f.FraApostaPlayer.Visible = false;
  f.FraApostaPlayer.Enabled = false;
  for (int i = 0; i <= 3; ++i) f.PicFichasPlayer(i).Enabled = false;
  if (!JogoEmpatado) CobrarPingo();
  Embaralhar(NroCartas);
  DarCartas();
  OrdenarCartas(true);
  OrdenarCartas(false);
  vb::Engine::Get().Show(f);
  // A silent first pass lays both hands at once, then the hands are laid card by card.
  MostrarCartas(true, true, false, true);
  MostrarCartas(false, true, false, true);
  if (VerBaralho) MostrarBaralho(true, true);
  MostrarCartas(true, true, true, false);
  MostrarCartas(false, true, true, false);
  if (VerBaralho) MostrarBaralho(true, false);
  Fase = 10;
  ApostouTudo = false;
  AberturaPoker = 0;
  AumentoAberturaPoker = 0;
  TotalAberturaPoker = 0;
  ApostaPoker = 0;
  TotalApostaPoker = 0;
  AberturaPlayer = 0;
  AumentoAberturaPlayer = 0;
  TotalAberturaPlayer = 0;
  ApostaPlayer = 0;
  TotalApostaPlayer = 0;
  if (JogoEmpatado) {
    VezPokerAbertura();
  } else if (MaoPlayer) {
    IniciarApostas();
  } else {
    Leyenda(false, "ABRIRJOGO", 0);
    PrepararPlayer();
  }
}

void CobrarPingo() {
  auto& f = Frm_Principal();
  // A side that lost everything in a hand without a showdown: the game ends here, at once.
  if (FichasPlayer == 0 || FichasPoker == 0) vb::Engine::Get().End();
  f.LabelManoMesa.Caption = "mão " + vb::LongText(NroMao);
  NroMao += 1;
  if (NroMao == 1) f.LabelMesa.Caption = "Na Mesa...";
  if (NroMao % 2 == 0) {
    MaoPlayer = true;
    MostrarSeta(true);
    PilhaDeFichas(true, -1);
    if (FichasPoker > 0) TrocarFichas(true, false);
  } else {
    MaoPlayer = false;
    MostrarSeta(false);
    PilhaDeFichas(false, -1);
    if (FichasPlayer > 0) TrocarFichas(false, false);
  }
  MesaPingo += 1;
  FichasNaMesa();
  AtualizarLabels();
}

void IniciarApostas() {
  auto& f = Frm_Principal();
  if (!((Fase >= 10 && Fase < 20) || (Fase >= 30 && Fase < 40))) return;
  f.FraPedeCartasPlayer.Visible = false;
  f.FraPedeCartasPlayer.Enabled = false;
  f.FraApostaPlayer.Visible = false;
  f.FraApostaPlayer.Enabled = false;
  for (int i = 0; i <= 4; ++i) f.PicCartasPlayer(i).Visible = false;
  for (int i = 0; i <= 3; ++i) f.PicFichasPlayer(i).Enabled = false;
  for (int b = 2; b <= 8; b += 2) f.ToolbarPlayerCoins.Button(b).SetEnabled(false);
  AnalisarJogo(true);
  AnalisarJogo(false);

  if (Fase == 10) {
    Desicion("ABRE");
    if (AberturaPoker > 0) {
      // She opens. Her "ABRE" jingle is never closed.
      TocarEfeito("ABRE");
      MaoPlayer = true;
      MostrarSeta(MaoPlayer);
      Leyenda(true, "EUABRI", AberturaPoker);
      MoverFichas(true, AberturaPoker, true);
      AtualizarLabels();
      Leyenda(true, "CUBRIRAPOSTA", AberturaPoker);
      Esperar(kPausaDepoisDaAposta);
      RetomarMusica();
    } else {
      TocarEfeito("NOABRE");
      MaoPlayer = false;
      MostrarSeta(MaoPlayer);
      Leyenda(true, "EUPASSEI", 0);
      Leyenda(true, "ABRIRJOGO", 0);
      Esperar(kPausaElaPassa);
      FecharMelodia("NOABRE");
    }
    PrepararPlayer();
  } else if (Fase == 30) {
    Desicion("FINAL");
    if (ApostaPoker > 0) {
      TocarEfeito("APOSTA");
      MaoPlayer = true;
      MostrarSeta(MaoPlayer);
      Leyenda(true, "EUAPOSTEI", ApostaPoker);
      MoverFichas(true, ApostaPoker, true);
      AtualizarLabels();
      Leyenda(true, "CUBRIRAPOSTA", 0);
      Esperar(kPausaDaMelodia);
      FecharMelodia("APOSTA");
    } else {
      TocarEfeito("NOABRE");
      MaoPlayer = false;
      MostrarSeta(MaoPlayer);
      Leyenda(true, "EUPASSEI", 0);
      Leyenda(true, "FAZERAPOSTA", 0);
      Esperar(kPausaElaPassa);
      FecharMelodia("NOABRE");
    }
    PrepararPlayer();
  }
}

void PrepararPlayer() {
  auto& f = Frm_Principal();
  if (!((Fase >= 10 && Fase < 20) || (Fase >= 30 && Fase < 40)) || FichasPlayer == 0) return;
  if (Fase == 10 && AberturaPlayer > 0) {
    Fase = 11;
  } else if (Fase == 11 && AumentoAberturaPlayer > 0) {
    Fase = 12;
  } else if (Fase == 12 && TotalAberturaPlayer > 0) {
    Fase = 13;
  }
  if (Fase == 30 && ApostaPlayer > 0) Fase = 31;

  f.FraPedeCartasPlayer.Visible = false;
  f.FraPedeCartasPlayer.Enabled = false;
  for (int i = 0; i <= 4; ++i) f.PicCartasPlayer(i).Visible = false;
  f.FraApostaPlayer.Visible = true;
  f.FraApostaPlayer.Enabled = true;
  f.CmdPago.Caption = "&P A G O";
  f.CmdTudo.Caption = "Aposto &TUDO";
  f.CmdDesfazer(0).Caption = "&DesFazer";
  f.CmdSair(0).Caption = "&EMBORA...";
  f.CmdAcabei(0).Caption = "&Acabei";
  f.CmdAcabei(0).SetFocus();
  // A chip place opens where the card toolbar's button of the same rank is enabled: the coin
  // buttons were all disabled a moment ago, so they cannot be the test.
  bool first = true;
  for (int i = 0; i <= 3; ++i) {
    if (f.ToolbarPlayer.Button((i + 1) * 2).Enabled()) {
      f.PicFichasPlayer(i).Enabled = true;
      if (first) f.PicFichasPlayer(i).SetFocus();
      first = false;
    }
  }
  for (const Denominacao& d : kDenominacoes) {
    vb::ToolbarButton& b = f.ToolbarPlayerCoins.Button(d.botao);
    b.SetEnabled(b.Image() != ChavePilha(d, 0));
  }
}

void Esperar(float Vezes, int Intervalo) {
  // The counter is shared: a wait that starts inside another (a nested handler) resets it, and
  // when it ends the outer one ends too.
  auto& f = Frm_Principal();
  f.TimerEspera.Interval = vb::CInt(Intervalo);
  f.TimerEspera.Enabled = true;
  ContaEspera = vb::CLng(Vezes);
  while (ContaEspera >= 1) vb::DoEvents();
  f.TimerEspera.Enabled = false;
}

void TimerEspera_Timer() {
  ContaEspera -= 1;
}

void OcultarMoedas() {
  auto& f = Frm_Principal();
  for (auto& [i, coin] : f.PicturePlayerCoin.items()) coin->Visible = false;
  for (auto& [i, coin] : f.PicturePokerCoin.items()) coin->Visible = false;
}

void AjustarTela() {
  auto& f = Frm_Principal();
  if (VerBaralho) {
    f.Height = 9210;
    f.Width = 11700;
    f.FraPrincipal.Move(450, 1580, f.FraPrincipal.Width, f.FraPrincipal.Height);
  } else {
    f.Height = 7650;
    f.Width = 10050;
    f.FraPrincipal.Move(20, 0, f.FraPrincipal.Width, f.FraPrincipal.Height);
  }
  f.Notify(vb::Prop::Geometry);
  f.ToolbarBaraja.Visible = VerBaralho;
  f.PicturePlayerFace.Picture = f.ImageListExtras.PictureOf("Challenger");
}

void CmdMaisUma_Click() {
  auto& f = Frm_Principal();
  f.FraMaisUma.Visible = false;
  f.FraMaisUma.Enabled = false;
  f.LabelPokerMensagem.Caption = "";
  f.FraPokerMensagem.Visible = false;
  f.FraPokerMensagem.Enabled = false;
  if (!JogoEmpatado && MesaApostas >= 1) {
    MesaApostas = 0;
    MesaPote = 0;
    MesaPingo = 0;
    MontarFichas(true, true);
    if (FichasPoker > 0) TrocarFichas(true, true);
    if (FichasPlayer > 0) TrocarFichas(false, true);
    AtualizarLabels();
  }
  if (EfeitosOn) {
    f.Timer1.Enabled = false;
    MusicTime = 0;
    Musicas("TRILHAS", "All", "CLOSE");
  }
  NovaMao();
}

void Form_Unload(int& /*Cancel*/) {
  PararMusica();
  GuardarSemente();
}

void Timer1_Timer() {
  // The clock of the background music: the platform tells nothing of a track's end.
  MusicTime += 1;
  // A debugging line that stayed on the table.
  Frm_Principal().LblMusicTime.Caption = " PokerZEVA  -  Jogo de Poker (Versão 2) " +
                                         std::string(" MusicTime = ") + vb::LongText(MusicTime) +
                                         "    TRILHA = " + vb::LongText(Trilha) +
                                         "  Jogosessao = " + Fase.Text();
  if (Trilha >= 1 && Trilha <= 3 && MusicTime > kTicksDaTrilha[Trilha]) {
    RetomarMusica();
    MusicTime = 0;
  }
}
