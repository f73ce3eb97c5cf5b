// What the player's buttons do. Each closes his turn or repairs it; the opponent's answer then
// runs at once inside the same handler.
#include "betting/betting.h"
#include "chips/chips.h"
#include "core/game_state.h"
#include "core/hand_cycle.h"
#include "opponent/leyendas.h"
#include "opponent/troca.h"
#include "platform/engine.h"
#include "platform/runtime.h"
#include "sound/musicas.h"
#include "table/frm_principal.h"

namespace {

bool Abertura() {
  return Fase >= 10 && Fase < 20;
}
bool Final() {
  return Fase >= 30 && Fase < 40;
}

void Mover(int n) {
  MoverFichas(false, n, true);
}

// A repair: the player's chips swept back, then laid again as the new levels say.
void Refazer(int total) {
  MontarFichas(false, false);
  MesaPote = 0;
  Mover(total);
}

// The first row that holds applies; the stake variables record what was asked, not what moved.
void PagoAbertura() {
  const int soma_poker = AberturaPoker + AumentoAberturaPoker + TotalAberturaPoker;
  int fala = 0;
  if (AberturaPlayer == 0) {
    MoverFichas(false, AberturaPoker, false);
    AberturaPlayer = AberturaPoker;
    fala = AberturaPlayer;
  } else if (TotalAberturaPlayer < TotalAberturaPoker) {
    const int n = soma_poker - (AberturaPlayer + AumentoAberturaPlayer + TotalAberturaPlayer);
    Mover(n);
    TotalAberturaPlayer += n;
    fala = TotalAberturaPlayer;
  } else if (TotalAberturaPlayer > TotalAberturaPoker) {
    TotalAberturaPlayer = soma_poker - AberturaPlayer - AumentoAberturaPlayer;
    Refazer(AberturaPlayer + AumentoAberturaPlayer + TotalAberturaPlayer);
    fala = TotalAberturaPlayer;
  } else if (AumentoAberturaPlayer < AumentoAberturaPoker) {
    const int n = (AberturaPoker + AumentoAberturaPoker) - (AberturaPlayer + AumentoAberturaPlayer);
    Mover(n);
    AumentoAberturaPlayer += n;
    fala = AumentoAberturaPlayer;
  } else if (AumentoAberturaPlayer > AumentoAberturaPoker) {
    AumentoAberturaPlayer = AberturaPoker + AumentoAberturaPoker - AberturaPlayer;
    Refazer(AberturaPlayer + AumentoAberturaPlayer);
    fala = AumentoAberturaPlayer;
  } else if (AberturaPlayer < AberturaPoker) {
    const int n = AberturaPoker - AberturaPlayer;
    Mover(n);
    AberturaPlayer += n;
    fala = AberturaPlayer;
  } else if (AberturaPlayer > AberturaPoker) {
    AberturaPlayer = AberturaPoker;
    Refazer(AberturaPlayer);
    fala = AberturaPlayer;
  } else {
    return;  // every level equal: nothing moves and nothing is said
  }
  Leyenda(false, "ELECUBRIUABRE", fala);
}

void PagoFinal() {
  const int abertura = AberturaPlayer + AumentoAberturaPlayer + TotalAberturaPlayer;
  int fala = 0;
  if (ApostaPlayer == 0) {
    // The stake is set first, then that amount is moved.
    ApostaPlayer = MesaApostas - MesaPote;
    Mover(ApostaPlayer);
    fala = ApostaPlayer;
  } else if (TotalApostaPlayer < TotalApostaPoker) {
    const int n = (ApostaPoker + TotalApostaPoker) - (ApostaPlayer + TotalApostaPlayer);
    Mover(n);
    TotalApostaPlayer += n;
    fala = TotalApostaPlayer;
  } else if (TotalApostaPlayer > TotalApostaPoker) {
    TotalApostaPlayer = ApostaPoker + TotalApostaPoker - ApostaPlayer;
    Refazer(abertura + ApostaPlayer + TotalApostaPlayer);
    fala = TotalApostaPlayer;
  } else if (ApostaPlayer < ApostaPoker) {
    const int n = ApostaPoker - ApostaPlayer;
    Mover(n);
    ApostaPlayer += n;
    fala = ApostaPlayer;
  } else if (ApostaPlayer > ApostaPoker) {
    ApostaPlayer = ApostaPoker;
    Refazer(abertura + ApostaPlayer);
    fala = ApostaPlayer;
  } else {
    return;
  }
  Leyenda(false, "ELECUBRIUAPOSTA", fala);
}

}  // namespace

