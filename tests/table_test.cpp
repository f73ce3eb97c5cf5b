// The table as a model: the controls of Frm_Principal by name, place and colour, the control
// arrays and their place formulas, the toolbars, the image stores, the menu, the right click, the
// shuffle animation on the virtual clock and the opponent's faces.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/cards.h"
#include "core/game_state.h"
#include "platform/engine.h"
#include "platform/runtime.h"
#include "platform/virtual_host.h"
#include "table/frm_barajando.h"
#include "table/frm_principal.h"

namespace {

class TableTest : public ::testing::Test {
 protected:
  void SetUp() override { Fresh(); }
  void TearDown() override { Fresh(); }
  static void Fresh() {
    vb::Engine::Get().Reset();
    DestruirFormularios();
    ResetGameState();
  }
};

// The run-time error number that `action` ends the program with, 0 if none.
int ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const vb::RuntimeError& e) {
    return e.number();
  }
  return 0;
}

std::string ParentName(const vb::Control& c) {
  return c.parent() ? c.parent()->Id() : "";
}

// Records what one control says when a property of it changes.
class Recorder : public vb::Listener {
 public:
  Recorder(const vb::Control& watched, vb::Prop prop, std::function<std::string()> read)
      : watched_(watched), prop_(prop), read_(std::move(read)) {
    vb::Engine::Get().AddListener(this);
  }
  ~Recorder() override { vb::Engine::Get().RemoveListener(this); }
  void Changed(vb::Control& control, vb::Prop prop, int) override {
    if (&control == &watched_ && prop == prop_) seen.push_back({vb::Engine::Get().Now(), read_()});
  }
  std::vector<std::pair<std::int64_t, std::string>> seen;

 private:
  const vb::Control& watched_;
  vb::Prop prop_;
  std::function<std::string()> read_;
};

TEST_F(TableTest, SingleControlsStandWhereTheTableSays) {
  struct Row {
    const char* name;
    const char* parent;
    int left, top, width, height;
    std::int64_t back, fore;  // -1: not given
  };
  const Row rows[] = {
      {"FraPrincipal", "", 0, 0, 9915, 7785, 0xFFFFFF, -1},
      {"ToolbarBaraja", "", 0, 0, 11610, 1590, -1, -1},
      {"LblMusicTime", "", 0, 0, 1185, 465, 0x1A6802, -1},
      {"FraPokerMensagem", "FraPrincipal", 7005, 1410, 2850, 2130, -1, -1},
      {"LabelPokerMensagem", "PicturePokerMensagem", 135, 495, 2580, 1545, 0x1A6802, 0x0E0000},
      {"ToolbarPokerCoins", "FraPrincipal", 0, 0, 11610, 705, -1, -1},
      {"LabelPokerMoney", "FraPokerMoney", 135, 315, 1995, 285, 0x1A6802, 0xFF8000},
      {"ToolbarPoker", "FraPrincipal", 0, 720, 11610, 1590, -1, -1},
      {"PicturePokerFace", "FraPokerFace", 90, 45, 555, 555, -1, -1},
      {"ToolbarMesa", "FraPrincipal", 0, 2325, 11610, 1530, -1, -1},
      {"FraMesa", "ToolbarMesa", 45, 0, 9850, 1550, 0x1A6802, -1},
      {"FraPlayerCoins", "FraMesa", 1845, 990, 6585, 555, 0x1A6802, -1},
      {"PictureMão", "FraMesa", 1170, 225, 195, 150, -1, -1},
      {"LabelManoMesa", "FraMesa", 180, 135, 1005, 285, 0x1A6802, 0xFF80FF},
      {"LabelPlayerMesaTotalCoims", "FraMesa", 8595, 1215, 1230, 240, 0x1A6802, 0x00FFFF},
      {"ToolbarPlayer", "FraPrincipal", 0, 3840, 11610, 1590, -1, -1},
      {"PicturePlayerFace", "FraPlayerFace", 90, 45, 540, 540, -1, -1},
      {"ToolbarPlayerCoins", "FraPrincipal", 0, 5490, 11610, 705, -1, -1},
      {"LabelPlayerMoney", "FraPlayerMoney", 110, 315, 1995, 285, 0x1A6802, 0x00FF00},
      {"FraApostaPlayer", "FraPrincipal", 735, 6570, 6810, 330, 0xC0C0C0, -1},
      {"CmdPago", "FraApostaPlayer", 45, 45, 1275, 225, 0x00FF00, -1},
      {"CmdTudo", "FraApostaPlayer", 1350, 45, 1860, 225, 0xE0E0E0, -1},
      {"FraPedeCartasPlayer", "FraPrincipal", 2565, 6570, 3615, 330, 0xC0C0C0, -1},
      {"FraMaisUma", "FraPrincipal", 3060, 6570, 2985, 330, 0xC0C0C0, -1},
      {"CmdMaisUma", "FraMaisUma", 45, 45, 1455, 225, 0xFFFF00, -1},
      {"CmdConfrontar", "FraConfrontarJogos", 45, 45, 1995, 225, 0xC0C000, -1},
  };
  FrmPrincipal& f = Frm_Principal();
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    const vb::Control* c = f.Find(r.name);
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(ParentName(*c), r.parent);
    EXPECT_EQ((std::vector<int>{c->Left, c->Top, c->Width, c->Height}),
              (std::vector<int>{r.left, r.top, r.width, r.height}));
    EXPECT_EQ(c->HasBackColor, r.back >= 0);
    if (r.back >= 0) {
      EXPECT_EQ(c->BackColor, static_cast<std::uint32_t>(r.back));
    }
    if (r.fore >= 0) {
      EXPECT_EQ(c->ForeColor, static_cast<std::uint32_t>(r.fore));
    }
  }
  // The elements of the button arrays, bar by bar.
  const std::vector<std::tuple<vb::Control*, std::string, int, std::uint32_t>> buttons = {
      {&f.CmdDesfazer(0), "FraApostaPlayer", 3240, 0x80FFFF},
      {&f.CmdSair(0), "FraApostaPlayer", 4635, 0xFFC080},
      {&f.CmdAcabei(0), "FraApostaPlayer", 6030, 0xFFFF00},
      {&f.CmdDesfazer(1), "FraPedeCartasPlayer", 45, 0x80FFFF},
      {&f.CmdSair(1), "FraPedeCartasPlayer", 1440, 0xFFC080},
      {&f.CmdAcabei(1), "FraPedeCartasPlayer", 2835, 0xFFFF80},
      {&f.CmdSair(2), "FraMaisUma", 1530, 0xFFC080},
  };
  for (const auto& [c, bar, left, back] : buttons) {
    SCOPED_TRACE(c->Id());
    EXPECT_EQ(ParentName(*c), bar);
    EXPECT_EQ(c->Left, left);
    EXPECT_EQ(c->Top, 45);
    EXPECT_EQ(c->BackColor, back);
  }
  // Everything of play stands on FraPrincipal; the deck strip and the debugging line do not.
  for (const auto& c : f.controls()) {
    if (c->kind() == vb::Kind::Menu || c->kind() == vb::Kind::ImageList) continue;
    const vb::Control* top = c.get();
    while (top->parent()) top = top->parent();
    if (top == c.get()) continue;
    EXPECT_TRUE(top == &f.FraPrincipal || top == &f.FrameFromLeft || top == &f.FrameFromRight)
        << c->Id();
  }
}

