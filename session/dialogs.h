// The small modal dialogs of the right-click menu that change a setting of the game. Each holds the
// value in a member of its own while it is open: Form_Activate copies the setting in, Command1
// steps it (the counting dialogs), and Form_Unload, which runs whenever the dialog closes, copies
// it out. Closing the window is the only way out of a dialog; there is no OK and no Cancel.
//
// Each dialog is created on first use and opens fresh every time it is shown.
#pragma once

#include <cstdint>
#include <string>

#include "platform/forms.h"
#include "platform/runtime.h"

// The deck size, from 52 down to 20 in steps of four, then back to 52. Label2 names the ranks a
// deck of that size holds.
struct FrmNumerodeCartas : vb::Form {
  FrmNumerodeCartas();
  void Form_Activate();
  void Command1_Click();
  void Form_Unload();

  vb::Control& Frame1 = Add(vb::Kind::Frame, "Frame1");
  vb::Control& Label1 = Add(vb::Kind::Label, "Label1", &Frame1);
  vb::Control& Frame2 = Add(vb::Kind::Frame, "Frame2");
  vb::Control& Label2 = Add(vb::Kind::Label, "Label2", &Frame2);
  vb::Control& Command1 = Add(vb::Kind::CommandButton, "Command1");
  std::uint8_t Cartas = 0;

 private:
  void Mostrar();
};

// The chips each side starts with: 330, 660, 990, then back to 330. Label2 tells how many chips
// of each value that makes.
struct FrmNumerodeFichas : vb::Form {
  FrmNumerodeFichas();
  void Form_Activate();
  void Command1_Click();
  void Form_Unload();

  vb::Control& Frame1 = Add(vb::Kind::Frame, "Frame1");
  vb::Control& Label1 = Add(vb::Kind::Label, "Label1", &Frame1);
  vb::Control& Frame2 = Add(vb::Kind::Frame, "Frame2");
  vb::Control& Label2 = Add(vb::Kind::Label, "Label2", &Frame2);
  vb::Control& Command1 = Add(vb::Kind::CommandButton, "Command1");
  vb::Integer Fichas;

 private:
  void Mostrar();
};

// The most cards a side may exchange: 5 down to 0, then back to 5.
struct FrmQuantasCartas : vb::Form {
  FrmQuantasCartas();
  void Form_Activate();
  void Command1_Click();
  void Form_Unload();

  vb::Control& Frame1 = Add(vb::Kind::Frame, "Frame1");
  vb::Control& Label1 = Add(vb::Kind::Label, "Label1", &Frame1);
  vb::Control& Command1 = Add(vb::Kind::CommandButton, "Command1");
  std::uint8_t Troca = 0;
};

// The money value of one chip, typed by the player.
struct FrmValordaFicha : vb::Form {
  FrmValordaFicha();
  void Form_Activate();
  void Form_Unload();

  vb::Control& Frame1 = Add(vb::Kind::Frame, "Frame1");
  vb::Control& Text1 = Add(vb::Kind::TextBox, "Text1", &Frame1);
  float Valor = 0.0f;
};

// The player's name, as the table shows it.
struct frmMeuNome : vb::Form {
  frmMeuNome();
  void Form_Activate();
  void Form_Unload();

  vb::Control& Frame1 = Add(vb::Kind::Frame, "Frame1");
  vb::Control& Text1 = Add(vb::Kind::TextBox, "Text1", &Frame1);
  std::string Nome;
};

FrmNumerodeCartas& Frm_NumerodeCartas();
FrmNumerodeFichas& Frm_NumerodeFichas();
FrmQuantasCartas& Frm_QuantasCartas();
FrmValordaFicha& Frm_ValordaFicha();
frmMeuNome& Frm_MeuNome();

// The chip value as the dialog reads a typed text: a decimal comma is a point, blanks at both ends
// are dropped, and only a plain decimal number counts (no exponent, no inner blank, no currency
// sign); anything else is 5. A number beyond a Single's range overflows.
float LerValorFicha(const std::string& texto);
