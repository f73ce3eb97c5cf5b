#include "replay.h"

#include <cerrno>
#include <charconv>
#include <deque>
#include <istream>
#include <map>
#include <memory>
#include <ostream>
#include <sstream>
#include <unordered_map>

#include "chips/chips.h"
#include "core/game_state.h"
#include "core/start.h"
#include "platform/engine.h"
#include "platform/mci.h"
#include "platform/rnd.h"
#include "platform/runtime.h"
#include "platform/settings.h"
#include "platform/virtual_host.h"
#include "session/sel_fundos.h"
#include "session_impl.h"
#include "table/frm_principal.h"

namespace replay {

std::string Json(const std::string& text) {
  std::string s = "\"";
  for (unsigned char c : text) {
    switch (c) {
      case '"':
        s += "\\\"";
        break;
      case '\\':
        s += "\\\\";
        break;
      case '\n':
        s += "\\n";
        break;
      case '\r':
        s += "\\r";
        break;
      case '\t':
        s += "\\t";
        break;
      default:
        if (c < 0x20) {
          char buf[8];
          std::snprintf(buf, sizeof buf, "\\u%04x", c);
          s += buf;
        } else {
          s += static_cast<char>(c);
        }
    }
  }
  return s + "\"";
}

namespace {

// A whole decimal number with nothing around it: digits, with a minus sign in front when
// `negative` is allowed. Out of the range of the type is not a number either.
bool Decimal(const std::string& text, bool negative, long long& into) {
  std::size_t i = negative && !text.empty() && text[0] == '-' ? 1 : 0;
  if (i == text.size()) return false;
  for (std::size_t j = i; j < text.size(); ++j)
    if (text[j] < '0' || text[j] > '9') return false;
  errno = 0;
  into = std::strtoll(text.c_str(), nullptr, 10);
  return errno == 0;
}

}  // namespace

bool Options::Parse(std::vector<std::string>& args, std::string& error) {
  std::vector<std::string> rest;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    // The value of an option that takes one, checked against what the game allows.
    auto value = [&](long long& into, bool (*allowed)(long long), const char* what) {
      if (i + 1 >= args.size()) {
        error = a + " needs a number: " + what;
        return false;
      }
      const std::string& text = args[++i];
      if (!Decimal(text, true, into) || !allowed(into)) {
        error = a + " " + text + " is not allowed: " + what;
        return false;
      }
      return true;
    };
    long long n = 0;
    if (a == "--seed") {
      // Any state of the generator: a whole number from 0 to 18446744073709551615.
      const std::string text = i + 1 < args.size() ? args[++i] : std::string();
      errno = 0;
      const unsigned long long state = std::strtoull(text.c_str(), nullptr, 10);
      if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos || errno != 0) {
        error = "--seed " + text + " is not allowed: a whole number from 0 to 18446744073709551615";
        return false;
      }
      seed = state;
    } else if (a == "--effects") {
      effects = true;
    } else if (a == "--music") {
      music = true;
    } else if (a == "--cards") {
      if (!value(
              n, [](long long v) { return v >= 20 && v <= 52 && v % 4 == 0; },
              "20 to 52 cards, a multiple of 4"))
        return false;
      cards = static_cast<int>(n);
    } else if (a == "--chips") {
      if (!value(
              n, [](long long v) { return v == 330 || v == 660 || v == 990; },
              "330, 660 or 990 chips"))
        return false;
      chips = static_cast<int>(n);
    } else if (a == "--exchange") {
      if (!value(
              n, [](long long v) { return v >= 0 && v <= 5; }, "0 to 5 cards"))
        return false;
      exchange = static_cast<int>(n);
    } else if (a == "--no-limit") {
      no_limit = true;
    } else if (a == "--full-beats-flush") {
      full_beats_flush = true;
    } else if (a == "--straight-beats-trips") {
      straight_beats_trips = true;
    } else if (a.rfind("--", 0) == 0) {
      error = "unknown option " + a;
      return false;
    } else {
      rest.push_back(a);
    }
  }
  args = rest;
  return true;
}

// --- what the game shows, as it happens --------------------------------------------------------

namespace {
Session* g_session = nullptr;
Options g_options;
}  // namespace

