// What the replay keeps of the game it plays: the printer that watches the table, the controls the
// random player asks about, and the dialog a menu line is playing.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <sstream>
#include <string>
#include <unordered_map>

#include "platform/forms.h"
#include "platform/virtual_host.h"
#include "replay.h"

struct FrmPrincipal;

namespace replay {

struct Observer : vb::Listener {
  Session* session;
  const vb::Form* table = nullptr;
  // What each control of the table is to the printer, found once by its name.
  enum Watch : signed char { kUnknown, kNone, kLabel, kPokerCards, kPlayerCards };
  std::unordered_map<const vb::Control*, Watch> watch;
  std::map<std::string, std::string> labels;  // last caption of each watched label
  std::map<std::string, std::string> cards;   // last image of each card button

  Watch Classify(const vb::Control& c) {
    static const char* kWatched[] = {
        "LabelPokerFichas",         "LabelPokerMoney",           "LabelPlayerFichas",
        "LabelPlayerMoney",         "LabelMesaFichas",           "LabelMesaMoney",
        "LabelPokerMesaTotalCoims", "LabelPlayerMesaTotalCoims", "LabelManoMesa",
        "LabelPokerMensagem"};
    if (c.Name() == "ToolbarPoker") return kPokerCards;
    if (c.Name() == "ToolbarPlayer") return kPlayerCards;
    for (const char* name : kWatched)
      if (c.Name() == name) return kLabel;
    return kNone;
  }

  void Changed(vb::Control& c, vb::Prop prop, int sub) override {
    if (prop != vb::Prop::Caption && prop != vb::Prop::ButtonImage) return;
    // Only the table; never create it from here (this runs while it is being built).
    if (&c.form() != table) {
      if (c.form().Name() != "Frm_Principal") return;
      table = &c.form();
      watch.clear();
    }
    Watch& w = watch[&c];
    if (w == kUnknown) w = Classify(c);
    if (prop == vb::Prop::Caption && w == kLabel) {
      auto it = labels.find(c.Name());
      const std::string& now = c.Caption.get();
      if (it == labels.end() ? !now.empty() : it->second != now) {
        labels[c.Name()] = now;
        session->Emit("label", "\"name\": " + Json(c.Name()) + ", \"caption\": " + Json(now));
      }
    } else if (prop == vb::Prop::ButtonImage && sub % 2 == 0 &&
               (w == kPokerCards || w == kPlayerCards)) {
      const std::string key = c.Name() + std::to_string(sub);
      const std::string& image = c.Button(sub).ImageKey();
      auto it = cards.find(key);
      if (it == cards.end() ? !image.empty() : it->second != image) {
        cards[key] = image;
        session->Emit("card", std::string("\"side\": ") +
                                  (w == kPokerCards ? "\"poker\"" : "\"player\"") +
                                  ", \"pos\": " + std::to_string(sub / 2) +
                                  ", \"image\": " + (image.empty() ? "null" : Json(image)));
      }
    }
  }
};

// The controls the random player looks at, found once per table.
struct Controls {
  const FrmPrincipal* table = nullptr;
  const vb::Control* coins = nullptr;
  const vb::Control* chip_places[4] = {};
  const vb::Control* card_places[5] = {};
  const vb::Control* buttons[11] = {};
};

// One thing the player does in a dialog that a menu line opened.
struct DialogStep {
  enum Kind { Press, PressButton, Type, Wait, Close } kind;
  std::string control;  // Press: a command button; PressButton: a toolbar
  int index = -1;       // the toolbar's index in its array
  int button = 0;       // PressButton: the button's number
  std::string text;     // Type
  std::int64_t ms = 0;  // Wait
};

struct Session::Impl {
  vb::VirtualHost host;
  Observer observer;
  Controls controls;
  std::istringstream words;  // the words of a script line, kept for the next line
  // The steps still to play in the dialog of the present menu line, and that dialog once open.
  std::deque<DialogStep> dialog;
  vb::Form* dialog_form = nullptr;
};

}  // namespace replay