TEST_F(TableTest, ControlArraysHaveTheirCountsAndPlaces) {
  FrmPrincipal& f = Frm_Principal();
  struct Rect {
    int left, top, width, height;
  };
  struct Row {
    const char* name;
    vb::ControlArray<>* array;
    int count;
    std::function<const vb::Control*(int)> parent;
    std::function<Rect(int)> place;  // null: not checked here
    bool visible;
  };
  const int cartas[] = {50, 1400, 2760, 4150, 5520};
  const std::vector<Row> rows = {
      {"PictureCoin", &f.PictureCoin, 48, [&](int) { return &f.FraCoins; },
       [](int i) {
         return Rect{45 + 270 * (i / 2), 45 + 90 * (i % 2), 240, 90};
       },
       false},
      {"PicturePokerCoin", &f.PicturePokerCoin, 120, [&](int) { return &f.FraPokerCoins; },
       [](int i) {
         return Rect{45 + 270 * (i / 5), 45 + 90 * (i % 5), 240, 90};
       },
       false},
      {"PicturePlayerCoin", &f.PicturePlayerCoin, 120, [&](int) { return &f.FraPlayerCoins; },
       [](int i) {
         return Rect{45 + 270 * (i / 5), 405 - 90 * (i % 5), 240, 90};
       },
       false},
      {"PicFichasPlayer", &f.PicFichasPlayer, 4, [&](int) { return &f.ToolbarPlayerCoins; },
       [](int i) {
         return Rect{1920 * i, 50, 615, 615};
       },
       true},
      {"PicFichasPoker", &f.PicFichasPoker, 4, [&](int) { return &f.ToolbarPokerCoins; },
       [](int i) {
         return Rect{1920 * i, 50, 615, 615};
       },
       true},
      {"LabelPlayerFichasPOT", &f.LabelPlayerFichasPOT, 4,
       [&](int i) { return &f.PicFichasPlayer(i); },
       [](int) {
         return Rect{120, 120, 345, 375};
       },
       true},
      {"LabelPokerFichasPOT", &f.LabelPokerFichasPOT, 4,
       [&](int i) { return &f.PicFichasPoker(i); },
       [](int) {
         return Rect{120, 120, 345, 375};
       },
       true},
      {"PicCartasPlayer", &f.PicCartasPlayer, 5, [&](int) { return &f.ToolbarPlayer; },
       [&](int i) {
         return Rect{cartas[i], 120, 135, 255};
       },
       true},
      {"LabelPlayerCartasROT", &f.LabelPlayerCartasROT, 5,
       [&](int i) { return &f.PicCartasPlayer(i); },
       [](int) {
         return Rect{120, 120, 345, 375};
       },
       true},
      {"LabelPokerCaption", &f.LabelPokerCaption, 3, [&](int) { return &f.FraPokerFace; },
       [](int i) {
         const Rect r[] = {{855, 45, 2085, 285}, {720, 450, 2220, 285}, {135, 765, 2715, 780}};
         return r[i];
       },
       true},
      {"LabelPlayerCaption", &f.LabelPlayerCaption, 3, [&](int) { return &f.FraPlayerFace; },
       [](int i) {
         const Rect r[] = {{855, 45, 2085, 285}, {720, 450, 2220, 285}, {135, 765, 2715, 780}};
         return r[i];
       },
       true},
      {"FraFichasFocus", &f.FraFichasFocus, 16, [&](int) { return &f.ToolbarPlayerCoins; }, nullptr,
       false},
      {"FraCartasFocus", &f.FraCartasFocus, 20, [&](int) { return &f.ToolbarPlayer; }, nullptr,
       false},
      {"CmdSair", &f.CmdSair, 3,
       [&](int i) {
         const vb::Control* bars[] = {&f.FraApostaPlayer, &f.FraPedeCartasPlayer, &f.FraMaisUma};
         return bars[i];
       },
       nullptr, true},
      {"CmdAcabei", &f.CmdAcabei, 2,
       [&](int i) { return i == 0 ? &f.FraApostaPlayer : &f.FraPedeCartasPlayer; }, nullptr, true},
      {"CmdDesfazer", &f.CmdDesfazer, 2,
       [&](int i) { return i == 0 ? &f.FraApostaPlayer : &f.FraPedeCartasPlayer; }, nullptr, true},
      {"Line1", &f.Line1, 15, nullptr, nullptr, true},
      {"FrameToFiler", &f.FrameToFiler, 19, nullptr, nullptr, true},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    ASSERT_EQ(r.array->Count(), r.count);
    EXPECT_EQ(r.array->UBound(), r.count - 1);
    for (int i = 0; i < r.count; ++i) {
      SCOPED_TRACE(i);
      const vb::Control& c = (*r.array)(i);
      EXPECT_EQ(c.Name(), r.name);
      EXPECT_EQ(c.Index(), i);
      EXPECT_EQ(f.Find(r.name, i), &c);
      EXPECT_EQ(c.Visible.get(), r.visible);
      if (r.parent) {
        EXPECT_EQ(c.parent(), r.parent(i));
      }
      if (r.place) {
        const Rect want = r.place(i);
        EXPECT_EQ((std::vector<int>{c.Left, c.Top, c.Width, c.Height}),
                  (std::vector<int>{want.left, want.top, want.width, want.height}));
      }
    }
  }
  // The two chip areas hold a whole stack of 120 chips: the last column still fits.
  EXPECT_LE(f.PicturePokerCoin(119).Left + 240, f.FraPokerCoins.Width);
  EXPECT_LE(f.PicturePokerCoin(119).Top + 90, f.FraPokerCoins.Height);
  EXPECT_GE(f.PicturePlayerCoin(119).Top, 0);
  // The line array sits in the command bars only.
  for (const auto& [i, line] : f.Line1.items()) {
    const vb::Control* bar = line->parent();
    EXPECT_TRUE(bar == &f.FraApostaPlayer || bar == &f.FraPedeCartasPlayer ||
                bar == &f.FraMaisUma || bar == &f.FraConfrontarJogos)
        << i;
    EXPECT_EQ(line->ForeColor, 0x808080u);
  }
}

