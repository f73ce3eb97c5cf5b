// The opponent's answer in the opening round, the betting before the exchange. She looks at the
// table, decides from the table alone where the round stands, asks her mind for a stake where
// the rules leave her a choice, moves her chips, speaks, and hands the turn on.
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

void PokerAumenta() {
  MaoPlayer = true;
  MostrarSeta(MaoPlayer);
  const int d = MesaApostas - MesaPote;
  Leyenda(true, "EUAUMENTEIABRE", d);
  Leyenda(false, "CUBRIRAPOSTA", d);
  Esperar(kPausaDepoisDaAposta);
}

// Her stake above 0 against his opening (first level) or his raise (second level): a raise hands
// the turn back, a cover closes the round.
void CobrirOuAumentar(bool segundo_nivel, int stake) {
  TocarEfeito(segundo_nivel ? "APOSTA" : "ABRE");
  MoverFichas(true, stake, true);
  AcertarPilhas();
  if (MesaApostas > MesaPote && !SemMaisApostas()) {
    PokerAumenta();
    if (segundo_nivel) {
      FecharMelodia("APOSTA");
    } else {
      RetomarMusica();
    }
    PrepararPlayer();
    return;
  }
  // She covers, or cannot go on. The first level names the player's stake, the second her own.
  Leyenda(true, "EUCUBRIABRE", segundo_nivel ? AumentoAberturaPoker : AberturaPlayer);
  FecharPlayer();
  if (segundo_nivel) {
    Esperar(kPausaDaMelodia);
    TocarMelodia("APOSTA");
  } else {
    Esperar(kPausaDepoisDaAposta);
    RetomarMusica();
  }
  EntrarTroca();
}

// Her second level against his raise; none at all is a surrender.
void ResponderComSegundoNivel() {
  if (AumentoAberturaPoker == 0) {
    PokerDesiste(false);
  } else {
    CobrirOuAumentar(true, AumentoAberturaPoker);
  }
}

// She puts her last level down and the round closes, whether it matches his or not.
void FicarComUltimoNivel() {
  Leyenda(true, "EUCUBRIABRE", TotalAberturaPoker);
  MoverFichas(true, TotalAberturaPoker, true);
  AcertarPilhas();
  FecharPlayer();
  TocarMelodia("APOSTA");
  Esperar(kPausaDepoisDaAposta);
  EntrarTroca();
}

// He ended his turn short of her stake.
void PlayerAbaixoDela() {
  MaoPlayer = true;
  MostrarSeta(MaoPlayer);
  if (MesaPote == 0) {
    // Nothing at all: the first empty turn is a warning, the second (in any later hand too) a
    // surrender.
    PassouSemCobrir = !PassouSemCobrir;
    Leyenda(true, "EUABRI", MesaApostas);
    Leyenda(false, "CUBRIRAPOSTA", MesaApostas);
    PrepararPlayer();
    if (!PassouSemCobrir) PlayerDesiste();
    return;
  }
  // Some chips: she moves none; her words repeat what he owes.
  const int d = MesaApostas - MesaPote;
  Leyenda(true, "EUAUMENTEIABRE", d);
  Leyenda(false, "CUBRIRAPOSTA", d);
  PrepararPlayer();
}

// He opened against her empty side.
void PlayerAbriu() {
  Leyenda(false, "ELEABRIU", MesaPote);
  FecharPlayer();
  AnalisarJogos();
  Desicion("CUBRE1");
  if (AberturaPoker == 0) {
    PokerDesiste(false);
  } else {
    CobrirOuAumentar(false, AberturaPoker);
  }
}

