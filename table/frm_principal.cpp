#include "table/frm_principal.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/speeds.h"
#include "platform/engine.h"
#include "table/image_stores.h"
#include "table/nomes.h"

namespace {

constexpr const char* kTitulo =
    "PokerZEVA - Jogo de Poker (Tradicional jogo de cassino a Cinco Cartas)";

// The focus bars and the edges of the buttons.
constexpr std::int64_t kAmarelo = 0xFFFF00;
constexpr std::uint32_t kCinzaEscuro = 0x808080;
// The chip and card key figures: MS Sans Serif 13.5 bold, olive.
constexpr std::uint32_t kOliva = 0x808000;

// The Lefts of the five card key places on ToolbarPlayer; each card's button starts 50 before.
constexpr std::array<int, 5> kCartaLeft = {50, 1400, 2760, 4150, 5520};

void Place(vb::Control& c, int left, int top, int width, int height, std::int64_t back,
           std::int64_t fore) {
  c.Move(left, top, width, height);
  if (back >= 0) {
    c.BackColor = static_cast<std::uint32_t>(back);
    c.HasBackColor = true;
  }
  if (fore >= 0) c.ForeColor = static_cast<std::uint32_t>(fore);
}

// Four bars of `thick` twips, elements 4 x i to 4 x i + 3 of `bars` (top, bottom, left, right),
// drawing the border of the rectangle given, hidden until a place takes the focus.
void FocusBars(vb::Form& form, vb::ControlArray<>& bars, const char* name, vb::Control& parent,
               int i, int left, int top, int width, int height, int thick) {
  const std::array<std::array<int, 4>, 4> sides = {{
      {left, top, width, thick},
      {left, top + height - thick, width, thick},
      {left, top, thick, height},
      {left + width - thick, top, thick, height},
  }};
  for (int s = 0; s < 4; ++s) {
    vb::Control& bar = form.Add(vb::Kind::Frame, name, &parent, 4 * i + s);
    Place(bar, sides[s][0], sides[s][1], sides[s][2], sides[s][3], kAmarelo, FrmPrincipal::kSemCor);
    bar.BorderWidth = 0;
    bar.Visible = false;
    bars.Set(4 * i + s, &bar);
  }
}

// The chip and card key figures: a label inside each place, over its top left.
void Figure(vb::Control& label) {
  Place(label, 120, 120, 345, 375, FrmPrincipal::kSemCor, kOliva);
  label.font.name = "MS Sans Serif";
  label.font.size = 13.5;
  label.font.bold = true;
}

// Right click on the table: the menu, between two hands only.
void AbrirMenu(int Button) {
  if (Fase == 50 && Button == 2) vb::Engine::Get().PopupMenu(Frm_Principal().MnuPopup);
}
void Form_MouseDown(int Button, int /*Shift*/) {
  AbrirMenu(Button);
}
void FrameToFiler_MouseDown(int /*Index*/, int Button, int /*Shift*/) {
  AbrirMenu(Button);
}
void ToolbarPlayerCoins_MouseDown(int Button, int /*Shift*/) {
  AbrirMenu(Button);
}
void ToolbarPlayer_MouseDown(int Button, int /*Shift*/) {
  AbrirMenu(Button);
}

std::unique_ptr<FrmPrincipal> g_principal;
std::vector<void (*)()> g_destruicoes;

}  // namespace

vb::Control& FrmPrincipal::Make(vb::Kind kind, const char* name, vb::Control& parent, int left,
                                int top, int width, int height, std::int64_t back,
                                std::int64_t fore) {
  vb::Control& c = Make(kind, name, parent);
  Place(c, left, top, width, height, back, fore);
  return c;
}

vb::Control& FrmPrincipal::Make(vb::Kind kind, const char* name, vb::Control& parent) {
  return Add(kind, name, &parent == this ? nullptr : &parent);
}

vb::Control& FrmPrincipal::MakeMenu(const char* name, const char* caption, vb::Control& parent) {
  vb::Control& m = Make(vb::Kind::Menu, name, parent);
  m.Caption = caption;
  return m;
}