TEST_F(TableTest, FocusBarsDrawARectangleRoundEachPlace) {
  FrmPrincipal& f = Frm_Principal();
  // The four bars of place i: the outer rectangle they enclose, and each bar 50 thick.
  auto bounds = [](const vb::ControlArray<>& bars, int i) {
    int l = 1 << 30, t = 1 << 30, r = 0, b = 0;
    for (int k = 4 * i; k < 4 * i + 4; ++k) {
      const vb::Control& bar = bars(k);
      EXPECT_EQ(std::min(bar.Width, bar.Height), 50) << bar.Id();
      l = std::min(l, bar.Left);
      t = std::min(t, bar.Top);
      r = std::max(r, bar.Left + bar.Width);
      b = std::max(b, bar.Top + bar.Height);
    }
    return std::vector<int>{l, t, r - l, b - t};
  };
  for (int i = 0; i < 4; ++i) {
    const auto box = bounds(f.FraFichasFocus, i);
    EXPECT_EQ(box[0], 600 + 1920 * i);
    EXPECT_EQ(box[2], 1335);
    EXPECT_EQ(box[3], 675);
  }
  for (int i = 0; i < 5; ++i) {
    const auto box = bounds(f.FraCartasFocus, i);
    // Round the card, whose key place stands at its top left.
    EXPECT_LE(box[0], f.PicCartasPlayer(i).Left);
    EXPECT_GE(box[0] + box[2], f.PicCartasPlayer(i).Left + f.PicCartasPlayer(i).Width);
    if (i < 4) {
      EXPECT_LT(box[0] + box[2], f.PicCartasPlayer(i + 1).Left - 50);
    }
  }
}

