// frmAbout, the credits: the game's title, its version and its author, with a picture, over the
// credits tune when effects and music are both on. The tune starts again every 310 seconds while
// the form stays open.
#pragma once

#include <cstdint>

#include "platform/forms.h"

struct frmAbout : vb::Form {
  frmAbout();
  void Form_Load();
  void Timer1_Timer();
  void Form_Unload();

  vb::Control& Frame1 = Add(vb::Kind::Frame, "Frame1");
  vb::Control& LblTitle = Add(vb::Kind::Label, "LblTitle", &Frame1);
  vb::Control& LblDescription = Add(vb::Kind::Label, "LblDescription", &Frame1);
  vb::Control& lblVersion = Add(vb::Kind::Label, "lblVersion", &Frame1);
  vb::Control& LblAuthor = Add(vb::Kind::Label, "LblAuthor", &Frame1);
  vb::Control& Frame2 = Add(vb::Kind::Frame, "Frame2");
  vb::Control& Picture1 = Add(vb::Kind::PictureBox, "Picture1", &Frame2);
  vb::Control& Timer1 = Add(vb::Kind::Timer, "Timer1");
  std::int32_t Contador = 0;  // ticks of Timer1 since the tune began
};

frmAbout& Frm_About();