// He raised above her stake: she answers with her next level.
void PlayerAumentou() {
  Leyenda(false, "ELEAUMENTOUABRE", MesaPote - MesaApostas);
  FecharPlayer();
  AnalisarJogos();
  if (AumentoAberturaPoker == 0) {
    Desicion("CUBRE2");
    ResponderComSegundoNivel();
    return;
  }
  if (TotalAberturaPoker == 0) {
    Desicion("CUBRE3");
    if (TotalAberturaPoker == 0) {
      PokerDesiste(false);
      return;
    }
  } else {
    // Her third level is spent: no question asked. The player's chips less her own, whatever
    // the table holds; it may be 0 or below, and passes to the table unclamped.
    TotalAberturaPoker = FichasPlayer - FichasPoker;
  }
  FicarComUltimoNivel();
}

// Both sides empty: he passed, and she may open or pass too.
void PlayerPassou() {
  Leyenda(false, "ELEPASSOU", 0);
  FecharPlayer();
  AnalisarJogos();
  Desicion("CUBRE1");
  if (AberturaPoker == 0) {
    // Both passed: no chip moves and the antes wait for the next hand.
    Leyenda(true, "EUPASSEI", 0);
    Leyenda(false, "ELEPASSOU", 0);
    TocarFim("PASSOU");
    Esperar(kPausaAmbosPassam);
    MostrarFim("Eueee!, As cartas estão carregadas ou Que?", "Essa Não Valeu!, Ninguém Merece!",
               "Uma Outra ?");
    Fase = 50;
    JogoEmpatado = false;
    return;
  }
  TocarEfeito("ABRE");
  MoverFichas(true, AberturaPoker, true);
  AcertarPilhas();
  MaoPlayer = true;
  MostrarSeta(MaoPlayer);
  Leyenda(true, "EUABRI", AberturaPoker);
  Leyenda(false, "CUBRIRAPOSTA", AberturaPoker);
  Esperar(kPausaDepoisDaAposta);
  RetomarMusica();
  PrepararPlayer();
}

// He covered her raise with her second level down: she may raise once more with her third.
void PlayerCobriuSegundoNivel() {
  // The last call's analysis is used again.
  Leyenda(false, "ELECUBRIUABRE", AumentoAberturaPlayer);
  Desicion("CUBRE3");
  if (TotalAberturaPoker > 0) {
    Leyenda(true, "EUAUMENTEIABRE", TotalAberturaPoker);
    MoverFichas(true, TotalAberturaPoker, true);
    AcertarPilhas();
    PokerAumenta();  // the same key a second time, with the difference
    RetomarMusica();
    PrepararPlayer();
    return;
  }
  FecharPlayer();
  TocarMelodia("APOSTA");
  Esperar(kPausaDepoisDaAposta);
  EntrarTroca();
}

// Level with chips down: he covered her. Her third level down closes the round; below that she
// gets one more say.
void PlayerCobriu() {
  if (TotalAberturaPoker > 0) {
    Leyenda(false, "ELECUBRIUABRE", MesaPote);
    FecharPlayer();
    EntrarTroca();
  } else if (AumentoAberturaPoker > 0) {
    PlayerCobriuSegundoNivel();
  } else {
    // Her opening covered: her raise or her surrender; a 0 here is surrender even where she owes
    // nothing.
    Leyenda(false, "ELECUBRIUABRE", AberturaPoker - AberturaPlayer);
    FecharPlayer();
    AnalisarJogos();
    Desicion("CUBRE2");
    ResponderComSegundoNivel();
  }
}

}  // namespace

void VezPokerAbertura() {
  if (!(Fase >= 10 && Fase < 20)) return;
  Esperar(kPausaElaPensa);
  if (SemMaisApostas()) {
    FecharPlayer();
    EntrarTroca();
  } else if (MesaPote < MesaApostas) {
    PlayerAbaixoDela();
  } else if (MesaPote > MesaApostas) {
    MaoPlayer = false;
    MostrarSeta(MaoPlayer);
    if (MesaApostas == 0) {
      PlayerAbriu();
    } else {
      PlayerAumentou();
    }
  } else if (MesaPote == 0) {
    PlayerPassou();
  } else {
    PlayerCobriu();
  }
}