TEST_F(TableTest, DesignStateOfTheTable) {
  FrmPrincipal& f = Frm_Principal();
  EXPECT_EQ(f.Caption.get(),
            "PokerZEVA - Jogo de Poker (Tradicional jogo de cassino a Cinco Cartas)");
  EXPECT_TRUE(f.is_main);
  EXPECT_EQ(vb::Engine::Get().MainForm(), &f);
  EXPECT_EQ(f.LabelMesa.Caption.get(), "Na Mesa...");
  for (vb::Control* empty :
       {&f.LabelPokerMoney, &f.LabelPokerFichas, &f.LabelPlayerMoney, &f.LabelPlayerFichas,
        &f.LabelMesaFichas, &f.LabelMesaMoney, &f.LabelManoMesa, &f.LabelPlayerMesaTotalCoims,
        &f.LabelPokerMesaTotalCoims, &f.LabelPokerMensagem})
    EXPECT_EQ(empty->Caption.get(), "") << empty->Id();
  for (vb::Control* bar :
       {&f.FraApostaPlayer, &f.FraPedeCartasPlayer, &f.FraMaisUma, &f.FraConfrontarJogos})
    EXPECT_FALSE(bar->Visible) << bar->Id();
  EXPECT_FALSE(f.FraPokerMensagem.Visible);
  EXPECT_FALSE(f.FraPokerMensagem.Enabled);
  EXPECT_EQ(f.PicturePokerMensagem.Picture.get(), "balao");
  EXPECT_EQ(f.PicturePokerFace.Tag.get(), "1");
  EXPECT_EQ(f.CmdConfrontar.Caption.get(), "&Confrontar");
  EXPECT_EQ(f.CmdMaisUma.Caption.get(), "&Mais UMA");
  EXPECT_EQ(f.CmdSair(2).Caption.get(), "&EMBORA...");
  for (int i = 0; i < 4; ++i) {
    for (const vb::Control* label : {&f.LabelPlayerFichasPOT(i), &f.LabelPokerFichasPOT(i)}) {
      EXPECT_EQ(label->font.name, "MS Sans Serif");
      EXPECT_DOUBLE_EQ(label->font.size, 13.5);
      EXPECT_TRUE(label->font.bold);
      EXPECT_EQ(label->ForeColor, 0x808000u);
    }
  }
  for (int i = 0; i < 5; ++i) EXPECT_EQ(f.LabelPlayerCartasROT(i).Caption.get(), "1");

  // Timers: the key spring runs at start, the wait does not, the music clock has no interval.
  EXPECT_EQ(f.TimerKeyPot.Interval, 100);
  EXPECT_TRUE(f.TimerKeyPot.Enabled);
  EXPECT_FALSE(f.TimerEspera.Enabled);
  EXPECT_EQ(f.Timer1.Interval, 0);
  EXPECT_EQ(f.Timer1.timer_order, 0);
  EXPECT_EQ(f.TimerKeyPot.timer_order, 1);
  EXPECT_EQ(f.TimerEspera.timer_order, 3);
  for (const vb::Control* t : {&f.Timer1, &f.TimerKeyPot, &f.TimerEspera})
    EXPECT_EQ(t->parent(), &f.FrameToFiler(17));
}