// The fillers: felt between and behind the strips of FraPrincipal, grey under the player's stack
// and round the command bars, and the same down the side frames that the wide table shows.
vb::ControlArray<> FrmPrincipal::MakeFrameToFiler() {
  struct Filler {
    vb::Control* parent;
    int left, top, width, height;
    std::int64_t back;
  };
  const std::array<Filler, 19> fillers = {{
      {&FraPrincipal, 0, 705, 9915, 15, kFeltro},       // 0: between the opponent's stack and cards
      {&FraPrincipal, 0, 2310, 9915, 15, kFeltro},      // 1: between her cards and the table
      {&FraPrincipal, 0, 6195, 9915, 375, kCinza},      // 2: under the player's stack, Shape1
      {&FraPrincipal, 0, 5430, 9915, 60, kFeltro},      // 3: between the player's cards and stack
      {&FraPrincipal, 0, 6570, 9915, 330, kCinza},      // 4: the row of the command bars
      {&FraPrincipal, 0, 6900, 9915, 885, kCinza},      // 5: the foot of the table
      {&FraPrincipal, 0, 0, 9915, 705, kFeltro},        // 6..10: behind the five strips
      {&FraPrincipal, 0, 720, 9915, 1590, kFeltro},     //
      {&FraPrincipal, 0, 2325, 9915, 1530, kFeltro},    //
      {&FraPrincipal, 0, 3840, 9915, 1590, kFeltro},    //
      {&FraPrincipal, 0, 5490, 9915, 705, kFeltro},     //
      {&FraPrincipal, 9900, 0, 15, 6195, kFeltro},      // 11: the right edge of the strips
      {&FrameFromLeft, 0, 0, 450, 2310, kFeltro},       // 12..14: the left side
      {&FrameFromLeft, 0, 2310, 450, 3885, kFeltro},    //
      {&FrameFromLeft, 0, 6195, 450, 1425, kCinza},     //
      {&FrameFromRight, 0, 0, 1335, 2310, kFeltro},     // 15..18: the right side; 17 keeps the
      {&FrameFromRight, 0, 2310, 1335, 3885, kFeltro},  // timers and the image stores
      {&FrameFromRight, 0, 6195, 1335, 1425, kCinza},   //
      {&FrameFromRight, 0, 0, 15, 7620, kBranco},       //
  }};
  vb::ControlArray<> array;
  for (int i = 0; i < static_cast<int>(fillers.size()); ++i) {
    const Filler& f = fillers[i];
    vb::Control& c = Add(vb::Kind::Frame, "FrameToFiler", f.parent, i);
    Place(c, f.left, f.top, f.width, f.height, f.back, kSemCor);
    c.BorderWidth = 0;
    array.Set(i, &c);
  }
  return array;
}

