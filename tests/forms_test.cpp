// The form engine model on the virtual clock: focus, arrays, image stores, timers, nested
// handlers, modal forms and the ways a program ends.
#include "platform/forms.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/engine.h"
#include "platform/runtime.h"
#include "platform/virtual_host.h"

namespace {

class FormEngine : public ::testing::Test {
 protected:
  void SetUp() override {
    vb::Engine::Get().Reset();
    host = std::make_unique<vb::VirtualHost>();
    main = std::make_unique<vb::Form>("Main");
    main->is_main = true;
    main->Caption = "Jogo";
    vb::Engine::Get().Register(*main);
    for (int i = 0; i < 3; ++i) {
      vb::Control& p = main->Add(vb::Kind::PictureBox, "Pic", nullptr, i);
      p.TabIndex = i;
      pics.Set(i, &p);
      p.GotFocus = [this, i] { log.push_back("got" + std::to_string(i)); };
      p.LostFocus = [this, i] { log.push_back("lost" + std::to_string(i)); };
    }
    button = &main->Add(vb::Kind::CommandButton, "CmdOk");
    button->TabIndex = 10;
    timer = &main->Add(vb::Kind::Timer, "Tick");
    vb::Engine::Get().Show(*main);
  }
  void TearDown() override {
    vb::Engine::Get().Reset();
    host.reset();
  }

  vb::Input Click(const std::string& name, int index = -1) {
    vb::Input in;
    in.type = vb::Input::Type::Click;
    in.form = main.get();
    in.control = name;
    in.index = index;
    return in;
  }

