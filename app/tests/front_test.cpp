// The desktop front on Qt's offscreen platform: the sample table drawn with real widgets, clicks
// and keys through Qt reaching the game's handlers, changes in the game reaching the widgets, a
// wait that keeps timers and clicks alive, faults, and the ways the program ends.
#include "front/front.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <memory>

#include "front/guard.h"
#include "front/images.h"
#include "front/names.h"
#include "front/qt_host.h"
#include "platform/engine.h"
#include "platform/runtime.h"
#include "support/sample_form.h"

namespace {

using vb::Engine;

class FrontTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    pictures_ = new QTemporaryDir;
    sample::WriteSampleImages(pictures_->path());
  }
  static void TearDownTestSuite() {
    delete pictures_;
    pictures_ = nullptr;
  }

  void SetUp() override {
    Engine::Get().Reset();
    front::SetImageFolder(pictures_->path());
    front::ClearFault();
    front::SetFaultReporter([this](int number, const std::string& message) {
      faults.push_back(front::FaultText(number, message));
    });
    host = std::make_unique<front::QtHost>();
    table = std::make_unique<sample::SampleForm>();
    screen = std::make_unique<front::Front>();
  }

  void TearDown() override {
    screen.reset();
    table.reset();
    host.reset();
    Engine::Get().Reset();
    front::SetFaultReporter(nullptr);
    front::ClearFault();
  }

  // Shows the table as the game's start would, and waits until its window is on the screen.
  QWidget* Show() {
    EXPECT_TRUE(front::Guarded([&] { Engine::Get().Show(table->form); }));
    QWidget* window = screen->WindowOf(table->form);
    EXPECT_NE(window, nullptr);
    if (!window) return nullptr;
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    // The sample's places are told at the table's own size.
    screen->WindowOf(table->form)->SetScale(1.0);
    return window;
  }

  QWidget* W(vb::Control* c) { return screen->WidgetOf(*c); }
  template <class T>
  T* As(vb::Control* c) {
    return qobject_cast<T*>(W(c));
  }

  static QTemporaryDir* pictures_;
  std::unique_ptr<front::QtHost> host;
  std::unique_ptr<sample::SampleForm> table;
  std::unique_ptr<front::Front> screen;
  std::vector<std::string> faults;
};

QTemporaryDir* FrontTest::pictures_ = nullptr;

// What a screen reader hears of a widget.
QString Spoken(QWidget* w) {
  QAccessibleInterface* a = QAccessible::queryAccessibleInterface(w);
  return a ? a->text(QAccessible::Name) : QStringLiteral("(none)");
}

// Serves Qt events until `done` holds or `ms` pass.
template <class F>
bool WaitFor(F done, int ms = 2000) {
  return QTest::qWaitFor(done, ms);
}

TEST_F(FrontTest, EachControlGetsItsWidgetAtItsPlace) {
  QWidget* window = Show();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("PokerZEVA - Amostra"));
  // 7500 x 5400 twips with the old window's frame taken off.
  EXPECT_EQ(window->size(), QSize(492, 326));

  struct Case {
    vb::Control* control;
    const char* widget_class;
    QRect geometry;
    const char* accessible;
  };
  const Case cases[] = {
      {table->felt, "front::FrameWidget", {0, 0, 492, 184}, nullptr},
      {table->hand_label, "QLabel", {12, 9, 100, 19}, "mão 1"},
      {table->chip_place, "front::PictureWidget", {200, 8, 41, 41}, "Ficha de 5"},
      {table->tiny_chip, "front::PictureWidget", {280, 20, 16, 6}, nullptr},
      {table->toolbar, "front::ToolbarWidget", {0, 72, 492, 106}, nullptr},
      {table->pago, "QPushButton", {3, 3, 85, 15}, "P A G O"},
      {table->acabei, "QPushButton", {92, 3, 67, 15}, "Acabei"},
      {table->erro, "QPushButton", {253, 3, 67, 15}, "Erro"},
      {table->name_box, "QLineEdit", {29, 228, 200, 20}, nullptr},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.control->Id());
    QWidget* w = W(c.control);
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->inherits(c.widget_class)) << w->metaObject()->className();
    EXPECT_EQ(w->geometry(), c.geometry);
    EXPECT_TRUE(w->isVisible());
    if (c.accessible) {
      EXPECT_EQ(Spoken(w), QString::fromUtf8(c.accessible));
    }
  }
  EXPECT_EQ(As<QPushButton>(table->acabei)->text(), QStringLiteral("&Acabei"));
  EXPECT_EQ(As<QLineEdit>(table->name_box)->text(), QStringLiteral("João"));
}

