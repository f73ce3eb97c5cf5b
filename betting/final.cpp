// The opponent's answer in the final round, after the exchange. The same shape as the opening
// round with two stake levels of hers, the showdown as its end, and small differences that are
// the game's own and are kept as they are.
#include "betting/betting.h"
#include "chips/chips.h"
#include "core/game_state.h"
#include "core/hand_cycle.h"
#include "core/speeds.h"
#include "evaluation/analisis.h"
#include "opponent/desicion.h"
#include "opponent/leyendas.h"
#include "sound/trilha.h"
#include "table/frm_principal.h"

namespace {

void PokerSobe() {
  MaoPlayer = true;
  MostrarSeta(MaoPlayer);
  const int d = MesaApostas - MesaPote;
  Leyenda(true, "EUAUMENTEI", d);
  Leyenda(false, "CUBRIRAPOSTA", d);
  Esperar(kPausaDepoisDaAposta);
  RetomarMusica();
  PrepararPlayer();
}

// Her bet goes down with its click and jingle.
void ApostarComEfeito(const char* efeito, int stake) {
  TocarEfeito(efeito);
  MoverFichas(true, stake, true);
  AcertarPilhas();
}

// He is below her.
void PlayerAbaixoDela() {
  MaoPlayer = true;
  MostrarSeta(MaoPlayer);
  const int d = MesaApostas - MesaPote;
  if (ApostaPlayer == 0) {
    // Nothing of his in this round: the same toggle as in the opening round, with the state it
    // left there.
    PassouSemCobrir = !PassouSemCobrir;
    Leyenda(true, "EUAPOSTEI", d);
    Leyenda(false, "CUBRIRAPOSTA", d);
    PrepararPlayer();
    if (!PassouSemCobrir) PlayerDesiste();
  } else if (FichasPlayer == 0) {
    // He is all in and short: the showdown.
    Leyenda(true, "EUAUMENTE", ApostaPoker);
    Leyenda(false, "ELEAPOSTATUDO", 0);
    FecharPlayer();
    EntrarConfronto();
  } else {
    Leyenda(true, "EUAUMENTE", d);
    Leyenda(false, "CUBRIRAPOSTA", d);
    PrepararPlayer();
  }
}

// He bet and she has not: she covers, raises or gives up.
void PlayerApostou() {
  Leyenda(false, "ELEAPOSTOU", MesaPote - MesaApostas);
  FecharPlayer();
  AnalisarJogos();
  Desicion("CUBREFINAL1");
  if (ApostaPoker == 0) {
    PokerDesiste(true);
    return;
  }
  ApostarComEfeito("ABRE", ApostaPoker);
  if (MesaApostas > MesaPote) {
    PokerSobe();
    return;
  }
  Leyenda(true, FichasPoker == 0 ? "EUAPOSTEITUDO" : "EUCUBRI", ApostaPoker);
  FecharPlayer();
  Esperar(kPausaDepoisDaAposta);
  RetomarMusica();
  EntrarConfronto();
}

// He raised her bet and she has no chips left to answer with. This one speaks of the player
// with her side.
void PlayerAumentouSemFichasDela() {
  ApostarComEfeito("APOSTA", TotalApostaPoker);
  Leyenda(true, "ELEAPOSTATUDO", ApostaPlayer);
  FecharPlayer();
  Esperar(kPausaDaMelodia);
  FecharMelodia("APOSTA");
  EntrarConfronto();
}

// He raised her bet: she covers with her second level, whatever it is, or gives up.
void PlayerAumentou() {
  Leyenda(false, "ELEAUMENTOU", MesaPote - MesaApostas);
  Esperar(kPausaAntesDeCobrir);
  FecharPlayer();
  AnalisarJogos();
  Desicion("CUBREFINAL2");
  if (TotalApostaPoker == 0) {
    PokerDesiste(true);
    return;
  }
  ApostarComEfeito("APOSTA", TotalApostaPoker);
  Leyenda(true, "EUCUBRI", TotalApostaPoker);
  FecharAposta();
  // The showdown is open before the last wait: its click can run inside it.
  EntrarConfronto();
  Esperar(kPausaDaMelodia);
  FecharMelodia("APOSTA");
}

// Both passed: every chip of the hand goes to the centre and waits for the next hand.
void AmbosPassaram() {
  Leyenda(true, "EUPASSEI", 0);
  if (MesaPote > 0) {
    MesaPingo = MesaApostas + MesaPote + MesaPingo;
    MesaPote = 0;
    MesaApostas = 0;
    FichasNaMesa();
  }
  MoverFichas(true, 0, false);
  MoverFichas(false, 0, false);
  AcertarPilhas();
  TocarFim("PASSOU");
  Esperar(kPausaAmbosPassam);
  MostrarFim("Caraíba!, Fico Tudo na MESA, eueeh!", "Na Proxima Mão, Quem vai levar esse bolão!",
             "Vamos Mais Uma ?");
  Fase = 50;
}

// Level and he passed: she is asked once more, and bets or passes too.
void PlayerPassou() {
  Leyenda(false, "ELEPASSOU", 0);
  FecharPlayer();
  AnalisarJogos();
  Desicion("FINAL");
  if (ApostaPoker == 0) {
    AmbosPassaram();
    return;
  }
  ApostarComEfeito("ABRE", ApostaPoker);
  if (MesaApostas > MesaPote) {
    PokerSobe();
    return;
  }
  Leyenda(true, "EUCUBRI", ApostaPoker);
  FecharPlayer();
  EntrarConfronto();
  Esperar(kPausaDepoisDaAposta);
  RetomarMusica();
}

}  // namespace

void VezPokerFinal() {
  if (!(Fase >= 30 && Fase < 40)) return;
  if (SemMaisApostas()) {
    // Everything is committed: straight to the showdown, without a word.
    FecharPlayer();
    EntrarConfronto();
    return;
  }
  ResponderFinal();
}

// Her answer once the round is known to go on, read from the table alone. It stands apart from
// VezPokerFinal, which always asks first whether any more betting is possible: that question takes
// every table where he is all in and short, or she has no chips left against his raise, so those
// two answers can only be reached by calling this directly.
void ResponderFinal() {
  if (MesaPote < MesaApostas) {
    PlayerAbaixoDela();
  } else if (MesaPote > MesaApostas) {
    MaoPlayer = false;
    MostrarSeta(MaoPlayer);
    if (ApostaPoker == 0) {
      PlayerApostou();
    } else if (FichasPoker == 0) {
      PlayerAumentouSemFichasDela();
    } else {
      PlayerAumentou();
    }
  } else if (ApostaPlayer == 0) {
    PlayerPassou();
  } else {
    // Level after his bet; she gets no further choice.
    if (MaoPlayer) Leyenda(false, "ELECUBRIUAPOSTA", ApostaPoker);
    FecharPlayer();
    EntrarConfronto();
  }
}
