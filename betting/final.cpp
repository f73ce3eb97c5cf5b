// The opponent's answer in the final round, after the exchange. The same shape as the opening
// round with two stake levels of hers, the showdown as its end, and small differences that are
// the game's own and are kept as they are.
#include "betting/betting.h"
#include "chips/chips.h"
#include "core/game_state.h"
#include "core/hand_cycle.h"
#include "evaluation/analisis.h"
#include "opponent/desicion.h"
#include "opponent/leyendas.h"
#include "sound/musicas.h"
#include "table/frm_principal.h"

namespace {

// Unlike the opening round's, this one tells the player what he won.
void PokerDesiste() {
  Leyenda(true, "EUDESISTI", 0);
  Leyenda(false, "ELEGANHOU", MesaApostas + MesaPote + MesaPingo);
  MesaApostas = 0;
  MesaPote = 0;
  MesaPingo = 0;
  MontarFichas(false, true);
  AcertarPilhas();
  TocarFim("WAIT");
  Esperar(2, 1000);
  MostrarFim("Põe Ser, Mão Ruim, eueeh!", "Vamos Mais Uma ?");
  Fase = 50;
}

void PokerSobe() {
  MaoPlayer = true;
  MostrarSeta(MaoPlayer);
  const int d = MesaApostas - MesaPote;
  Leyenda(true, "EUAUMENTEI", d);
  Leyenda(false, "CUBRIRAPOSTA", d);
  Esperar(2, 750);
  RetomarMusica();
  PrepararPlayer();
}

void FecharMelodiaAposta() {
  if (EfeitosOn) {
    Musicas("MELODIAS", "APOSTA", "CLOSE");
    RetomarMusica();
  }
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
// every table where he is all in and short (A2) or she has no chips left against his raise (B2),
// so those two answers can only be reached by calling this directly.
void ResponderFinal() {
  if (MesaPote < MesaApostas) {
    // A: the player is below her.
    MaoPlayer = true;
    MostrarSeta(MaoPlayer);
    const int d = MesaApostas - MesaPote;
    if (ApostaPlayer == 0) {
      // A1: the same toggle as in the opening round, with the state it left there.
      PassouSemCobrir = !PassouSemCobrir;
      Leyenda(true, "EUAPOSTEI", d);
      Leyenda(false, "CUBRIRAPOSTA", d);
      PrepararPlayer();
      if (!PassouSemCobrir) PlayerDesiste();
    } else if (FichasPlayer == 0) {
      // A2: he is all in and short.
      Leyenda(true, "EUAUMENTE", ApostaPoker);
      Leyenda(false, "ELEAPOSTATUDO", 0);
      FecharPlayer();
      EntrarConfronto();
    } else {
      // A3.
      Leyenda(true, "EUAUMENTE", d);
      Leyenda(false, "CUBRIRAPOSTA", d);
      PrepararPlayer();
    }
    return;
  }

  if (MesaPote > MesaApostas) {
    // B: the player is above her.
    MaoPlayer = false;
    MostrarSeta(MaoPlayer);
    if (ApostaPoker == 0) {
      // B1: she has not bet in this round.
      Leyenda(false, "ELEAPOSTOU", MesaPote - MesaApostas);
      FecharPlayer();
      AnalisarJogos();
      Desicion("CUBREFINAL1");
      if (ApostaPoker == 0) {
        PokerDesiste();
        return;
      }
      TocarEfeito("ABRE");
      MoverFichas(true, ApostaPoker, true);
      AcertarPilhas();
      if (MesaApostas > MesaPote) {
        PokerSobe();
      } else {
        Leyenda(true, FichasPoker == 0 ? "EUAPOSTEITUDO" : "EUCUBRI", ApostaPoker);
        FecharPlayer();
        Esperar(2, 750);
        RetomarMusica();
        EntrarConfronto();
      }
    } else if (FichasPoker == 0) {
      // B2: nothing left to answer with. This one speaks of the player with her side.
      TocarEfeito("APOSTA");
      MoverFichas(true, TotalApostaPoker, true);
      AcertarPilhas();
      Leyenda(true, "ELEAPOSTATUDO", ApostaPlayer);
      FecharPlayer();
      Esperar(1, 1000);
      FecharMelodiaAposta();
      EntrarConfronto();
    } else {
      // B3: the player raised her bet.
      Leyenda(false, "ELEAUMENTOU", MesaPote - MesaApostas);
      Esperar(1, 200);
      FecharPlayer();
      AnalisarJogos();
      Desicion("CUBREFINAL2");
      if (TotalApostaPoker == 0) {
        PokerDesiste();
        return;
      }
      TocarEfeito("APOSTA");
      MoverFichas(true, TotalApostaPoker, true);
      AcertarPilhas();
      Leyenda(true, "EUCUBRI", TotalApostaPoker);
      FecharAposta();
      // The showdown is open before the last wait: its click can run inside it.
      EntrarConfronto();
      Esperar(1, 1000);
      FecharMelodiaAposta();
    }
    return;
  }

  // C: level.
  if (ApostaPlayer == 0) {
    // C1: the player passed; she is asked once more.
    Leyenda(false, "ELEPASSOU", 0);
    FecharPlayer();
    AnalisarJogos();
    Desicion("FINAL");
    if (ApostaPoker == 0) {
      // Both passed: every chip of the hand goes to the centre and waits for the next hand.
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
      Esperar(3, 1000);
      MostrarFim("Caraíba!, Fico Tudo na MESA, eueeh!",
                 "Na Proxima Mão, Quem vai levar esse bolão!", "Vamos Mais Uma ?");
      Fase = 50;
    } else {
      TocarEfeito("ABRE");
      MoverFichas(true, ApostaPoker, true);
      AcertarPilhas();
      if (MesaApostas > MesaPote) {
        PokerSobe();
      } else {
        Leyenda(true, "EUCUBRI", ApostaPoker);
        FecharPlayer();
        EntrarConfronto();
        Esperar(2, 750);
        RetomarMusica();
      }
    }
  } else {
    // C2: level after his bet; she gets no further choice.
    if (MaoPlayer) Leyenda(false, "ELECUBRIUAPOSTA", ApostaPoker);
    FecharPlayer();
    EntrarConfronto();
  }
}
