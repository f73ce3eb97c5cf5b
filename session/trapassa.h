// FrmTrapassa, the door of the cheat: who types the access code is offered two more entries of the
// menu, to see the deck laid out and the opponent's cards face up. A wrong code takes both away.
#pragma once

#include "platform/forms.h"

struct FrmTrapassa : vb::Form {
  FrmTrapassa();
  // Runs once in the life of the program, when the dialog is first opened: its text then stays
  // from one opening to the next.
  void Form_Initialize();
  void Form_Unload();

  vb::Control& Label2 = Add(vb::Kind::Label, "Label2");
  vb::Control& Text1 = Add(vb::Kind::TextBox, "Text1");
};

FrmTrapassa& Frm_Trapassa();

// The access code: thirteen letters and two blanks, compared exactly.
inline constexpr const char* kSenhaTrapassa = "OBaralhoLimpo  ";