namespace {

void AjustesDaReplay() {
  const Options& o = g_options;
  auto& f = Frm_Principal();
  if (o.effects) {
    EfeitosOn = true;
    f.MnuEfeitos.Checked = true;
  }
  if (o.music) {
    MusicaOn = true;
    f.MnuMusica.Checked = true;
  }
  if (o.cards) NroCartas = static_cast<std::uint8_t>(o.cards);
  if (o.chips) NroFichas = o.chips;
  if (o.exchange >= 0) MaxTroca = static_cast<std::uint8_t>(o.exchange);
  if (o.no_limit) {
    LimiteAbertura = false;
    LimiteFichas = NroFichas;
    f.MnuLimite.Checked = false;
  }
  if (o.full_beats_flush) {
    FullMataCor = true;
    f.MnuFullxCor.Checked = true;
  }
  if (o.straight_beats_trips) {
    TrioMataEscada = false;
    f.MnuTrioXEscada.Checked = false;
  }
}

void DepoisDaFala(bool Lado) {
  auto& f = Frm_Principal();
  vb::ControlArray<>& l = Lado ? f.LabelPokerCaption : f.LabelPlayerCaption;
  g_session->Emit("speech", std::string("\"side\": ") + (Lado ? "\"poker\"" : "\"player\"") +
                                ", \"speaker\": " + Json(l(0).Caption.get()) +
                                ", \"line1\": " + Json(l(1).Caption.get()) +
                                ", \"line2\": " + Json(l(2).Caption.get()));
}

void FaseMudou(const std::string& /*from*/, const std::string& to) {
  g_session->Emit("fase", "\"to\": " + vb::LongText(static_cast<long long>(vb::Val(to))));
}

}  // namespace

Session::Session(const Options& options, std::ostream* out)
    : options_(options), out_(out), impl_(nullptr) {
  ResetProcess(options.seed);  // with the in-memory settings: the player's stored seed is untouched
  impl_ = new Impl();
  impl_->observer.session = this;
  impl_->host.modal_driver = [this] { return DriveDialog(); };
  g_session = this;
  g_options = options;
  g_ajustes_iniciais = AjustesDaReplay;
  if (out_) {
    g_depois_da_fala = DepoisDaFala;
    FaseVar::Observe(FaseMudou);
    vb::InstallMciSink(
        [this](const std::string& command) { Emit("mci", "\"command\": " + Json(command)); });
    vb::Engine::Get().AddListener(&impl_->observer);
  } else {
    // Nothing is printed, so nothing need be watched; the recorder need not grow either.
    vb::InstallMciSink([](const std::string&) { vb::ClearMciSent(); });
  }
}

Session::~Session() {
  vb::InstallMciSink(nullptr);
  FaseVar::Observe(nullptr);
  g_ajustes_iniciais = nullptr;
  g_depois_da_fala = nullptr;
  vb::Engine::Get().Reset();
  DestruirFormularios();
  delete impl_;
  g_session = nullptr;
}

std::int64_t Session::now() const {
  return impl_->host.Now();
}

void Session::Emit(const std::string& kind, const std::string& rest) {
  vb::ClearMciSent();  // the printer keeps the record; the recorder need not grow
  if (!out_) return;
  *out_ << "{\"t\": " << now() << ", \"kind\": \"" << kind << "\"" << (rest.empty() ? "" : ", ")
        << rest << "}\n";
}

void Session::Run(const std::function<void()>& body, const std::string& last_word) {
  try {
    body();
  } catch (const vb::ProgramEnded& e) {
    if (e.how == vb::EndHow::End) {
      over_how_ = "ante";
    } else if (last_word == "close") {
      over_how_ = "closed";
    } else if (last_word == "quit" || last_word == "click CmdSair 2") {
      over_how_ = "quit";
    } else {
      over_how_ = "showdown";
    }
    Emit("gameover", "\"how\": \"" + over_how_ + "\"");
  } catch (const vb::ProgramHung&) {
    over_how_ = "hung";
    Emit("gameover", "\"how\": \"hung\"");
  } catch (const vb::RuntimeError& e) {
    over_how_ = "fault";
    fault_ = e.number();
    Emit("fault", "\"number\": " + std::to_string(e.number()));
  }
}

void Session::Start() {
  Run([] { IniciarJogo(); }, "");
}