TEST_F(TableTest, TabOrderWalksTheChipPlacesThenTheCardsThenTheBars) {
  FrmPrincipal& f = Frm_Principal();
  std::vector<std::string> order;
  for (const vb::Control* c : f.TabOrder()) order.push_back(c->Id());
  const std::vector<std::string> want = {"PicFichasPlayer(0)",
                                         "PicFichasPlayer(1)",
                                         "PicFichasPlayer(2)",
                                         "PicFichasPlayer(3)",
                                         "PicCartasPlayer(0)",
                                         "PicCartasPlayer(1)",
                                         "PicCartasPlayer(2)",
                                         "PicCartasPlayer(3)",
                                         "PicCartasPlayer(4)",
                                         "CmdPago",
                                         "CmdTudo",
                                         "CmdDesfazer(0)",
                                         "CmdSair(0)",
                                         "CmdAcabei(0)",
                                         "CmdDesfazer(1)",
                                         "CmdSair(1)",
                                         "CmdAcabei(1)",
                                         "CmdConfrontar",
                                         "CmdMaisUma",
                                         "CmdSair(2)"};
  EXPECT_EQ(order, want);

  // In a betting turn, with the cards' places hidden: the arrows walk the chips both ways and
  // wrap round through the bar.
  vb::VirtualHost host;
  vb::Engine::Get().Show(f);
  for (int i = 0; i < 5; ++i) f.PicCartasPlayer(i).Visible = false;
  f.FraApostaPlayer.Visible = true;
  f.PicFichasPlayer(0).SetFocus();
  f.SendKeys("{TAB}");
  EXPECT_EQ(f.ActiveControl(), &f.PicFichasPlayer(1));
  f.SendKeys("+{TAB}");
  f.SendKeys("+{TAB}");
  EXPECT_EQ(f.ActiveControl(), &f.CmdAcabei(0));
  f.SendKeys("{TAB}");
  EXPECT_EQ(f.ActiveControl(), &f.PicFichasPlayer(0));
}

TEST_F(TableTest, ToolbarsHaveTheirButtonsAndStores) {
  FrmPrincipal& f = Frm_Principal();
  for (vb::Control* bar : {&f.ToolbarPokerCoins, &f.ToolbarPlayerCoins}) {
    SCOPED_TRACE(bar->Name());
    ASSERT_EQ(bar->Buttons().size(), 8u);
    EXPECT_EQ(bar->images, &f.ImageListPotes);
    const char* keys[] = {"F01", "F05", "F10", "F50"};
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(bar->Button(keys[i]).Index(), 2 * (i + 1));
      EXPECT_EQ(bar->Button(2 * i + 1).Key(), "");
    }
  }
  for (vb::Control* bar : {&f.ToolbarPoker, &f.ToolbarPlayer}) {
    EXPECT_EQ(bar->Buttons().size(), 10u);
    EXPECT_EQ(bar->images, &f.ImageListBarajas);
  }
  EXPECT_EQ(f.ToolbarBaraja.Buttons().size(), 52u);
  EXPECT_EQ(f.ToolbarBaraja.images, &f.ImageListBarajas);
  EXPECT_EQ(f.ToolbarMesa.images, &f.ImageListFundos);
  // No button shows a picture at design.
  for (vb::Control* bar : {&f.ToolbarPokerCoins, &f.ToolbarPlayerCoins, &f.ToolbarPoker,
                           &f.ToolbarPlayer, &f.ToolbarBaraja})
    for (const auto& b : bar->Buttons()) EXPECT_EQ(b->Image(), "0") << bar->Name();
}

TEST_F(TableTest, ImageStoresHoldEveryKeyInOrder) {
  FrmPrincipal& f = Frm_Principal();

  // The cards in deck order with their tags, then the two backs in force.
  ASSERT_EQ(f.ImageListBarajas.Count(), 54);
  for (int n = 1; n <= 52; ++n) {
    const vb::StoredImage& img = f.ImageListBarajas.Item(n);
    const std::string code(kCartas[n - 1].code);
    EXPECT_EQ(img.key, code);
    EXPECT_EQ(img.tag, std::to_string(n));
    EXPECT_EQ(img.picture, "barajas/" + code);
  }
  EXPECT_EQ(f.ImageListBarajas.Item(1).key, "AC");
  EXPECT_EQ(f.ImageListBarajas.Item(52).key, "2T");
  EXPECT_EQ(f.ImageListBarajas.Item(53).key, "FRENTE");
  EXPECT_EQ(f.ImageListBarajas.Item(54).key, "DORSO");
  EXPECT_EQ(f.ImageListBarajas.PictureOf("FRENTE"), f.ImageListFundos.PictureOf(1));
  EXPECT_EQ(f.ImageListBarajas.PictureOf("DORSO"), f.ImageListFundos.PictureOf(2));

  // The stores read by position.
  struct ByPosition {
    vb::ImageList* store;
    int count;
    const char* folder;
  };
  for (const ByPosition& s : {ByPosition{&f.ImageListFundos, 22, "fundos/"},
                              ByPosition{&f.ImageListFACES, 27, "faces/"}}) {
    ASSERT_EQ(s.store->Count(), s.count) << s.store->Name();
    for (int n = 1; n <= s.count; ++n)
      EXPECT_EQ(s.store->PictureOf(n), s.folder + std::to_string(n));
  }

  // The piles: 31 counts of each denomination, "00" the empty place.
  ASSERT_EQ(f.ImageListPotes.Count(), 124);
  int position = 0;
  for (const std::string prefix : {"F01_", "F05_", "F10_", "F50_"}) {
    for (int n = 0; n <= 30; ++n) {
      const std::string key = prefix + (n < 10 ? "0" : "") + std::to_string(n);
      EXPECT_EQ(f.ImageListPotes.Item(++position).key, key);
      EXPECT_EQ(f.ImageListPotes.PictureOf(key), "potes/" + key);
    }
  }

  // The extras, with the one unkeyed image in second place.
  const std::vector<std::string> extras = {"Challenger", "",        "SetaAcima", "SetaAbaixo",
                                           "Ficha50",    "Ficha10", "Ficha5",    "Ficha1"};
  ASSERT_EQ(f.ImageListExtras.Count(), 8);
  for (int n = 1; n <= 8; ++n) {
    EXPECT_EQ(f.ImageListExtras.Item(n).key, extras[n - 1]);
    EXPECT_EQ(f.ImageListExtras.PictureOf(n),
              "extras/" + (extras[n - 1].empty() ? std::string("Extra2") : extras[n - 1]));
  }
}