TEST_F(FrontTest, ToolbarButtonsStandWhereTheTableExpectsThem) {
  Show();
  // The card strip: a narrow gap, a card, a gap between cards, a card.
  ASSERT_NE(screen->ButtonOf(*table->toolbar, 4), nullptr);
  EXPECT_TRUE(screen->ButtonOf(*table->toolbar, 1)->isHidden());
  EXPECT_EQ(screen->ButtonOf(*table->toolbar, 2)->geometry(), QRect(2, 0, 78, 103));
  EXPECT_EQ(screen->ButtonOf(*table->toolbar, 4)->geometry(), QRect(93, 0, 78, 103));

  // A stack strip: each pile under its chip place, at 600 + 1920 i twips.
  vb::Form stack("FrmPilhas");
  vb::ImageList& potes = stack.AddImageList("ImageListPotes");
  for (const char* key : {"F01_00", "F05_03", "F10_00", "F50_00"}) potes.Add("potes/F05_03", key);
  vb::Control& bar = stack.Add(vb::Kind::Toolbar, "ToolbarPlayerCoins");
  bar.Move(0, 0, 11610, 705);
  bar.images = &potes;
  for (const char* key : {"F01", "F05", "F10", "F50"}) {
    bar.AddButton();
    bar.AddButton(key);
  }
  stack.Width = 12000;
  stack.Height = 2000;
  Engine::Get().Show(stack);
  bar.Button("F05").SetImage("F05_03");
  for (int i = 0; i < 4; ++i) {
    auto* pile = screen->ButtonOf(bar, 2 * (i + 1));
    ASSERT_NE(pile, nullptr);
    EXPECT_EQ(pile->geometry(), QRect(40 + 128 * i, 0, 88, 44)) << i;
  }
  Engine::Get().Forget(stack);
}

TEST_F(FrontTest, ClicksThroughQtRunTheGamesHandlers) {
  Show();
  QTest::mouseClick(W(table->acabei), Qt::LeftButton);
  EXPECT_EQ(table->acabei_clicks, 1);
  EXPECT_EQ(As<QLabel>(table->hand_label)->text(), QStringLiteral("mão 2"));
  As<QAbstractButton>(table->pago)->click();
  EXPECT_EQ(table->pago_clicks, 1);

  // A picture: press and release on it is its click, and it takes the game's focus.
  QTest::mouseClick(W(table->chip_place), Qt::LeftButton);
  EXPECT_EQ(table->chips, 1);
  EXPECT_EQ(table->form.ActiveControl(), table->chip_place);
  EXPECT_EQ(As<QLabel>(table->chips_label)->text(), QStringLiteral("1 Fichas"));
  // The label on the chip place has no handler of its own: the click goes to the place.
  QWidget* pot = W(table->form.Find("LabelPlayerFichasPOT", 1));
  QTest::mouseClick(pot, Qt::LeftButton);
  EXPECT_EQ(table->chips, 2);
  // A press that slides off before the release is no click.
  QTest::mousePress(W(table->chip_place), Qt::LeftButton);
  QTest::mouseRelease(W(table->chip_place), Qt::LeftButton, {}, QPoint(60, 60));
  EXPECT_EQ(table->chips, 2);

  // A toolbar button: its ButtonClick with its number; Value 1 is the pressed look.
  front::ToolbarButtonWidget* card = screen->ButtonOf(*table->toolbar, 4);
  QTest::mouseClick(card, Qt::LeftButton);
  EXPECT_EQ(table->button_clicks, 1);
  EXPECT_EQ(table->last_button, 4);
  EXPECT_EQ(table->toolbar->Button(4).Value(), 1);
  EXPECT_TRUE(faults.empty());
}

