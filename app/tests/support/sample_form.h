// A small table with one of each kind of control, drawn by the desktop front: the felt with its
// labels, a chip place, a tiny chip, a card toolbar, the betting bar, a text box, a popup menu and
// a timer. The tests, the idle measurement and the hand-played sample all use it.
#pragma once

#include <QString>
#include <string>

#include "platform/forms.h"

namespace sample {

struct SampleForm {
  SampleForm();

  vb::Form form{"FrmAmostra"};
  vb::Control* felt = nullptr;         // FraMesa: right-click pops the menu
  vb::Control* hand_label = nullptr;   // "mão 1"
  vb::Control* chips_label = nullptr;  // "N Fichas"
  vb::Control* chip_place = nullptr;   // PicFichasPlayer(1), a chip of 5
  vb::Control* tiny_chip = nullptr;    // PictureCoin(0), 16 x 6 pixels
  vb::ImageList* cards = nullptr;
  vb::Control* toolbar = nullptr;  // ToolbarPlayer: gap, AC, gap, KP
  vb::Control* bar = nullptr;      // FraApostaPlayer
  vb::Control* pago = nullptr;
  vb::Control* acabei = nullptr;
  vb::Control* esperar = nullptr;
  vb::Control* erro = nullptr;
  vb::Control* name_box = nullptr;
  vb::Control* menu = nullptr;   // MnuPopup
  vb::Control* timer = nullptr;  // TimerEspera, 100 ms

  // What the handlers saw.
  int chips = 0;
  int acabei_clicks = 0;
  int pago_clicks = 0;
  int button_clicks = 0;
  int last_button = 0;
  int right_clicks = 0;
  int ticks = 0;
  int waits_done = 0;
  int after_fault = 0;  // counts code that must never run after a fault
  std::string last_menu;
  std::string last_key;
};

// Plain pictures under the ids the sample uses (cards, a chip, a pile), at 1x and 2x.
void WriteSampleImages(const QString& folder);

}  // namespace sample