FrmPrincipal::FrmPrincipal() : vb::Form("Frm_Principal") {
  // The form at its narrow size, as AjustarTela leaves it without the deck strip.
  Caption = kTitulo;
  Place(*this, 0, 0, 10050, 7650, kFeltro, kSemCor);

  auto element = [this](vb::ControlArray<>& array, vb::Kind kind, const char* name, int index,
                        vb::Control& parent, int left, int top, int width, int height,
                        std::int64_t back = kSemCor, std::int64_t fore = kSemCor) -> vb::Control& {
    vb::Control& c = Add(kind, name, &parent, index);
    Place(c, left, top, width, height, back, fore);
    array.Set(index, &c);
    return c;
  };

  // --- image stores
  EncherImageListFACES(ImageListFACES);
  EncherImageListExtras(ImageListExtras);
  EncherImageListFundos(ImageListFundos);
  EncherImageListPotes(ImageListPotes);
  EncherImageListBarajas(ImageListBarajas);

  // --- toolbars: buttons and the stores they draw from. No button shows a picture at design.
  for (vb::Control* bar : {&ToolbarPokerCoins, &ToolbarPlayerCoins}) {
    for (const char* key : {"F01", "F05", "F10", "F50"}) {
      bar->AddButton();  // a free place under a chip picture
      bar->AddButton(key);
    }
    bar->images = &ImageListPotes;
  }
  for (vb::Control* bar : {&ToolbarPoker, &ToolbarPlayer}) {
    for (int b = 1; b <= 10; ++b) bar->AddButton();  // odd: separators, even: the five cards
    bar->images = &ImageListBarajas;
  }
  for (int b = 1; b <= 52; ++b) ToolbarBaraja.AddButton();
  ToolbarBaraja.images = &ImageListBarajas;
  ToolbarMesa.images = &ImageListFundos;

  // --- the chip places of both stacks, with their figures
  for (int i = 0; i < 4; ++i) {
    vb::Control& poker = element(PicFichasPoker, vb::Kind::PictureBox, "PicFichasPoker", i,
                                 ToolbarPokerCoins, 1920 * i, 50, 615, 615);
    Figure(
        element(LabelPokerFichasPOT, vb::Kind::Label, "LabelPokerFichasPOT", i, poker, 0, 0, 0, 0));
  }
  for (int i = 0; i < 4; ++i) {
    vb::Control& player = element(PicFichasPlayer, vb::Kind::PictureBox, "PicFichasPlayer", i,
                                  ToolbarPlayerCoins, 1920 * i, 50, 615, 615);
    Figure(element(LabelPlayerFichasPOT, vb::Kind::Label, "LabelPlayerFichasPOT", i, player, 0, 0,
                   0, 0));
    // The rectangle round the pile beside the chip place.
    FocusBars(*this, FraFichasFocus, "FraFichasFocus", ToolbarPlayerCoins, i, 600 + 1920 * i, 15,
              1335, 675, 50);
  }

  // --- the speech of both sides, three lines each, on their face panels
  struct Linha {
    int left, top, width, height;
    std::int64_t poker, player;  // text colours
  };
  const std::array<Linha, 3> linhas = {{
      {855, 45, 2085, 285, 0xFFFF00, 0x00FFFF},  // the speaker
      {720, 450, 2220, 285, 0xFFFFFF, 0xFFFFFF},
      {135, 765, 2715, 780, 0xFFFFFF, 0xFFFFFF},
  }};
  for (int i = 0; i < 3; ++i) {
    const Linha& l = linhas[i];
    element(LabelPokerCaption, vb::Kind::Label, "LabelPokerCaption", i, FraPokerFace, l.left, l.top,
            l.width, l.height, kFeltro, l.poker);
    element(LabelPlayerCaption, vb::Kind::Label, "LabelPlayerCaption", i, FraPlayerFace, l.left,
            l.top, l.width, l.height, kFeltro, l.player);
  }
  LabelPokerCaption(0).font.bold = true;
  LabelPlayerCaption(0).font.bold = true;

  // --- the chips on the table, 240 x 90 each, in columns of 270. The centre pot has two rows;
  // --- the opponent's stake fills its five rows downward, the player's upward, towards the middle
  for (int i = 0; i < 48; ++i) {
    element(PictureCoin, vb::Kind::PictureBox, "PictureCoin", i, FraCoins, 45 + 270 * (i / 2),
            45 + 90 * (i % 2), 240, 90)
        .Visible = false;
  }
  for (int i = 0; i < 120; ++i) {
    element(PicturePokerCoin, vb::Kind::PictureBox, "PicturePokerCoin", i, FraPokerCoins,
            45 + 270 * (i / 5), 45 + 90 * (i % 5), 240, 90)
        .Visible = false;
    element(PicturePlayerCoin, vb::Kind::PictureBox, "PicturePlayerCoin", i, FraPlayerCoins,
            45 + 270 * (i / 5), 405 - 90 * (i % 5), 240, 90)
        .Visible = false;
  }

  // --- the player's card key places, with their figures and focus rectangles
  for (int i = 0; i < 5; ++i) {
    vb::Control& place = element(PicCartasPlayer, vb::Kind::PictureBox, "PicCartasPlayer", i,
                                 ToolbarPlayer, kCartaLeft[i], 120, 135, 255, kCinza);
    vb::Control& rot = element(LabelPlayerCartasROT, vb::Kind::Label, "LabelPlayerCartasROT", i,
                               place, 0, 0, 0, 0);
    Figure(rot);
    rot.Caption = "1";
    FocusBars(*this, FraCartasFocus, "FraCartasFocus", ToolbarPlayer, i, kCartaLeft[i] - 50, 15,
              1275, 1560, 50);
  }

  // --- the command bars
  element(CmdDesfazer, vb::Kind::CommandButton, "CmdDesfazer", 0, FraApostaPlayer, 3240, 45, 1365,
          225, 0x80FFFF);
  element(CmdSair, vb::Kind::CommandButton, "CmdSair", 0, FraApostaPlayer, 4635, 45, 1365, 225,
          0xFFC080);
  element(CmdAcabei, vb::Kind::CommandButton, "CmdAcabei", 0, FraApostaPlayer, 6030, 45, 735, 225,
          0xFFFF00);
  element(CmdDesfazer, vb::Kind::CommandButton, "CmdDesfazer", 1, FraPedeCartasPlayer, 45, 45, 1365,
          225, 0x80FFFF);
  element(CmdSair, vb::Kind::CommandButton, "CmdSair", 1, FraPedeCartasPlayer, 1440, 45, 1365, 225,
          0xFFC080);
  element(CmdAcabei, vb::Kind::CommandButton, "CmdAcabei", 1, FraPedeCartasPlayer, 2835, 45, 735,
          225, 0xFFFF80);
  element(CmdSair, vb::Kind::CommandButton, "CmdSair", 2, FraMaisUma, 1530, 45, 1365, 225,
          0xFFC080);
  CmdPago.Caption = "&P A G O";
  CmdTudo.Caption = "Aposto &TUDO";
  for (int i = 0; i <= 1; ++i) {
    CmdDesfazer(i).Caption = "&DesFazer";
    CmdAcabei(i).Caption = "&Acabei";
  }
  for (int i = 0; i <= 2; ++i) CmdSair(i).Caption = "&EMBORA...";
  CmdMaisUma.Caption = "&Mais UMA";
  CmdConfrontar.Caption = "&Confrontar";

  // The raised edge under each button, then the foot of its bar. A line runs from (Left, Top) to
  // (Left + Width, Top + Height).
  int linha = 0;
  const auto edges = [&](vb::Control& bar, std::initializer_list<vb::Control*> buttons) {
    for (vb::Control* b : buttons) {
      element(Line1, vb::Kind::Line, "Line1", linha++, bar, b->Left, 270, b->Width, 0).ForeColor =
          kCinzaEscuro;
    }
    element(Line1, vb::Kind::Line, "Line1", linha++, bar, 0, 315, bar.Width, 0).ForeColor =
        kCinzaEscuro;
  };
  edges(FraApostaPlayer, {&CmdPago, &CmdTudo, &CmdDesfazer(0), &CmdSair(0), &CmdAcabei(0)});
  edges(FraPedeCartasPlayer, {&CmdDesfazer(1), &CmdSair(1), &CmdAcabei(1)});
  edges(FraMaisUma, {&CmdMaisUma, &CmdSair(2)});
  edges(FraConfrontarJogos, {&CmdConfrontar});
  Shape1.ForeColor = kCinzaEscuro;

  for (vb::Control* bar :
       {&FraApostaPlayer, &FraPedeCartasPlayer, &FraMaisUma, &FraConfrontarJogos})
    bar->Visible = false;

  // --- the rest of the table at design
  FraPokerMensagem.Visible = false;
  FraPokerMensagem.Enabled = false;
  PicturePokerMensagem.Picture = kPictureBalao;
  // The face shown is the number in the tag: the first shuffle moves on to face 2.
  PicturePokerFace.Tag = "1";
  PicturePokerFace.Picture = ImageListFACES.PictureOf(1);
  LabelMesa.Caption = "Na Mesa...";

  // --- timers
  Timer1.timer_order = 0;
  Timer1.Enabled = true;  // no interval yet: the music clock starts with the first hand
  TimerKeyPot.timer_order = 1;
  TimerKeyPot.Interval = kIntervaloTeclaPote;
  TimerKeyPot.Enabled = true;  // fires once after the form starts and switches itself off
  TimerEspera.timer_order = 3;
  TimerEspera.Enabled = false;

  // --- the tab order: the chip places, the card key places, then the bars left to right
  int tab = 0;
  for (int i = 0; i < 4; ++i) PicFichasPlayer(i).TabIndex = tab++;
  for (int i = 0; i < 5; ++i) PicCartasPlayer(i).TabIndex = tab++;
  for (vb::Control* c :
       {&CmdPago, &CmdTudo, &CmdDesfazer(0), &CmdSair(0), &CmdAcabei(0), &CmdDesfazer(1),
        &CmdSair(1), &CmdAcabei(1), &CmdConfrontar, &CmdMaisUma, &CmdSair(2)})
    c->TabIndex = tab++;

  // --- the menu: the two entries of the cheat are offered only to who knows the code. There are
  // --- no saved games, so "Carregar" and "Salvar" are left out
  for (vb::Control* m : {&MnuVerBaralho, &MnuVerCartas}) {
    m->Visible = false;
    m->Enabled = false;
  }
  MnuCarregar.Visible = false;
  MnuSalvar.Visible = false;

  // --- right click
  MouseDown = Form_MouseDown;
  for (const auto& [index, filler] : FrameToFiler.items()) {
    const int Index = index;
    filler->MouseDown = [Index](int Button, int Shift) {
      FrameToFiler_MouseDown(Index, Button, Shift);
    };
  }
  ToolbarPlayerCoins.MouseDown = ToolbarPlayerCoins_MouseDown;
  ToolbarPlayer.MouseDown = ToolbarPlayer_MouseDown;

  NomearControles(*this);
}

FrmPrincipal& Frm_Principal() {
  if (!g_principal) {
    g_principal = std::make_unique<FrmPrincipal>();
    g_principal->is_main = true;
    vb::Engine::Get().Register(*g_principal);
  }
  return *g_principal;
}

void RegistrarDestruicao(void (*destruir)()) {
  if (std::find(g_destruicoes.begin(), g_destruicoes.end(), destruir) == g_destruicoes.end())
    g_destruicoes.push_back(destruir);
}

void DestruirFormularios() {
  for (auto it = g_destruicoes.rbegin(); it != g_destruicoes.rend(); ++it) (*it)();
  g_principal.reset();
}