TEST_F(FrontTest, AltAndTheUnderlinedLetterPressTheButton) {
  QWidget* window = Show();
  QTest::keyClick(window, Qt::Key_A, Qt::AltModifier);
  EXPECT_TRUE(WaitFor([&] { return table->acabei_clicks == 1; }));
  QTest::keyClick(window, Qt::Key_P, Qt::AltModifier);
  EXPECT_TRUE(WaitFor([&] { return table->pago_clicks == 1; }));
  // A hidden bar's letters are dead.
  table->bar->Visible = false;
  QTest::keyClick(window, Qt::Key_A, Qt::AltModifier);
  QTest::qWait(250);
  EXPECT_EQ(table->acabei_clicks, 1);
}

TEST_F(FrontTest, ChangesInTheGameReachTheWidgets) {
  Show();
  auto* acabei = As<QPushButton>(table->acabei);
  table->acabei->Caption = "&Mais UMA";
  EXPECT_EQ(acabei->text(), QStringLiteral("&Mais UMA"));
  EXPECT_EQ(Spoken(acabei), QStringLiteral("Mais UMA"));
  table->hand_label->Caption = "Dois\r\npares";
  EXPECT_EQ(As<QLabel>(table->hand_label)->text(), QStringLiteral("Dois\npares"));

  table->acabei->Enabled = false;
  EXPECT_FALSE(acabei->isEnabled());
  QTest::mouseClick(acabei, Qt::LeftButton);
  EXPECT_EQ(table->acabei_clicks, 0);
  table->acabei->Enabled = true;
  table->bar->Enabled = false;  // a disabled frame disables what it holds
  EXPECT_FALSE(acabei->isEnabled());
  table->bar->Enabled = true;

  table->chip_place->Visible = false;
  EXPECT_TRUE(W(table->chip_place)->isHidden());
  table->chip_place->Visible = true;
  table->chip_place->Move(600, 150, 615, 615);
  EXPECT_EQ(W(table->chip_place)->geometry(), QRect(40, 10, 41, 41));
  // Names are the game's, read as they are now; a picture the game left unnamed says nothing.
  table->tiny_chip->Picture = "extras/Ficha5";
  EXPECT_EQ(Spoken(W(table->tiny_chip)), QString());
  table->tiny_chip->accessible.namer = [](const vb::Control& c) {
    return "ficha " + c.Picture.get();
  };
  EXPECT_EQ(Spoken(W(table->tiny_chip)), QStringLiteral("ficha extras/Ficha5"));
  table->toolbar->accessible.button_namer = [](const vb::ToolbarButton& b) {
    return "carta " + b.ImageKey();
  };

  table->toolbar->Button(2).SetEnabled(false);
  EXPECT_FALSE(screen->ButtonOf(*table->toolbar, 2)->isEnabled());
  table->toolbar->Button(2).SetImage("KP");
  EXPECT_EQ(Spoken(screen->ButtonOf(*table->toolbar, 2)), QStringLiteral("carta KP"));
  table->toolbar->AddButton();
  table->toolbar->AddButton().SetImage("AC");  // a button added while the game runs
  ASSERT_NE(screen->ButtonOf(*table->toolbar, 6), nullptr);
  EXPECT_EQ(screen->ButtonOf(*table->toolbar, 6)->geometry(), QRect(184, 0, 78, 103));
  EXPECT_EQ(Spoken(screen->ButtonOf(*table->toolbar, 6)), QStringLiteral("carta AC"));

  table->name_box->Text = "Maria";
  EXPECT_EQ(As<QLineEdit>(table->name_box)->text(), QStringLiteral("Maria"));
  QTest::keyClicks(W(table->name_box), QStringLiteral("zinha"));
  QKeyEvent accented(QEvent::KeyPress, 0, Qt::NoModifier, QStringLiteral("ç"));
  QApplication::sendEvent(W(table->name_box), &accented);
  EXPECT_EQ(table->name_box->Text.get(), "Mariazinhaç");

  table->form.Caption = "Outra mesa";
  EXPECT_EQ(screen->WindowOf(table->form)->windowTitle(), QStringLiteral("Outra mesa"));
}

