#include "session/sel_fundos.h"

#include <string>

#include "core/game_state.h"
#include "platform/runtime.h"
#include "table/frm_principal.h"
#include "table/image_stores.h"

namespace {
constexpr int kDesenhos = 10;
constexpr int kPorBarra = 5;  // designs on each of the first two toolbars
}  // namespace

FrmSelFundos::FrmSelFundos() : vb::Form("FrmSelFundos") {
  Caption = "  Seleccione o Fundo das Cartas, Clickando com o Mouse nele!";
  Move(0, 0, 7200, 6300);
  EncherImageListReves(ImageListReves);
  EncherImageListtESTE(ImageListtESTE);
  for (int i = 1; i <= 3; ++i) {
    vb::Control& bar = Add(vb::Kind::Toolbar, "ToolbarCartas", nullptr, i);
    bar.Move(120, 120 + 1680 * (i - 1), 6960, 1590);
    bar.images = i == 3 ? &ImageListtESTE : &ImageListReves;
    for (int b = 1; b <= 10; ++b) bar.AddButton();
    ToolbarCartas.Set(i, &bar);
    // Readers hear each design by its number, and the preview's cards as such.
    bar.accessible.button_namer = [i](const vb::ToolbarButton& b) {
      if (b.PictureShown().empty()) return std::string();
      if (i == 3) return std::string("Prévia do fundo escolhido");
      return "Fundo " + std::to_string((i - 1) * kPorBarra + b.Index() / 2);
    };
    if (i == 3) continue;  // the preview only shows
    bar.ButtonClick = [this, i](vb::ToolbarButton& button) {
      ToolbarCartas_ButtonClick(i, button);
    };
  }
  Command1.Move(960, 5280, 2400, 420);
  Command1.Caption = "&A p l i c a r";
  Command1.TabIndex = 0;
  Command2.Move(3840, 5280, 2400, 420);
  Command2.Caption = "D e s f a z e r";
  Command2.TabIndex = 1;
  Activate = [this] { Form_Activate(); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Unload = [this](int&) { Form_Unload(); };
}

// The ten designs, each on its even button: one to five on the first toolbar, six to ten on the
// second. Nothing is chosen.
void FrmSelFundos::MostrarDesenhos() {
  for (int i = 1; i <= kDesenhos; ++i) {
    vb::Control& bar = ToolbarCartas(i <= kPorBarra ? 1 : 2);
    bar.Button(2 * (i <= kPorBarra ? i : i - kPorBarra)).SetImage(2 * (i - 1) + 1);
  }
  Selecionado = 0;
}

void FrmSelFundos::Form_Activate() {
  // The preview shows nothing until a choice is applied.
  for (int b = 1; b <= 10; ++b) ToolbarCartas(3).Button(b).SetImage(0);
  MostrarDesenhos();
}

void FrmSelFundos::Command2_Click() {
  MostrarDesenhos();
}

// A design is taken only while none is: a second click waits for "D e s f a z e r".
void FrmSelFundos::ToolbarCartas_ButtonClick(int Index, vb::ToolbarButton& Button) {
  if (Selecionado != 0) return;
  Selecionado = static_cast<std::uint8_t>((Button.Index() - 1) + (Index - 1) * 10);
  // The whole board shows the choice.
  for (int i = 1; i <= kPorBarra; ++i) {
    ToolbarCartas(1).Button(2 * i).SetImage(Selecionado);
    ToolbarCartas(2).Button(2 * i).SetImage(Selecionado);
  }
}

// The chosen pair as five cards: the face-down picture at both ends, its partner between them.
void FrmSelFundos::Command1_Click() {
  vb::Control& preview = ToolbarCartas(3);
  preview.images = nullptr;
  ImageListtESTE.Remove(ImageListtESTE.Count());
  ImageListtESTE.Remove(ImageListtESTE.Count());
  // Position 0 names no element of the store: with nothing chosen this is the store's fault.
  if (Selecionado == 0) vb::Raise(vb::err::kElementNotFound);
  ImageListtESTE.Add(ImageListReves.PictureOf(Selecionado), "FRENTE");
  ImageListtESTE.Add(ImageListReves.PictureOf(Selecionado + 1), "DORSO");
  preview.images = &ImageListtESTE;
  for (int i = 1; i <= 5; ++i) preview.Button(2 * i).SetImage("FRENTE");
  for (int i = 2; i <= 4; ++i) preview.Button(2 * i).SetImage("DORSO");
}

// Closing without a choice sets the first design, not the one in force before.
void FrmSelFundos::Form_Unload() {
  Dorso = Selecionado != 0 ? Selecionado : 1;
}

FrmSelFundos& Frm_SelFundos() {
  return FormularioDoJogo<FrmSelFundos>();
}
