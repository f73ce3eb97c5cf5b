// FrmSelFundos, the chooser of the card back: ten designs on two toolbars, a preview of the chosen
// one as five cards, and "D e s f a z e r" to choose again. The choice is kept in Dorso when the
// chooser closes; MnuFundos_Click then puts that back on every face-down card of the table.
#pragma once

#include <cstdint>

#include "platform/forms.h"

struct FrmSelFundos : vb::Form {
  FrmSelFundos();
  void Form_Activate();
  void Command1_Click();
  void Command2_Click();
  void ToolbarCartas_ButtonClick(int Index, vb::ToolbarButton& Button);
  void Form_Unload();

  // The designs as pairs by position: design N is the picture at 2N - 1 and its partner at 2N.
  vb::ImageList& ImageListReves = AddImageList("ImageListReves");
  // The preview's own store: its last two images are "FRENTE" and "DORSO".
  vb::ImageList& ImageListtESTE = AddImageList("ImageListtESTE");
  // 1 and 2: five designs each on the even buttons; 3: the preview.
  vb::ControlArray<> ToolbarCartas;
  vb::Control& Command1 = Add(vb::Kind::CommandButton, "Command1");
  vb::Control& Command2 = Add(vb::Kind::CommandButton, "Command2");
  // 0 while nothing is chosen; else the position in ImageListReves of the chosen pair's first
  // picture (odd, 1 to 19).
  std::uint8_t Selecionado = 0;

 private:
  void MostrarDesenhos();
};

FrmSelFundos& Frm_SelFundos();
