// The opponent's answer in the opening round, the betting before the exchange. She looks at the
// table, decides from the table alone where the round stands, asks her mind for a stake where
// the rules leave her a choice, moves her chips, speaks, and hands the turn on.
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

// She gives up: the player takes the whole table.
void PokerDesiste() {
  Leyenda(true, "EUDESISTI", 0);
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

void PokerAumenta() {
  MaoPlayer = true;
  MostrarSeta(MaoPlayer);
  const int d = MesaApostas - MesaPote;
  Leyenda(true, "EUAUMENTEIABRE", d);
  Leyenda(false, "CUBRIRAPOSTA", d);
  Esperar(2, 750);
}

// Her stake above 0 in B1 and B2 (and in C3 through B2): a raise hands the turn back, a cover
// closes the round.
void CobrirOuAumentar(bool segundo_nivel, int stake) {
  TocarEfeito(segundo_nivel ? "APOSTA" : "ABRE");
  MoverFichas(true, stake, true);
  AcertarPilhas();
  if (MesaApostas > MesaPote && !SemMaisApostas()) {
    PokerAumenta();
    if (segundo_nivel && EfeitosOn) Musicas("MELODIAS", "APOSTA", "CLOSE");
    RetomarMusica();
    PrepararPlayer();
    return;
  }
  // She covers, or cannot go on. The first level names the player's stake, the second her own.
  Leyenda(true, "EUCUBRIABRE", segundo_nivel ? AumentoAberturaPoker : AberturaPlayer);
  FecharPlayer();
  if (!segundo_nivel) {
    Esperar(2, 750);
    RetomarMusica();
  } else {
    Esperar(1, 1000);
    if (EfeitosOn) {
      Musicas("MELODIAS", "APOSTA", "PLAY");
      RetomarMusica();
    }
  }
  EntrarTroca();
}

// Case B2 from its first step, also reached from C3.
void SegundoNivel() {
  if (AumentoAberturaPoker == 0) {
    PokerDesiste();
  } else {
    CobrirOuAumentar(true, AumentoAberturaPoker);
  }
}

}  // namespace

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
  Esperar(2, 1000);
  MostrarFim("Pode deixar, Eu levo tudo por você, Obrigada!", "Peninha, Garotão...!",
             "Outra Vez ?");
  Fase = 50;
}

void VezPokerAbertura() {
  if (!(Fase >= 10 && Fase < 20)) return;
  Esperar(2, 750);
  if (SemMaisApostas()) {
    FecharPlayer();
    EntrarTroca();
    return;
  }

  if (MesaPote < MesaApostas) {
    // A: the player ended his turn short of her stake.
    MaoPlayer = true;
    MostrarSeta(MaoPlayer);
    if (MesaPote == 0) {
      // A1: the first empty turn is a warning, the second (in any later hand too) a surrender.
      PassouSemCobrir = !PassouSemCobrir;
      Leyenda(true, "EUABRI", MesaApostas);
      Leyenda(false, "CUBRIRAPOSTA", MesaApostas);
      PrepararPlayer();
      if (!PassouSemCobrir) PlayerDesiste();
    } else {
      // A2: she moves no chip; her words repeat what he owes.
      const int d = MesaApostas - MesaPote;
      Leyenda(true, "EUAUMENTEIABRE", d);
      Leyenda(false, "CUBRIRAPOSTA", d);
      PrepararPlayer();
    }
    return;
  }

  if (MesaPote > MesaApostas) {
    // B: the player opened or raised.
    MaoPlayer = false;
    MostrarSeta(MaoPlayer);
    if (MesaApostas == 0) {
      Leyenda(false, "ELEABRIU", MesaPote);
      FecharPlayer();
      AnalisarJogos();
      Desicion("CUBRE1");
      if (AberturaPoker == 0) {
        PokerDesiste();
      } else {
        CobrirOuAumentar(false, AberturaPoker);
      }
      return;
    }
    Leyenda(false, "ELEAUMENTOUABRE", MesaPote - MesaApostas);
    FecharPlayer();
    AnalisarJogos();
    if (AumentoAberturaPoker == 0) {
      Desicion("CUBRE2");  // B2
      SegundoNivel();
      return;
    }
    if (TotalAberturaPoker == 0) {
      Desicion("CUBRE3");  // B3
      if (TotalAberturaPoker == 0) {
        PokerDesiste();
        return;
      }
    } else {
      // B4: no question asked. The player's chips less her own, whatever the table holds; it
      // may be 0 or below, and passes to the table unclamped.
      TotalAberturaPoker = FichasPlayer - FichasPoker;
    }
    Leyenda(true, "EUCUBRIABRE", TotalAberturaPoker);
    MoverFichas(true, TotalAberturaPoker, true);
    AcertarPilhas();
    FecharPlayer();
    if (EfeitosOn) {
      Musicas("MELODIAS", "APOSTA", "PLAY");
      RetomarMusica();
    }
    Esperar(2, 750);
    EntrarTroca();
    return;
  }

  if (MesaPote != MesaApostas) return;
  // C: the two are level.
  if (MesaPote == 0) {
    // C0: the player passed.
    Leyenda(false, "ELEPASSOU", 0);
    FecharPlayer();
    AnalisarJogos();
    Desicion("CUBRE1");
    if (AberturaPoker == 0) {
      // Both passed: no chip moves and the antes wait for the next hand.
      Leyenda(true, "EUPASSEI", 0);
      Leyenda(false, "ELEPASSOU", 0);
      TocarFim("PASSOU");
      Esperar(3, 1000);
      MostrarFim("Eueee!, As cartas estão carregadas ou Que?", "Essa Não Valeu!, Ninguém Merece!",
                 "Uma Outra ?");
      Fase = 50;
      JogoEmpatado = false;
    } else {
      TocarEfeito("ABRE");
      MoverFichas(true, AberturaPoker, true);
      AcertarPilhas();
      MaoPlayer = true;
      MostrarSeta(MaoPlayer);
      Leyenda(true, "EUABRI", AberturaPoker);
      Leyenda(false, "CUBRIRAPOSTA", AberturaPoker);
      Esperar(2, 750);
      RetomarMusica();
      PrepararPlayer();
    }
  } else if (TotalAberturaPoker > 0) {
    // C1.
    Leyenda(false, "ELECUBRIUABRE", MesaPote);
    FecharPlayer();
    EntrarTroca();
  } else if (AumentoAberturaPoker > 0) {
    // C2: the last call's analysis is used again.
    Leyenda(false, "ELECUBRIUABRE", AumentoAberturaPlayer);
    Desicion("CUBRE3");
    if (TotalAberturaPoker > 0) {
      Leyenda(true, "EUAUMENTEIABRE", TotalAberturaPoker);
      MoverFichas(true, TotalAberturaPoker, true);
      AcertarPilhas();
      PokerAumenta();  // the same key a second time, with the difference
      RetomarMusica();
      PrepararPlayer();
    } else {
      FecharPlayer();
      if (EfeitosOn) {
        Musicas("MELODIAS", "APOSTA", "PLAY");
        RetomarMusica();
      }
      Esperar(2, 750);
      EntrarTroca();
    }
  } else {
    // C3: level, her raise or her surrender; a 0 here is surrender even where she owes nothing.
    Leyenda(false, "ELECUBRIUABRE", AberturaPoker - AberturaPlayer);
    FecharPlayer();
    AnalisarJogos();
    Desicion("CUBRE2");
    SegundoNivel();
  }
}
