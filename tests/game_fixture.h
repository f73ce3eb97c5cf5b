// A fresh process for each whole-game test: the engine, the forms, the shared variables, the
// generator, the settings and the media door all start anew, on the virtual clock.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/start.h"
#include "platform/engine.h"
#include "platform/mci.h"
#include "platform/rnd.h"
#include "platform/settings.h"
#include "platform/virtual_host.h"
#include "table/frm_principal.h"

// One speech as the balloon showed it, with the table at that moment.
struct Falado {
  bool poker;
  std::string nome, linha1, linha2;
  int pote = 0, apostas = 0, fichas_player = 0;
  bool operator==(const Falado& o) const {
    return poker == o.poker && nome == o.nome && linha1 == o.linha1 && linha2 == o.linha2;
  }
};

inline std::ostream& operator<<(std::ostream& os, const Falado& f) {
  return os << (f.poker ? "ZEVA" : "player") << " [" << f.nome << "|" << f.linha1 << "|" << f.linha2
            << "]";
}

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
    Falas().clear();
    g_depois_da_fala = Ouvir;
    Watch();
  }
  // The hooks a fixture watches the game through, set again after every fresh start.
  virtual void Watch() {}
  FrmPrincipal& F() { return Frm_Principal(); }

  // Every speech since the last fresh start, as it reached the balloons; and one side's.
  static std::vector<Falado>& Falas() {
    static std::vector<Falado> f;
    return f;
  }
  static std::vector<Falado> FalasDe(bool poker) {
    std::vector<Falado> r;
    for (const Falado& f : Falas())
      if (f.poker == poker) r.push_back(f);
    return r;
  }
  static void Ouvir(bool lado) {
    vb::ControlArray<>& l =
        lado ? Frm_Principal().LabelPokerCaption : Frm_Principal().LabelPlayerCaption;
    Falas().push_back({lado, l(0).Caption.get(), l(1).Caption.get(), l(2).Caption.get(), MesaPote,
                       MesaApostas, FichasPlayer});
  }

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
