// A fresh process for each whole-game test: the engine, the forms, the shared variables, the
// generator, the settings and the media door all start anew, on the virtual clock.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/game_state.h"
#include "core/start.h"
#include "platform/engine.h"
#include "platform/mci.h"
#include "platform/rnd.h"
#include "platform/settings.h"
#include "platform/virtual_host.h"
#include "table/frm_principal.h"

class GameTest : public ::testing::Test {
 protected:
  void SetUp() override { Fresh(); }
  void TearDown() override {
    ResetProcess();
    host.reset();
  }
  void Fresh(std::uint64_t seed = 0) {
    ResetProcess(seed);
    host = std::make_unique<vb::VirtualHost>();
    Watch();
  }
  // The hooks a fixture watches the game through, set again after every fresh start.
  virtual void Watch() {}
  FrmPrincipal& F() { return Frm_Principal(); }

  vb::Input On(const std::string& control, int index = -1,
               vb::Input::Type type = vb::Input::Type::Click) {
    vb::Input in;
    in.type = type;
    in.form = &F();
    in.control = control;
    in.index = index;
    return in;
  }
  bool Click(const std::string& control, int index = -1) {
    return vb::Engine::Get().Deliver(On(control, index));
  }
  bool Key(int code, int shift = 0) {
    vb::Input in = On("", -1, vb::Input::Type::Key);
    in.key_code = code;
    in.shift = shift;
    return vb::Engine::Get().Deliver(in);
  }
  bool Chip(int button) {
    vb::Input in = On("ToolbarPlayerCoins", -1, vb::Input::Type::ButtonClick);
    in.button = button;
    return vb::Engine::Get().Deliver(in);
  }
  std::string Caption(vb::Control& c) { return c.Caption.get(); }

  std::unique_ptr<vb::VirtualHost> host;
};