TEST_F(FrontTest, TheGameOwnsTheFocusAndTheKeys) {
  QWidget* window = Show();
  table->pago->SetFocus();
  EXPECT_TRUE(W(table->pago)->hasFocus());

  struct Step {
    Qt::Key key;
    Qt::KeyboardModifiers mods;
    vb::Control* focus;
  };
  const Step steps[] = {
      {Qt::Key_Tab, Qt::NoModifier, table->acabei},
      {Qt::Key_Tab, Qt::NoModifier, table->esperar},
      {Qt::Key_Backtab, Qt::ShiftModifier, table->acabei},
      {Qt::Key_Backtab, Qt::ShiftModifier, table->pago},
      {Qt::Key_Backtab, Qt::ShiftModifier, table->chip_place},
  };
  for (const Step& s : steps) {
    QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : window, s.key,
                    s.mods);
    EXPECT_EQ(table->form.ActiveControl(), s.focus) << s.focus->Id();
    EXPECT_TRUE(W(s.focus)->hasFocus()) << s.focus->Id();
  }
  // Space and Enter on a focused picture are its key press; on a button, its click.
  table->acabei->SetFocus();
  QTest::keyClick(W(table->acabei), Qt::Key_Space);
  QTest::keyClick(W(table->acabei), Qt::Key_Return);
  EXPECT_EQ(table->acabei_clicks, 2);
  int pressed = 0;
  table->chip_place->KeyPress = [&](int& ascii) { pressed = ascii; };
  table->chip_place->SetFocus();
  QTest::keyClick(W(table->chip_place), Qt::Key_Space);
  EXPECT_EQ(pressed, 32);
  int down = 0;
  table->chip_place->KeyDown = [&](int code, int) { down = code; };
  QTest::keyClick(W(table->chip_place), Qt::Key_Left);
  EXPECT_EQ(down, 37);
  // Disabling the focused control moves the game's focus on, and Qt's with it.
  table->chip_place->Enabled = false;
  EXPECT_EQ(table->form.ActiveControl(), table->pago);
  EXPECT_TRUE(W(table->pago)->hasFocus());
}

TEST_F(FrontTest, AWaitingHandlerServesTimersAndClicksAndReturns) {
  Show();
  std::vector<std::string> order;
  table->acabei->Click = [&] {
    order.push_back(table->waits_done ? "acabei after" : "acabei inside");
  };
  // A click while the wait runs: it is served inside the waiting handler.
  QTimer::singleShot(120, [&] { As<QAbstractButton>(table->acabei)->click(); });
  QElapsedTimer clock;
  clock.start();
  As<QAbstractButton>(table->esperar)->click();
  const qint64 took = clock.elapsed();
  EXPECT_EQ(table->waits_done, 1);
  EXPECT_EQ(table->ticks, 3);
  EXPECT_GE(took, 290);
  EXPECT_LT(took, 5000);
  EXPECT_EQ(order, std::vector<std::string>{"acabei inside"});
  EXPECT_EQ(As<QLabel>(table->chips_label)->text(), QStringLiteral("Pronto"));
  EXPECT_TRUE(W(table->esperar)->isEnabled());
  EXPECT_EQ(Engine::Get().NextTimerDue(), -1);
}

TEST_F(FrontTest, AWaitSleepsInsteadOfSpinning) {
  Show();
  table->timer->Interval = 100;
  table->timer->Enabled = true;
  auto cpu = [] {
    rusage use{};
    getrusage(RUSAGE_SELF, &use);
    return (use.ru_utime.tv_sec + use.ru_stime.tv_sec) * 1000.0 +
           (use.ru_utime.tv_usec + use.ru_stime.tv_usec) / 1000.0;
  };
  const double before = cpu();
  const std::int64_t end = host->Now() + 1000;
  front::Guarded([&] {
    while (host->Now() < end) vb::DoEvents();
  });
  const double used = cpu() - before;
  EXPECT_GE(table->ticks, 5);
  EXPECT_LE(table->ticks, 11);
  // A spinning loop would use the whole second.
  EXPECT_LT(used, 100.0) << used << " ms of CPU in one second of waiting";
}