namespace {

int Denom(const std::string& v) {
  for (int i = 0; i < 4; ++i)
    if (v == std::to_string(kDenominacoes[i].valor)) return i;
  return -1;
}

// The control of the table by its name and index, as the form would find it; the controls a
// script can name are the table's own members, which saves the look-up by name.
vb::Control* Resolve(FrmPrincipal& f, const std::string& name, int index) {
  const auto element = [index](const vb::ControlArray<>& array) -> vb::Control* {
    auto it = array.items().find(index);
    return it == array.items().end() ? nullptr : it->second;
  };
  const auto single = [index](vb::Control& c) { return index == -1 ? &c : nullptr; };
  if (name == "ToolbarPlayerCoins") return single(f.ToolbarPlayerCoins);
  if (name == "PicFichasPlayer") return element(f.PicFichasPlayer);
  if (name == "LabelPlayerFichasPOT") return element(f.LabelPlayerFichasPOT);
  if (name == "PicCartasPlayer") return element(f.PicCartasPlayer);
  if (name == "ToolbarPlayer") return single(f.ToolbarPlayer);
  if (name == "CmdPago") return single(f.CmdPago);
  if (name == "CmdTudo") return single(f.CmdTudo);
  if (name == "CmdConfrontar") return single(f.CmdConfrontar);
  if (name == "CmdMaisUma") return single(f.CmdMaisUma);
  if (name == "CmdSair") return element(f.CmdSair);
  if (name == "CmdAcabei") return element(f.CmdAcabei);
  if (name == "CmdDesfazer") return element(f.CmdDesfazer);
  return f.Find(name, index);
}

vb::Input Make(vb::Input::Type type, const std::string& control, int index = -1) {
  vb::Input in;
  in.type = type;
  FrmPrincipal& f = Frm_Principal();
  in.form = &f;
  in.control = control;
  in.index = index;
  if (!control.empty()) in.target = Resolve(f, control, index);
  return in;
}

}  // namespace

// The longest `wait` of a script: a day.
constexpr long long kLongestWait = 86'400'000;

bool Session::Play(const std::string& raw, int line_number) {
  std::istringstream& words = impl_->words;
  words.clear();
  words.str(raw.substr(0, raw.find('#')));
  std::string word;
  if (!(words >> word)) return true;  // blank or comment
  auto refuse = [&] {
    Emit("illegal", "\"line\": " + std::to_string(line_number));
    return false;
  };
  if (word == "menu") return PlayMenu(raw, line_number);
  if (over()) return refuse();
  if (word == "state") {
    std::string extra;
    if (words >> extra) return refuse();
    EmitState();
    return true;
  }

  auto& f = Frm_Principal();
  auto& engine = vb::Engine::Get();
  if (word == "wait") {
    long long ms = -1;
    if (!(words >> ms) || ms < 0 || ms > kLongestWait || !impl_->host.CanRunFor(ms))
      return refuse();
    Run([&] { impl_->host.RunFor(ms); }, word);
    return true;
  }
  if (word == "close") {
    vb::Input in = Make(vb::Input::Type::Close, "");
    if (!engine.Accepts(in)) return refuse();
    Run([&] { engine.Deliver(in); }, word);
    return true;
  }
  if (!f.Visible) return refuse();  // the table is not up yet

  vb::Input in;
  bool focus_first = false;
  if (word == "chip") {
    std::string v, how = "button";
    words >> v >> how;
    const int d = Denom(v);
    if (d < 0 || !FaseDeApostas()) return refuse();
    const Denominacao& den = kDenominacoes[d];
    if (how == "button") {
      in = Make(vb::Input::Type::ButtonClick, "ToolbarPlayerCoins");
      in.button = den.botao;
    } else if (how == "pic") {
      in = Make(vb::Input::Type::Click, "PicFichasPlayer", den.pic);
    } else if (how == "label") {
      in = Make(vb::Input::Type::Click, "LabelPlayerFichasPOT", den.pic);
    } else if (how == "key") {
      in = Make(vb::Input::Type::Key, "PicFichasPlayer", den.pic);
      in.key_code = 32;
      focus_first = true;
    } else {
      return refuse();
    }
  } else if (word == "mark") {
    int p = 0;
    std::string how = "pic";
    words >> p >> how;
    if (p < 1 || p > 5 || Fase != 20) return refuse();
    if (how == "pic") {
      in = Make(vb::Input::Type::Click, "PicCartasPlayer", p - 1);
    } else if (how == "button") {
      in = Make(vb::Input::Type::ButtonClick, "ToolbarPlayer");
      in.button = 2 * p;
    } else {
      return refuse();
    }
  } else if (word == "click") {
    std::string name;
    int index = -1;
    words >> name;
    words >> index;
    static const char* kButtons[] = {"CmdPago", "CmdTudo",       "CmdDesfazer", "CmdAcabei",
                                     "CmdSair", "CmdConfrontar", "CmdMaisUma"};
    bool known = false;
    for (const char* b : kButtons) known = known || name == b;
    if (!known) return refuse();
    in = Make(vb::Input::Type::Click, name, index);
  } else if (word == "confront") {
    in = Make(vb::Input::Type::Click, "CmdConfrontar");
  } else if (word == "more") {
    in = Make(vb::Input::Type::Click, "CmdMaisUma");
  } else if (word == "quit") {
    in = Make(vb::Input::Type::Click, "CmdSair", 2);
  } else if (word == "giveup") {
    in = Make(vb::Input::Type::Click, "CmdSair", f.FraPedeCartasPlayer.Visible ? 1 : 0);
  } else {
    return refuse();
  }
  if (focus_first) {
    vb::Control* target = in.target;
    if (!target || !target->CanTakeFocus() ||
        !engine.Accepts(Make(vb::Input::Type::Click, in.control, in.index)))
      return refuse();
  } else if (!engine.Accepts(in)) {
    return refuse();
  }
  if (word == "click" && in.control == "CmdSair" && in.index == 2) word = "click CmdSair 2";
  Run(
      [&] {
        if (focus_first) {
          f.FocusTo(in.target);
          in.control.clear();  // the key goes to the focused control
          in.index = -1;
          in.target = nullptr;
        }
        engine.Deliver(in);
      },
      word);
  return true;
}

