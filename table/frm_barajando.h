// FrmBarajando, the shuffle on the screen: a small modal form on which two cards cross over the
// deck while the caption counts the ticks. It runs two passes of 31 ticks (the first tick of a pass
// after 100 ms, the others every 50 ms, 3.2 seconds in all) and then unloads itself, which returns
// control to Embaralhar. Closing it ends the game: during the first shuffle it is the only window.
//
// And TrocarFace, the opponent's new face at each shuffle.
#pragma once

#include <cstdint>

#include "platform/forms.h"

struct FrmBarajando : vb::Form {
  FrmBarajando();
  FrmBarajando(const FrmBarajando&) = delete;
  FrmBarajando& operator=(const FrmBarajando&) = delete;

  void Form_Load();
  void Timer1_Timer();

  vb::ImageList& ImageList1 = AddImageList("ImageList1");  // "barajando/1" .. "barajando/3"
  vb::ControlArray<> PictureMaxo;  // 0: the deck in the middle; 1 and 2: the cards that cross it
  vb::Control& LabelBaralhando = Add(vb::Kind::Label, "LabelBaralhando");
  vb::Control& Timer1 = Add(vb::Kind::Timer, "Timer1");

  std::uint8_t PassosBaralhar = 0;  // passes still to run
  std::int16_t ContaQuadros = 0;    // ticks of the present pass

 private:
  void ComecarPasso();
};

FrmBarajando& Frm_Barajando();

// The next face of the opponent: the number kept in the tag of PicturePokerFace plus one, back to
// 1 after the 27th, shown from ImageListFACES.
void TrocarFace();