TEST_F(FrontTest, ARunTimeErrorIsCaughtAndNothingAfterItRuns) {
  Show();
  As<QAbstractButton>(table->erro)->click();
  ASSERT_EQ(faults.size(), 1u);
  EXPECT_EQ(faults[0], "Erro em tempo de execução '35601':\n\nElemento não encontrado");
  EXPECT_EQ(table->after_fault, 0);
  EXPECT_TRUE(front::Faulted());
  // The game is dead: no more clicks, no more ticks.
  As<QAbstractButton>(table->acabei)->click();
  EXPECT_EQ(table->acabei_clicks, 0);
  table->timer->Interval = 50;
  table->timer->Enabled = true;
  QTest::qWait(200);
  EXPECT_EQ(table->ticks, 0);

  // Errors that are not the runtime's are reported too, under the runtime's catch-all number.
  front::ClearFault();
  EXPECT_FALSE(front::Guarded([] { throw std::out_of_range("vector"); }));
  ASSERT_EQ(faults.size(), 2u);
  EXPECT_EQ(faults[1], "Erro em tempo de execução '51':\n\nErro interno (vector)");
}

TEST_F(FrontTest, RightClickPopsTheMenuAndTheChosenEntryRuns) {
  Show();
  QStringList seen;
  QTimer::singleShot(150, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return;
    for (QAction* a : menu->actions())
      seen << (a->isSeparator()
                   ? QStringLiteral("-")
                   : a->text() + (a->isEnabled() ? QString() : QStringLiteral(" (x)")));
    for (QAction* a : menu->actions())
      if (a->text() == QStringLiteral("&Ver cartas")) a->trigger();
    menu->close();
  });
  QTest::mouseClick(W(table->felt), Qt::RightButton, {}, QPoint(400, 40));
  EXPECT_EQ(table->right_clicks, 1);
  EXPECT_EQ(seen, (QStringList{QStringLiteral("&Nova mão"), QStringLiteral("-"),
                               QStringLiteral("&Ver cartas"), QStringLiteral("&Carregar (x)")}));
  EXPECT_EQ(table->last_menu, "Ver");
  EXPECT_TRUE(table->form.Find("MnuVerCartas")->Checked);
  // A right click on a label without handlers goes nowhere: only the controls that listen for
  // it open the menu.
  QTest::mouseClick(W(table->hand_label), Qt::RightButton);
  EXPECT_EQ(table->right_clicks, 1);
}

