#include "session/menu.h"

#include "chips/chips.h"
#include "core/cards.h"
#include "core/game_state.h"
#include "core/hand_cycle.h"
#include "platform/engine.h"
#include "session/about.h"
#include "session/dialogs.h"
#include "session/sel_fundos.h"
#include "session/trapassa.h"
#include "table/frm_principal.h"

namespace {
bool Inverter(vb::Control& entry) {
  entry.Checked = !entry.Checked;
  return entry.Checked;
}

void Mostrar(vb::Form& dialogo) {
  vb::Engine::Get().Show(dialogo, true);
}
}  // namespace

// A new game: settings and chips as a new game has them (they differ from the program's start:
// effects on, three of a kind no longer beats a straight). The hand count, the holder of the hand,
// the card back and a tie on the table run on; the game begins at the next "Mais UMA".
void MnuNova_Click() {
  auto& f = Frm_Principal();
  NroCartas = 52;
  NroFichas = 990;
  MaxTroca = 4;
  f.MnuLimite.Checked = true;
  LimiteFichas = 150;  // LimiteAbertura keeps its value: the mark and the flag may now disagree
  FullMataCor = false;
  f.MnuFullxCor.Checked = false;
  TrioMataEscada = false;
  f.MnuTrioXEscada.Checked = false;
  ValorFicha = 5.0f;
  MusicaOn = false;
  Trilha = 0;
  TocandoEfeito = 0;
  f.MnuMusica.Checked = false;
  EfeitosOn = true;
  f.MnuEfeitos.Checked = true;
  MeuNome = "Challenger";
  f.MnuTrapassa.Checked = false;
  VerBaralho = false;
  f.MnuVerBaralho.Checked = false;
  f.MnuVerBaralho.Enabled = false;
  VerCartas = false;
  f.MnuVerCartas.Checked = false;
  f.MnuVerCartas.Enabled = false;
  AjustarTela();
  f.LabelPlayerCaption(0).Caption = MeuNome;
  RefazerFichas();
  EncherBaralho();
}

// A new deck size: the deck is filled again in order, so the next shuffle starts from there.
void MnuNroCartas_Click() {
  Mostrar(Frm_NumerodeCartas());
  EncherBaralho();
}

// A new number of chips counts at once only while the first hand stands on the table; later it
// waits for a new game.
void MnuNroFichas_Click() {
  Mostrar(Frm_NumerodeFichas());
  if (NroMao == 2) RefazerFichas();
}

void MnuTroca_Click() {
  Mostrar(Frm_QuantasCartas());
}

// The value of a chip can be changed only while the first hand stands on the table: later, the
// dialog takes a value and the table goes back to 5.
void MnuVFicha_Click() {
  Mostrar(Frm_ValordaFicha());
  if (NroMao != 2) ValorFicha = 5.0f;
  AtualizarLabels();
}

void MnuNome_Click() {
  Mostrar(Frm_MeuNome());
  Frm_Principal().LabelPlayerCaption(0).Caption = MeuNome;
}

// The card back chosen: the last two pictures of the card store, the face-down "FRENTE" and its
// partner "DORSO", are replaced by the pair of the design, and every card place of both hands shows
// the new back (the hands are over: the menu opens between them).
void MnuFundos_Click() {
  Mostrar(Frm_SelFundos());
  auto& f = Frm_Principal();
  vb::ImageList& store = f.ImageListBarajas;
  for (vb::Control* bar : {&f.ToolbarPlayer, &f.ToolbarPoker, &f.ToolbarBaraja})
    bar->images = nullptr;
  store.Remove(store.Count());
  store.Remove(store.Count());
  store.Add(f.ImageListFundos.PictureOf(Dorso), "FRENTE");
  store.Add(f.ImageListFundos.PictureOf(Dorso + 1), "DORSO");
  for (vb::Control* bar : {&f.ToolbarPlayer, &f.ToolbarPoker, &f.ToolbarBaraja})
    bar->images = &store;
  for (int i = 2; i <= 10; i += 2) {
    f.ToolbarPlayer.Button(i).SetImage("FRENTE");
    f.ToolbarPoker.Button(i).SetImage("FRENTE");
  }
}

// The cheat's door. A right code only offers the two entries, unchecked; a wrong one takes them and
// any cheat in force away.
void MnuTrapassa_Click() {
  Mostrar(Frm_Trapassa());
  auto& f = Frm_Principal();
  if (!f.MnuVerBaralho.Visible || !f.MnuVerCartas.Visible) {
    VerBaralho = false;
    VerCartas = false;
    AjustarTela();
  }
}

// The deck laid out above the table: the window grows now, the strip fills at the next deal.
void MnuVerBaralho_Click() {
  VerBaralho = Inverter(Frm_Principal().MnuVerBaralho);
  AjustarTela();
}

// Her cards face up from the next time they are shown.
void MnuVerCartas_Click() {
  VerCartas = Inverter(Frm_Principal().MnuVerCartas);
}

void MnuAbout_Click() {
  Mostrar(Frm_About());
}

void MnuLimite_Click() {
  auto& f = Frm_Principal();
  if (Inverter(f.MnuLimite)) {
    LimiteAbertura = true;
    LimiteFichas = 150;
  } else {
    LimiteAbertura = false;
    LimiteFichas = static_cast<int>(NroFichas);
  }
}

void MnuFullxCor_Click() {
  FullMataCor = Inverter(Frm_Principal().MnuFullxCor);
}

void MnuTrioXEscada_Click() {
  TrioMataEscada = Inverter(Frm_Principal().MnuTrioXEscada);
}

void MnuMusica_Click() {
  auto& f = Frm_Principal();
  if (Inverter(f.MnuMusica)) {
    MusicaOn = true;
    Trilha = 0;  // the next hand starts at the first track
    return;
  }
  MusicaOn = false;
  if (EfeitosOn) {
    f.Timer1.Enabled = false;
    MusicTime = 0;
    // The close of the tracks looks at MusicaOn once more, now False: it is never sent, and a
    // track that is playing goes on to its end.
  }
}

void MnuEfeitos_Click() {
  if (Inverter(Frm_Principal().MnuEfeitos)) {
    EfeitosOn = true;
    TocandoEfeito = 0;
  } else {
    EfeitosOn = false;
  }
}

void MnuSair_Click() {
  vb::Engine::Get().Unload(Frm_Principal());
}
