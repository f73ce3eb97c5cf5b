#include "table/frm_barajando.h"

#include <memory>
#include <string>

#include "core/game_state.h"
#include "core/speeds.h"
#include "platform/app_path.h"
#include "platform/engine.h"
#include "platform/runtime.h"
#include "table/frm_principal.h"
#include "table/image_stores.h"
#include "table/nomes.h"

namespace {

constexpr int kQuadrosPorPasso = 31;
constexpr int kPassos = 2;
// Where the crossing cards start: the one from the left, the one from the right, and where the
// right one goes back to at the end of a pass (ten units further out).
constexpr int kEsquerda = 360;
constexpr int kDireita = 6615;
constexpr int kDireitaVolta = 6625;
constexpr int kPasso = 100;  // twips a card moves at each tick

// The deck size spelled out as the caption spells it: " 5 2" for 52.
std::string Espacado(int numero) {
  std::string texto;
  for (char digito : std::to_string(numero)) texto += std::string(" ") + digito;
  return texto;
}

std::unique_ptr<FrmBarajando> g_barajando;

}  // namespace

FrmBarajando::FrmBarajando() : vb::Form("FrmBarajando") {
  Move(0, 0, 7800, 2700);
  close_ends_game = true;
  EncherImageListBarajando(ImageList1);
  // The deck stands in the middle; the two cards cross over it.
  const int lefts[] = {3360, kDireita, kEsquerda};
  for (int i = 0; i < 3; ++i) {
    vb::Control& p = Add(vb::Kind::PictureBox, "PictureMaxo", nullptr, i);
    p.Move(lefts[i], 300, 1065, 1440);
    PictureMaxo.Set(i, &p);
  }
  LabelBaralhando.Move(360, 1920, 6960, 285);
  Timer1.timer_order = 2;
  Load = [this] { Form_Load(); };
  Timer1.TimerEvent = [this] { Timer1_Timer(); };
  NomearControles(*this);
}

void FrmBarajando::ComecarPasso() {
  LabelBaralhando.Caption = "B a r a l h a n d o . . .";
  Caption = "  B a r a l h a n d o   a s   " + Espacado(NroCartas) + "   c a r t a s";
  ContaQuadros = 0;
  Timer1.Interval = kIntervaloBaralhar;
  Timer1.Enabled = true;
}

void FrmBarajando::Form_Load() {
  for (int i = 0; i < 3; ++i) PictureMaxo(i).Picture = ImageList1.PictureOf(i + 1);
  PassosBaralhar = kPassos;
  PictureMaxo(2).SetLeft(kEsquerda);
  PictureMaxo(1).SetLeft(kDireita);
  ComecarPasso();
}

void FrmBarajando::Timer1_Timer() {
  PictureMaxo(2).SetLeft(PictureMaxo(2).Left + kPasso);
  PictureMaxo(1).SetLeft(PictureMaxo(1).Left - kPasso);
  Caption = Caption.get() + " .";
  ++ContaQuadros;
  if (ContaQuadros < kQuadrosPorPasso) {
    // Only the first tick of a pass waits the longer interval.
    Timer1.Interval = kIntervaloFimDoPasso;
    return;
  }
  // The end of a pass: the cards go back (the right one ten units further out than it started)
  // and the next pass begins from there.
  PictureMaxo(2).SetLeft(kEsquerda);
  PictureMaxo(1).SetLeft(kDireitaVolta);
  ContaQuadros = 0;
  --PassosBaralhar;
  ComecarPasso();
  if (PassosBaralhar == 0) vb::Engine::Get().Unload(*this);
}

FrmBarajando& Frm_Barajando() {
  if (!g_barajando) {
    g_barajando = std::make_unique<FrmBarajando>();
    vb::Engine::Get().Register(*g_barajando);
    RegistrarDestruicao([] { g_barajando.reset(); });
  }
  return *g_barajando;
}

void TrocarFace() {
  FrmPrincipal& f = Frm_Principal();
  // The folder of faces beside the program's: composed, never read; the faces are in the store.
  [[maybe_unused]] const std::string pasta = vb::AppPath() + "\\..\\FACES\\";
  int n = static_cast<int>(vb::Val(f.PicturePokerFace.Tag.get())) + 1;
  if (n > 27) n = 1;
  f.PicturePokerFace.Picture = f.ImageListFACES.PictureOf(n);
  f.PicturePokerFace.Tag = std::to_string(n);
}