TEST_F(TableTest, EveryPictureNamesAnArtworkFile) {
  const std::filesystem::path images =
      std::filesystem::path(POKERZEVA_SOURCE_DIR) / "assets/images";
  if (!std::filesystem::exists(images / "barajas")) GTEST_SKIP() << "artwork not generated yet";
  FrmPrincipal& f = Frm_Principal();
  std::vector<std::string> pictures = {f.PicturePokerMensagem.Picture.get()};
  for (const vb::ImageList* store :
       {&f.ImageListBarajas, &f.ImageListFundos, &f.ImageListPotes, &f.ImageListExtras,
        &f.ImageListFACES, &Frm_Barajando().ImageList1})
    for (const auto& img : store->images()) pictures.push_back(img.picture);
  for (const std::string& p : pictures) {
    EXPECT_TRUE(std::filesystem::exists(images / (p + ".png"))) << p;
    EXPECT_TRUE(std::filesystem::exists(images / (p + "@2x.png"))) << p;
  }
}

TEST_F(TableTest, MissingKeysAndElementsFault) {
  FrmPrincipal& f = Frm_Principal();
  const std::vector<std::pair<int, std::function<void()>>> faults = {
      {vb::err::kElementNotFound, [&] { f.ImageListPotes.Item("F01_31"); }},
      {vb::err::kElementNotFound, [&] { f.ImageListBarajas.Item("DORSO6"); }},
      {vb::err::kElementNotFound, [&] { f.ImageListExtras.Item(""); }},
      {vb::err::kIndexOutOfBounds, [&] { f.ImageListFACES.Item(28); }},
      {vb::err::kIndexOutOfBounds, [&] { f.ImageListFundos.Item(0); }},
      // A count of 45 or -1 names no pile.
      {vb::err::kElementNotFound, [&] { f.ToolbarPlayerCoins.Button(2).SetImage("F01_45"); }},
      {vb::err::kElementNotFound, [&] { f.ToolbarPlayerCoins.Button(2).SetImage("F01_-1"); }},
      {vb::err::kElementNotFound, [&] { f.ToolbarPokerCoins.Button("F20"); }},
      {vb::err::kIndexOutOfBounds, [&] { f.ToolbarPoker.Button(11); }},
      {vb::err::kArrayElement, [&] { f.PicturePlayerCoin(120); }},
      {vb::err::kArrayElement, [&] { f.PictureCoin(48); }},
      {vb::err::kArrayElement, [&] { f.PicFichasPlayer(4); }},
      {vb::err::kArrayElement, [&] { f.CmdAcabei(2); }},
      {vb::err::kArrayElement, [&] { f.FrameToFiler(19); }},
  };
  for (std::size_t i = 0; i < faults.size(); ++i)
    EXPECT_EQ(ErrorOf(faults[i].second), faults[i].first) << "case " << i;
  // The first 120 chip places are all there.
  EXPECT_EQ(ErrorOf([&] { f.PicturePlayerCoin(119); }), 0);
}

TEST_F(TableTest, ButtonImagesAndPicturesReadBackAsSet) {
  FrmPrincipal& f = Frm_Principal();
  vb::ToolbarButton& pile = f.ToolbarPlayerCoins.Button("F05");
  pile.SetImage("F05_17");
  EXPECT_EQ(pile.Image(), "F05_17");
  pile.SetImage(0);
  EXPECT_EQ(pile.Image(), "0");
  EXPECT_EQ(vb::Val(pile.Image().substr(pile.Image().size() >= 2 ? pile.Image().size() - 2 : 0)),
            0);

  // A picture is a copy: it stays when the store changes under it, as MnuFundos changes it.
  vb::Control& chip = f.PicturePlayerCoin(0);
  chip.Picture = f.ImageListBarajas.PictureOf("DORSO");
  chip.Tag = "50";
  f.ImageListBarajas.Remove(54);
  f.ImageListBarajas.Remove(53);
  f.ImageListBarajas.Add(f.ImageListFundos.PictureOf(7), "FRENTE");
  f.ImageListBarajas.Add(f.ImageListFundos.PictureOf(8), "DORSO");
  EXPECT_EQ(chip.Picture.get(), "fundos/2");
  EXPECT_EQ(f.ImageListBarajas.PictureOf("DORSO"), "fundos/8");
  // Hidden, it keeps its tag and picture.
  chip.Visible = false;
  EXPECT_EQ(chip.Tag.get(), "50");
  EXPECT_EQ(chip.Picture.get(), "fundos/2");
}