void CmdPago_Click() {
  if (!Abertura() && !Final()) return;
  if (MesaApostas == 0 || MesaApostas == MesaPote) return;
  FecharPlayer();
  if (Abertura()) {
    PagoAbertura();
    if (FichasPlayer > 0) TrocarFichas(false, true);
    AtualizarLabels();
    // After a cover she always exchanges first, whoever holds the hand.
    Fase = 20;
    TrocarCartasPoker();
    PokerJaTrocou = true;
    PrepararTroca();
  } else {
    PagoFinal();
    if (FichasPlayer > 0) TrocarFichas(false, true);
    AtualizarLabels();
    FecharAposta();
    EntrarConfronto();
  }
}

void CmdTudo_Click() {
  if (!Abertura() && !Final()) return;
  if (Fase < 20 && LimiteAbertura && MesaApostas > LimiteFichas) return;
  FecharPlayer();
  if (Abertura()) {
    // The level of the present phase is the one changed; from 13 on there is none.
    const int fase = Fase;
    auto somar = [&](int d) {
      if (fase == 10) AberturaPlayer += d;
      if (fase == 11) AumentoAberturaPlayer += d;
      if (fase == 12) TotalAberturaPlayer += d;
    };
    auto soma = [&] {
      std::int32_t s = AberturaPlayer;
      if (fase >= 11) s += AumentoAberturaPlayer;
      if (fase >= 12) s += TotalAberturaPlayer;
      return s;
    };
    int alvo = 0, quantia = 0;
    if (LimiteAbertura) {
      alvo = LimiteFichas;
      if (FichasPlayer < LimiteFichas) {
        somar(FichasPlayer);  // no chip moves, though the stake says all of them did
      } else {
        quantia = LimiteFichas - soma();
        somar(quantia);
      }
    } else {
      alvo = FichasPlayer;
      if (FichasPoker == 0) {
        alvo = MesaApostas;
        if (FichasPlayer - MesaApostas < 20) alvo = FichasPlayer;
      }
      quantia = alvo - soma();
      somar(quantia);
    }
    const auto tres = [] {
      return std::int64_t{AberturaPlayer} + AumentoAberturaPlayer + TotalAberturaPlayer;
    };
    if (tres() > alvo) {
      // The trim takes one at a time from the level of the present phase. At 13 there is no
      // level to take from, so the trim never ends: the program stops responding there.
      if (fase > 12) vb::Engine::Get().Hang();
      while (tres() > alvo) somar(-1);
    }
    if (fase >= 10 && fase <= 12) {
      MoverFichas(false, quantia, true);
      AtualizarLabels();
      Leyenda(false, "ELEAPOSTATUDO", soma());
    }
    Esperar(kPausaApostouTudo);
    ApostouTudo = true;
    VezPokerAbertura();
  } else {
    if (Fase.Text() == "30") {
      ApostaPlayer += FichasPlayer;
      MoverFichas(false, FichasPlayer, true);
      AtualizarLabels();
      Leyenda(false, "ELEAPOSTATUDO", ApostaPlayer);
    } else if (Fase.Text() == "31") {
      TotalApostaPlayer += FichasPlayer;
      MoverFichas(false, FichasPlayer, true);
      AtualizarLabels();
      Leyenda(false, "ELEAPOSTATUDO", TotalApostaPlayer);
    }
    Esperar(kPausaApostouTudo);
    ApostouTudo = true;
    VezPokerFinal();
  }
}

void CmdDesfazer_Click(int Index) {
  auto& f = Frm_Principal();
  if (Index == 1) {
    if (Fase != 20) return;
    for (int i = 2; i <= 10; i += 2) {
      f.ToolbarPlayer.Button(i).SetEnabled(true);
      f.PicCartasPlayer(i / 2 - 1).Visible = true;
    }
    f.PicCartasPlayer(0).SetFocus();
    MarcadasTroca = 0;
    return;
  }
  // Take back the highest level that holds chips, whichever turn laid it.
  auto voltar = [](auto& nivel) {
    MontarFichas(false, false);
    nivel = MesaPote - nivel;
    MesaPote = 0;
    MoverFichas(false, nivel, true);  // what stays goes back on the table
    nivel = 0;
  };
  if (Abertura()) {
    if (TotalAberturaPlayer >= 1) {
      voltar(TotalAberturaPlayer);
    } else if (AumentoAberturaPlayer > 0) {
      voltar(AumentoAberturaPlayer);
    } else if (AberturaPlayer > 0) {
      MontarFichas(false, false);
      MesaPote -= AberturaPlayer;
      AberturaPlayer = 0;
    }
    if (FichasPlayer > 0) TrocarFichas(false, true);
    AtualizarLabels();
  } else if (Final()) {
    if (TotalApostaPlayer >= 1) {
      voltar(TotalApostaPlayer);
    } else if (ApostaPlayer > 0) {
      voltar(ApostaPlayer);
    } else {
      return;
    }
    if (FichasPlayer > 0) TrocarFichas(false, true);
    AtualizarLabels();
  }
}