void Session::PlayScript(std::istream& script) {
  std::string line;
  int n = 0;
  while (std::getline(script, line)) Play(line, ++n);
}

namespace {

struct Button {
  const char* name;
  int index;
  const char* line;
};
constexpr Button kButtons[] = {
    {"CmdPago", -1, "click CmdPago"},          {"CmdTudo", -1, "click CmdTudo"},
    {"CmdDesfazer", 0, "click CmdDesfazer 0"}, {"CmdDesfazer", 1, "click CmdDesfazer 1"},
    {"CmdAcabei", 0, "click CmdAcabei 0"},     {"CmdAcabei", 1, "click CmdAcabei 1"},
    {"CmdSair", 0, "click CmdSair 0"},         {"CmdSair", 1, "click CmdSair 1"},
    {"CmdSair", 2, "click CmdSair 2"},         {"CmdConfrontar", -1, "click CmdConfrontar"},
    {"CmdMaisUma", -1, "click CmdMaisUma"}};
constexpr const char* kChipButton[] = {"chip 1 button", "chip 5 button", "chip 10 button",
                                       "chip 50 button"};
constexpr const char* kChipPic[] = {"chip 1 pic", "chip 5 pic", "chip 10 pic", "chip 50 pic"};
constexpr const char* kMark[] = {"mark 1", "mark 2", "mark 3", "mark 4", "mark 5"};

const Controls& Found(Controls& c, FrmPrincipal& f) {
  if (c.table == &f) return c;
  c.table = &f;
  c.coins = &f.ToolbarPlayerCoins;
  for (const Denominacao& d : kDenominacoes)
    c.chip_places[d.pic] = Resolve(f, "PicFichasPlayer", d.pic);
  for (int p = 0; p < 5; ++p) c.card_places[p] = Resolve(f, "PicCartasPlayer", p);
  for (std::size_t b = 0; b < std::size(kButtons); ++b)
    c.buttons[b] = Resolve(f, kButtons[b].name, kButtons[b].index);
  return c;
}

}  // namespace

std::vector<std::string> Session::LegalActions() const {
  std::vector<std::string> actions;
  if (over()) return actions;
  auto& f = Frm_Principal();
  auto& engine = vb::Engine::Get();
  if (!f.Visible) return actions;
  // The same questions Play asks of the screen, on controls found once.
  const Controls& c = Found(impl_->controls, f);
  using T = vb::Input::Type;
  // Between hands, the right-click menu: one line for each entry it offers
  // (first, so that the table's own buttons end the list).
  if (Fase == 50 && !engine.TopModal()) MenuActions(actions);
  if (FaseDeApostas()) {
    for (int d = 0; d < 4; ++d) {
      const Denominacao& den = kDenominacoes[d];
      if (engine.Accepts(T::ButtonClick, &f, c.coins, den.botao)) actions.push_back(kChipButton[d]);
      if (engine.Accepts(T::Click, &f, c.chip_places[den.pic])) actions.push_back(kChipPic[d]);
    }
  }
  if (Fase == 20) {
    for (int p = 0; p < 5; ++p)
      if (engine.Accepts(T::Click, &f, c.card_places[p])) actions.push_back(kMark[p]);
  }
  for (std::size_t b = 0; b < std::size(kButtons); ++b)
    if (engine.Accepts(T::Click, &f, c.buttons[b])) actions.push_back(kButtons[b].line);
  return actions;
}

}  // namespace replay
