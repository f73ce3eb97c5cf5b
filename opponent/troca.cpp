// The draw between the two betting rounds. The side that holds the hand draws first; the new
// cards come from place 11 of the deck on, found by arithmetic. She plans her draw with sight of
// the very cards she is about to receive, so she draws exactly what she planned.
#include "opponent/troca.h"

#include "core/deck.h"
#include "core/game_state.h"
#include "core/hand_cycle.h"
#include "evaluation/analisis.h"
#include "opponent/desicion.h"
#include "opponent/leyendas.h"
#include "opponent/manoanalisis.h"
#include "sound/musicas.h"
#include "table/cards.h"
#include "table/frm_principal.h"

void PrepararTroca() {
  auto& f = Frm_Principal();
  if (Fase != 20) return;
  TrocaFechada = false;
  MarcadasTroca = 0;  // no card is marked when an exchange opens
  f.FraApostaPlayer.Visible = false;
  for (int i = 0; i <= 3; ++i) f.PicFichasPlayer(i).Enabled = false;
  // Shown and enabled: the frame was disabled a moment ago, and no exchange could end otherwise.
  f.FraPedeCartasPlayer.Visible = true;
  f.FraPedeCartasPlayer.Enabled = true;
  f.CmdDesfazer(1).Caption = "&DesFazer";
  f.CmdAcabei(1).Caption = "&Acabei";
  f.CmdAcabei(1).SetFocus();
  bool first = true;
  for (int i = 0; i <= 4; ++i) {
    if (f.ToolbarPlayer.Button(2 * (i + 1)).Enabled()) {
      f.PicCartasPlayer(i).Visible = true;
      if (first) f.PicCartasPlayer(i).SetFocus();
      first = false;
    }
  }
  Leyenda(false, "TROCARCARTAS", 0);
}

void MarcarCarta(int Indice) {
  auto& f = Frm_Principal();
  if (Fase != 20 || TrocaFechada) return;
  // A marked card is one whose button is disabled.
  vb::ToolbarButton& card = f.ToolbarPlayer.Button(Indice);
  card.SetEnabled(!card.Enabled());
  if (!card.Enabled()) {
    MarcadasTroca += 1;
  } else {
    MarcadasTroca -= 1;
  }
  if (MarcadasTroca > MaxTroca) {
    card.SetEnabled(true);
    MarcadasTroca -= 1;
  }
  if (EfeitosOn) Musicas("EFEITOS", "CARTASEL");
}

void TrocarCartasPlayer() {
  auto& f = Frm_Principal();
  if (Fase != 20) return;
  CartasTrocaPlayer = 0;
  for (int i = 1; i <= 5; ++i) {
    vb::ToolbarButton& card = f.ToolbarPlayer.Button(2 * i);
    if (card.Enabled()) continue;
    Esperar(kPausaCartaTrocada);
    CartasTrocaPlayer += 1;
    const int lugar =
        MaoPlayer ? 10 + CartasTrocaPoker + CartasTrocaPlayer : 10 + CartasTrocaPlayer;
    CartasPlayer[i] = Baralho[lugar];
    card.SetEnabled(true);
    card.SetImage(CartasPlayer[i]);
    if (EfeitosOn) Musicas("EFEITOS", "CARTAMESA");
  }
  Leyenda(false, "PEDECARTAS", CartasTrocaPlayer);
  Esperar(kPausaTrocaAnunciada);
  OrdenarCartas(false);
  MostrarCartas(false, true, false, false);
  Esperar(kPausaMaoArrumada);
}

void TrocarCartasPoker() {
  auto& f = Frm_Principal();
  if (Fase != 20) return;
  Leyenda(true, "Clean", 0);
  CartasTrocaPoker = 0;
  AnalisarJogo(true);
  AnalisarJogo(false);
  Desicion("CAR");

  if (CartasTrocaPoker == 0) {
    ListaTroca = JogoPoker + ValoresPoker;  // she keeps every card
  } else {
    std::uint8_t lugar = MaoPlayer ? 11 : static_cast<std::uint8_t>(11 + CartasTrocaPlayer);
    std::uint8_t quantas = CartasTrocaPoker;
    AnalisarMao(true, lugar, quantas, "");
  }

  // What she announces: the cards she does not keep, up to the count she chose.
  auto guarda = [](int i) {
    return ListaTroca.find(ValoresPoker.substr(3 * (i - 1), 3)) != std::string::npos;
  };
  int anunciadas = 0;
  for (int i = 1; i <= 5; ++i)
    if (!guarda(i) && anunciadas < CartasTrocaPoker) ++anunciadas;
  Leyenda(true, "PEDECARTAS", anunciadas);

  int tomadas = 0;
  for (int i = 1; i <= 5; ++i) {
    vb::ToolbarButton& card = f.ToolbarPoker.Button(2 * i);
    Esperar(kPausaCartaTrocada);
    if (!guarda(i) && tomadas < CartasTrocaPoker) {
      card.SetImage("DORSO");
      card.SetTag("Dorso");
      const int lugar = MaoPlayer ? 11 + tomadas : 11 + CartasTrocaPlayer + tomadas;
      CartasPoker[i] = Baralho[lugar];
      tomadas += 1;
      if (EfeitosOn) Musicas("EFEITOS", "CARTAINI");
    } else {
      card.SetTag("Frente");
    }
  }
  Leyenda(true, "PEDECARTAS", tomadas);

  // Her new cards turn face up in plain sight before they are covered.
  for (int i = 1; i <= 5; ++i) {
    vb::ToolbarButton& card = f.ToolbarPoker.Button(2 * i);
    if (card.Tag() != "Dorso") continue;
    Esperar(kPausaCartaVirada);
    card.SetImage(CartasPoker[i]);
    card.SetTag("Frente");
    if (EfeitosOn) Musicas("EFEITOS", "CARTASHOW");
  }
  Esperar(kPausaMaoArrumada);
  OrdenarCartas(true);
  MostrarCartas(true, true, false, false);
  Esperar(kPausaMaoArrumada);
}