TEST_F(FrontTest, TheMenuKeyAndShiftF10AreTheKeyboardsRightButton) {
  QWidget* window = Show();
  int forms = 0;
  table->form.MouseDown = [&forms](int button, int) { forms += button == 2; };
  QTest::keyClick(window, Qt::Key_Menu);
  QTest::keyClick(window, Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(forms, 2);
  QTest::keyClick(window, Qt::Key_F10);  // without Shift it is just a key
  EXPECT_EQ(forms, 2);
}

TEST_F(FrontTest, ScreenshotOfTheSampleTable) {
  QWidget* window = Show();
  table->toolbar->Button(2).SetEnabled(false);  // a marked card looks greyed
  table->toolbar->Button(4).SetValue(1);
  table->pago->SetFocus();
  QTest::qWait(50);
  const QImage shot = window->grab().toImage();
  const QString path = QStringLiteral(POKERZEVA_BINARY_DIR "/front_sample.png");
  ASSERT_TRUE(shot.save(path));
  std::printf("screenshot: %s\n", qPrintable(path));
  EXPECT_EQ(shot.pixelColor(5, 60), QColor(0x1A, 0x68, 0x02));  // the felt
  // The card KP, centred in its button at (93, 72) of the felt, sunk by one pixel: white face.
  EXPECT_EQ(shot.pixelColor(93 + 3 + 1 + 8, 72 + 3 + 1 + 8), QColor(Qt::white));
  // The tiny chip is cut to its 16 x 6 box: the felt shows just below it.
  EXPECT_EQ(shot.pixelColor(288, 27), QColor(0x1A, 0x68, 0x02));
  EXPECT_NE(shot.pixelColor(288, 24), QColor(0x1A, 0x68, 0x02));
}

TEST(FrontPictures, EachPictureIsMadeAtTheSizeItCovers) {
  QTemporaryDir dir;
  sample::WriteSampleImages(dir.path());
  front::SetImageFolder(dir.path());
  struct Case {
    double scale, ratio;
    QSize device;
  };
  const Case cases[] = {
      {1.0, 1.0, {71, 96}},   {1.0, 2.0, {142, 192}}, {1.5, 1.0, {107, 144}},
      {1.5, 1.5, {160, 216}}, {2.0, 2.0, {284, 384}}, {0.5, 1.0, {36, 48}},
  };
  for (const Case& c : cases) {
    const QPixmap p = front::Picture("barajas/AC", c.scale, c.ratio);
    EXPECT_EQ(p.size(), c.device) << c.scale << " x " << c.ratio;
    EXPECT_EQ(p.devicePixelRatio(), c.ratio);
    // What it covers on the screen: its natural size times the table's scale.
    EXPECT_EQ(p.deviceIndependentSize().toSize(), (QSizeF(71, 96) * c.scale).toSize()) << c.scale;
  }
  EXPECT_EQ(front::PictureSize("barajas/AC"), QSize(71, 96));
  EXPECT_TRUE(front::Picture("barajas/ZZ", 1.0, 1.0).isNull());
  EXPECT_TRUE(front::Picture("", 1.0, 2.0).isNull());
}

TEST(FrontNames, AcceleratorsReadAsWords) {
  const std::pair<const char*, const char*> captions[] = {
      {"&Acabei", "Acabei"},           {"&P A G O", "P A G O"}, {"E&rro", "Erro"},
      {"Rock && Roll", "Rock & Roll"}, {"fim&", "fim&"},        {"Aposto &TUDO", "Aposto TUDO"},
  };
  for (const auto& [caption, name] : captions)
    EXPECT_EQ(front::WithoutAccelerator(caption), QString::fromUtf8(name)) << caption;
}

// --- the ways the program ends: each runs in a process of its own -------------------------------

using FrontEndTest = FrontTest;

TEST_F(FrontEndTest, ClosingTheMainWindowUnloadsAndEndsWithStatusZero) {
  EXPECT_EXIT(
      {
        table->form.Unload = [](int&) { std::fprintf(stderr, "unload ran\n"); };
        QWidget* window = Show();
        window->close();
        std::fprintf(stderr, "still running\n");
        std::_Exit(5);
      },
      testing::ExitedWithCode(0), "unload ran");
}

TEST_F(FrontEndTest, EndStopsAtOnceWithoutTheUnload) {
  EXPECT_EXIT(
      {
        table->form.Unload = [](int&) { std::_Exit(3); };
        Show();
        table->acabei->Click = [] { Engine::Get().End(); };
        As<QAbstractButton>(table->acabei)->click();
        std::_Exit(4);
      },
      testing::ExitedWithCode(0), "");
}

TEST_F(FrontEndTest, AHungWindowIgnoresInputAndClosesWithoutTheUnload) {
  EXPECT_EXIT(
      {
        table->form.Unload = [](int&) { std::_Exit(3); };
        QWidget* window = Show();
        QTimer::singleShot(100, [&] {
          As<QAbstractButton>(table->pago)->click();
          QTest::keyClick(window, Qt::Key_Tab);
          std::fprintf(stderr, "title: %s; clicks %d\n", qPrintable(window->windowTitle()),
                       table->pago_clicks);
          window->close();
        });
        table->acabei->Click = [] { Engine::Get().Hang(); };
        As<QAbstractButton>(table->acabei)->click();
        std::_Exit(4);
      },
      testing::ExitedWithCode(0),
      "title: PokerZEVA - Amostra \\(Não está respondendo\\); clicks 0");
}

TEST_F(FrontEndTest, AFaultShowsTheOldReportAndEndsWithStatusOne) {
  EXPECT_EXIT(
      {
        front::SetFaultReporter(nullptr);
        table->form.Unload = [](int&) { std::_Exit(3); };
        Show();
        QTimer::singleShot(200, [] {
          auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
          if (!box) return;
          std::fprintf(stderr, "box: %s | %s\n", qPrintable(box->windowTitle()),
                       qPrintable(box->text().replace(QLatin1Char('\n'), QLatin1Char('/'))));
          box->accept();
        });
        As<QAbstractButton>(table->erro)->click();
        std::_Exit(4);
      },
      testing::ExitedWithCode(1),
      "box: PokerZEVA \\| Erro em tempo de execução '35601'://Elemento não encontrado");
}

}  // namespace