TEST_F(TableTest, MenuTreeInOrder) {
  FrmPrincipal& f = Frm_Principal();
  struct Entry {
    std::string name, caption;
    int level;
  };
  const std::vector<Entry> want = {
      {"MnuPartida", "Partida", 1},
      {"MnuNova", "Nova", 2},
      {"MnuCarregar", "Carregar", 2},
      {"MnuSalvar", "Salvar", 2},
      {"MnuConfiguração", "Configuração", 1},
      {"MnuNroCartas", "Numero de Cartas", 2},
      {"MnuNroFichas", "Numero de Fichas", 2},
      {"MnuTroca", "Quantas Cartas Troca", 2},
      {"L1", "-", 2},
      {"MnuVFicha", "Valor da Ficha", 2},
      {"MnuNome", "Meu Nome", 2},
      {"MnuFundos", "Mudar Fundo das Cartas", 2},
      {"L2", "-", 1},
      {"MnuLimite", "Limite na Apertura", 1},
      {"MnuFullxCor", "Full Mata Côr", 1},
      {"MnuTrioXEscada", "Trio Mata Escada", 1},
      {"L3", "-", 1},
      {"MnuMusica", "Musica", 1},
      {"MnuEfeitos", "Efeitos Sonoros", 1},
      {"MnuTrapassa", "Trapassa", 1},
      {"MnuVerBaralho", "Ver o Baralho", 1},
      {"MnuVerCartas", "Ver as Cartas", 1},
      {"L4", "-", 1},
      {"MnuAbout", "Creditos", 1},
      {"L5", "-", 1},
      {"MnuSair", "Sair", 1},
  };
  std::vector<Entry> got;
  std::function<void(const vb::Control&, int)> walk = [&](const vb::Control& menu, int level) {
    for (const vb::Control* c : menu.children()) {
      EXPECT_EQ(c->kind(), vb::Kind::Menu) << c->Name();
      got.push_back({c->Name(), c->Caption.get(), level});
      walk(*c, level + 1);
    }
  };
  EXPECT_EQ(f.MnuPopup.Caption.get(), "PopUp");
  EXPECT_EQ(f.MnuPopup.parent(), nullptr);
  walk(f.MnuPopup, 1);
  ASSERT_EQ(got.size(), want.size());
  for (std::size_t i = 0; i < want.size(); ++i) {
    EXPECT_EQ(got[i].name, want[i].name);
    EXPECT_EQ(got[i].caption, want[i].caption) << want[i].name;
    EXPECT_EQ(got[i].level, want[i].level) << want[i].name;
    const vb::Control& m = *f.Find(want[i].name);
    const bool cheat = want[i].name == "MnuVerBaralho" || want[i].name == "MnuVerCartas";
    // No saved games: "Carregar" and "Salvar" are left out of the menu.
    const bool left_out = want[i].name == "MnuCarregar" || want[i].name == "MnuSalvar";
    EXPECT_EQ(m.Visible.get(), !cheat && !left_out) << want[i].name;
    EXPECT_EQ(m.Enabled.get(), !cheat) << want[i].name;
    EXPECT_FALSE(m.Checked) << want[i].name;
  }
  EXPECT_EQ(&f.MnuConfiguração, f.Find("MnuConfiguração"));
}

TEST_F(TableTest, RightClickOpensTheMenuOnlyBetweenHands) {
  vb::VirtualHost host;
  FrmPrincipal& f = Frm_Principal();
  vb::Engine::Get().Show(f);
  auto mouse = [&](const std::string& control, int index, int button) {
    vb::Input in;
    in.type = vb::Input::Type::MouseDown;
    in.form = &f;
    in.control = control;
    in.index = index;
    in.button = button;
    return vb::Engine::Get().Deliver(in);
  };
  const std::vector<std::pair<std::string, int>> places = {{"", -1},
                                                           {"FrameToFiler", 5},
                                                           {"FrameToFiler", 17},
                                                           {"ToolbarPlayerCoins", -1},
                                                           {"ToolbarPlayer", -1}};
  for (int fase : {0, 10, 20, 40, 50}) {
    Fase = fase;
    for (const auto& [control, index] : places) {
      host.popups.clear();
      ASSERT_TRUE(mouse(control, index, 2));
      ASSERT_TRUE(mouse(control, index, 1));
      const std::vector<std::string> want =
          fase == 50 ? std::vector<std::string>{"MnuPopup"} : std::vector<std::string>{};
      EXPECT_EQ(host.popups, want) << control << index << " in Fase " << fase;
    }
  }
  // The opponent's strips do not answer.
  Fase = 50;
  host.popups.clear();
  mouse("ToolbarPoker", -1, 2);
  mouse("ToolbarPokerCoins", -1, 2);
  EXPECT_TRUE(host.popups.empty());
}

