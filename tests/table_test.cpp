// The table as a model: every control in its place, the chip places, the keys, the right click,
// the shuffle animation on the virtual clock and the opponent's faces.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/cards.h"
#include "core/game_state.h"
#include "core/start.h"
#include "platform/engine.h"
#include "platform/runtime.h"
#include "platform/virtual_host.h"
#include "support.h"
#include "table/frm_barajando.h"
#include "table/frm_principal.h"

namespace {

class Table : public ::testing::Test {
 protected:
  void SetUp() override { ResetProcess(); }
  void TearDown() override { ResetProcess(); }
};

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

// The controls that take room on the table: lines, timers, menus and image stores take none.
bool TakesRoom(const vb::Control& c) {
  switch (c.kind()) {
    case vb::Kind::Line:
    case vb::Kind::Timer:
    case vb::Kind::Menu:
    case vb::Kind::ImageList:
      return false;
    default:
      return true;
  }
}

bool Inside(const vb::Control& c, const vb::Control& parent) {
  return c.Left >= 0 && c.Top >= 0 && c.Left + c.Width <= parent.Width &&
         c.Top + c.Height <= parent.Height;
}

bool Overlap(const vb::Control& a, const vb::Control& b) {
  return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height &&
         b.Top < a.Top + a.Height;
}

// Every control lies inside its parent, and no two sibling controls overlap but where the table
// means them to. Toolbars are the exception to the first rule: they span the window whatever
// frame holds them, and so does what stands on them; the key numbers of the cards sit on the
// cards' corners.
TEST_F(Table, EveryControlKeepsToItsParentAndItsOwnPlace) {
  FrmPrincipal& f = Frm_Principal();
  for (const auto& c : f.controls()) {
    const vb::Control* parent = c->parent();
    if (!TakesRoom(*c) || !parent || c->kind() == vb::Kind::Toolbar ||
        parent->kind() == vb::Kind::Toolbar || c->Name() == "LabelPlayerCartasROT")
      continue;
    EXPECT_TRUE(Inside(*c, *parent)) << c->Id() << " in " << parent->Id();
  }
  // The sibling pairs that may overlap, and why.
  const std::set<std::pair<std::string, std::string>> allowed = {
      // The four bars of the player's buttons take turns in one place.
      {"FraApostaPlayer", "FraConfrontarJogos"},
      {"FraApostaPlayer", "FraMaisUma"},
      {"FraApostaPlayer", "FraPedeCartasPlayer"},
      {"FraConfrontarJogos", "FraMaisUma"},
      {"FraConfrontarJogos", "FraPedeCartasPlayer"},
      {"FraMaisUma", "FraPedeCartasPlayer"},
      // The focus rectangles meet at their corners and ring the chip places.
      {"FraCartasFocus", "FraCartasFocus"},
      {"FraFichasFocus", "FraFichasFocus"},
      {"FraFichasFocus", "PicFichasPlayer"},
      // Her balloon floats over the table.
      {"FraPokerMensagem", "ToolbarMesa"},
      {"FraPokerMensagem", "ToolbarPoker"},
      // The deck strip and the debugging line lie over the table, which moves below them when
      // the deck is shown; the frames that fill the gaps stand behind everything.
      {"FraPrincipal", "FrameFromLeft"},
      {"FraPrincipal", "LblMusicTime"},
      {"FraPrincipal", "ToolbarBaraja"},
      {"LblMusicTime", "ToolbarBaraja"},
      // The arrow of the hand stands beside the hand number, and the bars touch.
      {"LabelManoMesa", "PictureMão"},
      {"ToolbarMesa", "ToolbarPlayer"}};
  for (const auto& a : f.controls()) {
    for (const auto& b : f.controls()) {
      if (a.get() >= b.get() || a->parent() != b->parent() || !TakesRoom(*a) || !TakesRoom(*b) ||
          a->Name() == "FrameToFiler" || b->Name() == "FrameToFiler" || !Overlap(*a, *b))
        continue;
      const auto pair = std::minmax(a->Name(), b->Name());
      EXPECT_TRUE(allowed.count({pair.first, pair.second})) << a->Id() << " ~ " << b->Id();
    }
  }
}

// A side can have 120 chips on the table and the centre 48: each has its own place in its frame.
TEST_F(Table, EveryTableChipHasItsOwnPlace) {
  FrmPrincipal& f = Frm_Principal();
  for (auto [heap, count] : {std::pair{&f.PicturePokerCoin, 120},
                             std::pair{&f.PicturePlayerCoin, 120}, std::pair{&f.PictureCoin, 48}}) {
    ASSERT_EQ(heap->Count(), count);
    for (int i = 0; i < count; ++i) {
      const vb::Control& chip = (*heap)(i);
      EXPECT_TRUE(Inside(chip, *chip.parent())) << chip.Id();
      EXPECT_FALSE(chip.Visible) << chip.Id();
      for (int k = 0; k < i; ++k) EXPECT_FALSE(Overlap(chip, (*heap)(k))) << chip.Id();
    }
  }
}

// In a betting turn, with the cards' places hidden, the keys walk the chip places both ways and
// wrap round through the bar.
TEST_F(Table, TabWalksTheChipPlacesAndWrapsThroughTheBar) {
  FrmPrincipal& f = Frm_Principal();
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

TEST_F(Table, EveryPictureNamesAnArtworkFile) {
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

TEST_F(Table, MissingKeysAndElementsFault) {
  FrmPrincipal& f = Frm_Principal();
  // Each store and array ends where the table needs it to: one step further faults.
  const std::vector<std::pair<int, std::function<void()>>> faults = {
      {vb::err::kElementNotFound, [&] { f.ImageListPotes.Item("F01_31"); }},
      {vb::err::kIndexOutOfBounds, [&] { f.ImageListFACES.Item(28); }},
      {vb::err::kElementNotFound, [&] { f.ToolbarPlayerCoins.Button(2).SetImage("F01_-1"); }},
      {vb::err::kArrayElement, [&] { f.PicturePlayerCoin(120); }},
      {vb::err::kArrayElement, [&] { f.PictureCoin(48); }},
  };
  for (std::size_t i = 0; i < faults.size(); ++i)
    EXPECT_EQ(ErrorOf(faults[i].second), faults[i].first) << "case " << i;
  // The first 120 chip places are all there.
  EXPECT_FAULT(f.PicturePlayerCoin(119), 0);
}

TEST_F(Table, RightClickOpensTheMenuOnlyBetweenHands) {
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

TEST_F(Table, ShuffleAnimationRunsTwoPassesInThreeSecondsAndAFifth) {
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

TEST_F(Table, ClosingTheShuffleEndsTheGame) {
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

TEST_F(Table, TrocarFaceCyclesThroughTheTwentySevenFaces) {
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

namespace {

// What a screen reader is told, straight from the table: cards by rank and suit, backs, marks,
// piles by side, faces, and the layout hidden.
TEST_F(Table, ControlsAreNamedInThePlayersWords) {
  FrmPrincipal& f = Frm_Principal();
  struct Card {
    const char* key;
    bool enabled;
    const char* player;  // on the player's toolbar
    const char* poker;   // on hers
  };
  const Card cards[] = {
      {"QD", true, "Dama de Ouros", "Dama de Ouros"},
      {"DC", true, "Dez de Copas", "Dez de Copas"},
      {"AP", true, "Ás de Espadas", "Ás de Espadas"},
      {"7T", true, "Sete de Paus", "Sete de Paus"},
      {"2D", false, "Dois de Ouros, marcada para a troca", "Dois de Ouros"},
      {"FRENTE", true, "Carta virada", "Carta virada"},
      {"DORSO", true, "Carta virada", "Carta virada"},
      {"0", true, "", ""},
  };
  for (const Card& c : cards) {
    SCOPED_TRACE(c.key);
    for (vb::Control* bar : {&f.ToolbarPlayer, &f.ToolbarPoker}) {
      vb::ToolbarButton& b = bar->Button(4);
      b.SetImage(c.key);
      b.SetEnabled(c.enabled);
      EXPECT_EQ(bar->AccessibleName(b), bar == &f.ToolbarPlayer ? c.player : c.poker);
    }
  }
  f.ToolbarPlayer.Button(4).SetImage("KT");
  f.ToolbarPlayer.Button(4).SetEnabled(false);
  EXPECT_EQ(f.PicCartasPlayer(1).AccessibleName(), "Carta 2: Rei de Paus, marcada para a troca");

  struct Pile {
    const char* key;
    const char* image;
    const char* poker;
    const char* player;
  };
  const Pile piles[] = {
      {"F05", "F05_13", "ZEVA: 13 fichas de 5", "Você: 13 fichas de 5"},
      {"F50", "F50_01", "ZEVA: 1 ficha de 50", "Você: 1 ficha de 50"},
      {"F01", "F01_00", "ZEVA: nenhuma ficha de 1", "Você: nenhuma ficha de 1"},
      {"F10", "0", "ZEVA: nenhuma ficha de 10", "Você: nenhuma ficha de 10"},
  };
  for (const Pile& p : piles) {
    SCOPED_TRACE(p.image);
    f.ToolbarPokerCoins.Button(p.key).SetImage(p.image);
    f.ToolbarPlayerCoins.Button(p.key).SetImage(p.image);
    EXPECT_EQ(f.ToolbarPokerCoins.AccessibleName(f.ToolbarPokerCoins.Button(p.key)), p.poker);
    EXPECT_EQ(f.ToolbarPlayerCoins.AccessibleName(f.ToolbarPlayerCoins.Button(p.key)), p.player);
  }

  f.PictureMão.Picture = f.ImageListExtras.PictureOf("SetaAcima");
  EXPECT_EQ(f.PictureMão.AccessibleName(), "Mão de ZEVA");
  f.PictureMão.Picture = f.ImageListExtras.PictureOf("SetaAbaixo");
  EXPECT_EQ(f.PictureMão.AccessibleName(), "Sua mão");
  f.PicturePokerCoin(3).Tag = "10";
  EXPECT_EQ(f.PicturePokerCoin(3).AccessibleName(), "Ficha de 10 apostada por ZEVA");
  EXPECT_EQ(f.PicturePokerFace.AccessibleName(), "Rosto de ZEVA");
  EXPECT_EQ(f.PicFichasPlayer(1).AccessibleName(), "Apostar uma ficha de 5");

  // Layout, lines and the debugging line are hidden; her words are announced.
  for (vb::Control* c : {&f.FraPrincipal, &f.FrameToFiler(12), &f.FraFichasFocus(0), &f.Line1(0),
                         &f.ToolbarMesa, &f.LblMusicTime, &f.LabelPlayerFichasPOT(0)})
    EXPECT_TRUE(c->accessible.hidden) << c->Id();
  EXPECT_FALSE(f.LabelPokerMensagem.accessible.hidden);
  EXPECT_TRUE(f.LabelPokerMensagem.accessible.live);
  EXPECT_TRUE(f.LabelPokerCaption(2).accessible.live);
}

}  // namespace