  std::unique_ptr<vb::VirtualHost> host;
  std::unique_ptr<vb::Form> main;
  vb::ControlArray<> pics;
  vb::Control* button = nullptr;
  vb::Control* timer = nullptr;
  std::vector<std::string> log;
};

TEST_F(FormEngine, TabOrderAndFocusEvents) {
  pics(0).SetFocus();
  main->SendKeys("{TAB}");
  main->SendKeys("{TAB}");
  main->SendKeys("+{TAB}");
  EXPECT_EQ(main->ActiveControl(), &pics(1));
  // The focus moves at once; its events wait until the code hands control back.
  EXPECT_TRUE(log.empty());
  vb::DoEvents();
  EXPECT_EQ(log,
            (std::vector<std::string>{"got0", "lost0", "got1", "lost1", "got2", "lost2", "got1"}));
}

TEST_F(FormEngine, FocusEventsRunBeforeAClickAndAfterItsHandler) {
  std::vector<std::string> order;
  button->GotFocus = [&] { order.push_back("got button"); };
  button->Click = [&] {
    order.push_back("click");
    pics(2).SetFocus();
  };
  pics(0).SetFocus();
  vb::Engine::Get().RunFocusEvents();
  log.clear();
  ASSERT_TRUE(vb::Engine::Get().Deliver(Click("CmdOk")));
  // The press: the old control's LostFocus and the button's GotFocus come before its click; the
  // focus that the click itself moves is served when the click is done.
  EXPECT_EQ(order, (std::vector<std::string>{"got button", "click"}));
  EXPECT_EQ(log, (std::vector<std::string>{"lost0", "got2"}));
}

TEST_F(FormEngine, DisablingTheFocusedControlMovesTheFocusOnAndStillFiresLostFocus) {
  pics(1).SetFocus();
  vb::DoEvents();
  log.clear();
  pics(1).Enabled = false;
  EXPECT_EQ(main->ActiveControl(), &pics(2));
  vb::DoEvents();
  EXPECT_EQ(log, (std::vector<std::string>{"lost1", "got2"}));
  // The tab order skips what cannot take the focus.
  pics(2).Visible = false;
  EXPECT_EQ(main->ActiveControl(), button);
  main->SendKeys("{TAB}");
  EXPECT_EQ(main->ActiveControl(), &pics(0));
  EXPECT_THROW(pics(1).SetFocus(), vb::RuntimeError);
}

TEST_F(FormEngine, AQueuedClickRunsInsideAWaitingHandler) {
  int clicks = 0;
  button->Click = [&] { ++clicks; };
  int ticks = 0;
  timer->TimerEvent = [&] { ++ticks; };
  timer->Interval = 100;
  timer->Enabled = true;
  host->QueueAt(250, Click("CmdOk"));
  // A handler waiting for three ticks, as the game's waits do.
  while (ticks < 3) vb::DoEvents();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(host->Now(), 300);
  // Enabling a running timer does not restart it; setting the interval does.
  timer->Enabled = true;
  EXPECT_EQ(timer->timer_due, 400);
  timer->Interval = 100;
  EXPECT_EQ(timer->timer_due, 400);
  host->RunFor(50);
  timer->Interval = 100;
  EXPECT_EQ(timer->timer_due, 450);
}

TEST_F(FormEngine, TicksDueTogetherFireInTheirFixedOrder) {
  vb::Control& late = main->Add(vb::Kind::Timer, "Late");
  late.timer_order = 3;
  timer->timer_order = 0;
  std::string order;
  late.TimerEvent = [&] { order += "L"; };
  timer->TimerEvent = [&] { order += "T"; };
  late.Interval = 100;
  late.Enabled = true;
  timer->Interval = 100;
  timer->Enabled = true;
  host->RunFor(200);
  EXPECT_EQ(order, "TLTL");
}

TEST_F(FormEngine, ModalFormReturnsWhenItUnloads) {
  vb::Form dialog("Dialog");
  vb::Control& ok = dialog.Add(vb::Kind::CommandButton, "Ok");
  ok.Click = [&] { vb::Engine::Get().Unload(dialog); };
  bool unloaded = false;
  dialog.Unload = [&](int&) { unloaded = true; };
  vb::Input in;
  in.form = &dialog;
  in.control = "Ok";
  host->QueueAt(500, in);
  // The main form refuses input while the dialog is up.
  host->QueueAt(100, Click("CmdOk"));
  vb::Engine::Get().Show(dialog, true);
  EXPECT_TRUE(unloaded);
  EXPECT_EQ(host->Now(), 500);
  ASSERT_EQ(host->refused.size(), 1u);
  EXPECT_EQ(host->refused[0].control, "CmdOk");
}

TEST_F(FormEngine, ClosingTheMainFormDuringAWaitRunsTheUnloadAndEnds) {
  bool unloaded = false, resumed = false;
  main->Unload = [&](int&) { unloaded = true; };
  timer->Interval = 1000;
  timer->Enabled = true;
  vb::Input close;
  close.type = vb::Input::Type::Close;
  close.form = main.get();
  host->QueueAtNextWait(close);
  try {
    vb::DoEvents();
    resumed = true;
  } catch (const vb::ProgramEnded& e) {
    EXPECT_EQ(e.status, 0);
    EXPECT_EQ(e.how, vb::EndHow::Unloaded);
  }
  EXPECT_TRUE(unloaded);
  EXPECT_FALSE(resumed);
}

TEST_F(FormEngine, ClosingAMarkedDialogEndsTheGameThroughTheMainUnload) {
  bool main_unloaded = false;
  main->Unload = [&](int&) { main_unloaded = true; };
  vb::Form dialog("Shuffle");
  dialog.close_ends_game = true;
  vb::Control& t = dialog.Add(vb::Kind::Timer, "T");
  t.Interval = 50;
  t.Enabled = true;
  vb::Input close;
  close.type = vb::Input::Type::Close;
  close.form = &dialog;
  host->QueueAt(120, close);
  bool after = false;
  try {
    vb::Engine::Get().Show(dialog, true);
    after = true;
  } catch (const vb::ProgramEnded& e) {
    EXPECT_EQ(e.how, vb::EndHow::Unloaded);
  }
  EXPECT_TRUE(main_unloaded);
  EXPECT_FALSE(after);
}

TEST_F(FormEngine, EndRunsNoUnloadAndHangRefusesInput) {
  bool unloaded = false;
  main->Unload = [&](int&) { unloaded = true; };
  try {
    vb::Engine::Get().End();
  } catch (const vb::ProgramEnded& e) {
    EXPECT_EQ(e.how, vb::EndHow::End);
  }
  EXPECT_FALSE(unloaded);

  EXPECT_THROW(vb::Engine::Get().Hang(), vb::ProgramHung);
  EXPECT_EQ(main->Caption.get(), std::string("Jogo") + vb::kNotResponding);
  EXPECT_FALSE(vb::Engine::Get().Deliver(Click("CmdOk")));
  vb::Input close;
  close.type = vb::Input::Type::Close;
  close.form = main.get();
  try {
    vb::Engine::Get().Deliver(close);
    FAIL();
  } catch (const vb::ProgramEnded& e) {
    EXPECT_EQ(e.how, vb::EndHow::HungClose);
  }
  EXPECT_FALSE(unloaded);
}

TEST_F(FormEngine, AClickTakesTheFocusEvenWhenLostFocusMovesIt) {
  // A LostFocus handler that wraps the focus back does not stop the click.
  pics(0).SetFocus();
  pics(0).LostFocus = [&] { pics(2).SetFocus(); };
  int clicks = 0;
  button->Click = [&] { ++clicks; };
  EXPECT_TRUE(vb::Engine::Get().Deliver(Click("CmdOk")));
  EXPECT_EQ(clicks, 1);
  button->Enabled = false;
  EXPECT_FALSE(vb::Engine::Get().Deliver(Click("CmdOk")));
  EXPECT_EQ(clicks, 1);
}

}  // namespace