TEST_F(TableTest, ShuffleAnimationRunsTwoPassesInThreeSecondsAndAFifth) {
  vb::VirtualHost host;
  NroCartas = 52;
  FrmBarajando& b = Frm_Barajando();
  Recorder captions(b, vb::Prop::Caption, [&] { return b.Caption.get(); });
  Recorder right(b.PictureMaxo(1), vb::Prop::Geometry,
                 [&] { return std::to_string(b.PictureMaxo(1).Left); });
  vb::Engine::Get().Show(b, true);

  EXPECT_EQ(host.Now(), 3200);
  EXPECT_FALSE(b.Loaded());
  EXPECT_EQ(b.Timer1.timer_due, -1);
  EXPECT_EQ(b.LabelBaralhando.Caption.get(), "B a r a l h a n d o . . .");
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(b.PictureMaxo(i).Picture.get(), "barajando/" + std::to_string(i + 1));

  // A pass: the caption from its start, a dot at each tick; the first tick after 100 ms, the
  // others 50 ms apart. Then the second pass, and the caption of a new start as it unloads.
  const std::string base = "  B a r a l h a n d o   a s    5 2   c a r t a s";
  std::vector<std::pair<std::int64_t, std::string>> want;
  std::int64_t at = 0;
  for (int pass = 0; pass < 2; ++pass) {
    want.push_back({at, base});
    std::string c = base;
    for (int tick = 1; tick <= 31; ++tick) {
      at += tick == 1 ? 100 : 50;
      c += " .";
      want.push_back({at, c});
    }
  }
  want.push_back({at, base});
  EXPECT_EQ(captions.seen, want);

  // The card from the right starts at 6615, moves 100 a tick, and comes back to 6625, ten
  // units further out, from where the second pass starts.
  std::vector<int> lefts;
  for (const auto& [when, left] : right.seen) lefts.push_back(std::stoi(left));
  ASSERT_EQ(lefts.size(), 1u + 31 + 1 + 31 + 1);
  EXPECT_EQ(lefts[0], 6615);
  EXPECT_EQ(lefts[31], 6615 - 3100);
  EXPECT_EQ(lefts[32], 6625);
  EXPECT_EQ(lefts[33], 6525);
  EXPECT_EQ(lefts[64], 6625);
  EXPECT_EQ(b.PictureMaxo(2).Left, 360);

  // Shown again for a stripped deck: it loads afresh and takes the same time.
  NroCartas = 20;
  captions.seen.clear();
  vb::Engine::Get().Show(b, true);
  EXPECT_EQ(host.Now(), 6400);
  ASSERT_FALSE(captions.seen.empty());
  EXPECT_EQ(captions.seen.front().second, "  B a r a l h a n d o   a s    2 0   c a r t a s");
}

TEST_F(TableTest, ClosingTheShuffleEndsTheGame) {
  vb::VirtualHost host;
  NroCartas = 52;
  FrmPrincipal& f = Frm_Principal();
  vb::Engine::Get().Show(f);
  vb::Input close;
  close.type = vb::Input::Type::Close;
  close.form = &Frm_Barajando();
  host.QueueAt(500, close);
  try {
    vb::Engine::Get().Show(Frm_Barajando(), true);
    FAIL() << "the game went on";
  } catch (const vb::ProgramEnded& end) {
    EXPECT_EQ(end.how, vb::EndHow::Unloaded);
  }
  EXPECT_EQ(host.Now(), 500);
  EXPECT_FALSE(f.Loaded());
}

TEST_F(TableTest, TrocarFaceCyclesThroughTheTwentySevenFaces) {
  FrmPrincipal& f = Frm_Principal();
  std::vector<std::string> tags;
  for (int shuffle = 1; shuffle <= 28; ++shuffle) {
    TrocarFace();
    tags.push_back(f.PicturePokerFace.Tag.get());
    EXPECT_EQ(f.PicturePokerFace.Picture.get(), "faces/" + tags.back());
  }
  EXPECT_EQ(tags.front(), "2");  // the first shuffle shows face 2
  EXPECT_EQ(tags[25], "27");
  EXPECT_EQ(tags[26], "1");  // the twenty-seventh comes back to face 1
  EXPECT_EQ(tags[27], "2");
}

}  // namespace