void CmdAcabei_Click(int Index) {
  auto& f = Frm_Principal();
  if (Index == 0) {
    FecharAposta();
    if (Abertura()) {
      if (AberturaPlayer == 0) {
        // A pass: the hand goes to her.
        MaoPlayer = true;
        MostrarSeta(MaoPlayer);
      }
      VezPokerAbertura();
    }
    if (Final()) {
      if (ApostaPlayer == 0) {
        MaoPlayer = true;
        MostrarSeta(MaoPlayer);
      }
      VezPokerFinal();
    }
    return;
  }
  if (Fase == 20) {
    f.FraPedeCartasPlayer.Enabled = false;
    f.FraPedeCartasPlayer.Visible = false;
    for (int i = 0; i <= 4; ++i) f.PicCartasPlayer(i).Visible = false;
    TrocaFechada = true;
    TrocarCartasPlayer();
    if (!PokerJaTrocou) {
      PokerJaTrocou = true;
      TrocarCartasPoker();
    }
  }
  Fase = 30;
  if (SemMaisApostas()) {
    VezPokerFinal();
    return;
  }
  Leyenda(true, "Clean", 0);
  Leyenda(false, "Clean", 0);
  if (MaoPlayer) {
    IniciarApostas();
  } else {
    Leyenda(false, "FAZERAPOSTA", 0);
    PrepararPlayer();
  }
}

void CmdAcabei_GotFocus(int /*Index*/) {
  FocoAcabei = true;
}

void CmdAcabei_LostFocus(int Index) {
  auto& f = Frm_Principal();
  if (!FocoAcabei) return;
  FocoAcabei = false;
  // The focus wraps round to the first card place, or the first chip place.
  if (Index == 1) {
    for (int i = 0; i <= 4; ++i) {
      if (f.PicCartasPlayer(i).Visible && f.PicCartasPlayer(i).CanTakeFocus()) {
        f.PicCartasPlayer(i).SetFocus();
        return;
      }
    }
  } else {
    for (int i = 0; i <= 3; ++i) {
      if (f.PicFichasPlayer(i).Enabled && f.PicFichasPlayer(i).CanTakeFocus()) {
        f.PicFichasPlayer(i).SetFocus();
        return;
      }
    }
  }
}

void CmdSair_Click(int Index) {
  auto& f = Frm_Principal();
  if (Index == 2) {
    vb::Engine::Get().Unload(f);
    return;
  }
  Leyenda(false, "EUDESISTI", 0);
  Leyenda(true, "Clean", 0);
  if (EfeitosOn) {
    f.Timer1.Enabled = false;
    MusicTime = 0;
    if (MusicaOn) Musicas("TRILHAS", "All", "Close");
    Musicas("MELODIAS", "EMBORA", "PLAY");
  }
  if (Index == 0) {
    FecharAposta();
  } else {
    f.FraPedeCartasPlayer.Visible = false;
    f.FraPedeCartasPlayer.Enabled = false;
    for (int i = 0; i <= 4; ++i) f.PicCartasPlayer(i).Visible = false;
    for (int i = 2; i <= 10; i += 2) f.ToolbarPlayer.Button(i).SetEnabled(true);
  }
  Fase = 50;
  f.FraMaisUma.Visible = true;
  f.FraMaisUma.Enabled = true;
  f.CmdMaisUma.SetFocus();
  f.FraPokerMensagem.Visible = true;
  f.FraPokerMensagem.Enabled = true;
  f.LabelPokerMensagem.Caption =
      "Que Peninha, Meu Garotão...!,\r\nQuer uma outra chance...?\r\nVai Embora ???";
}
