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
  vb::Engine::Get().Reset();
  DestruirFormularios();
  ResetGameState();
  vb::ScriptRnd({});
  vb::SetRndState(options.seed);
  vb::InstallSettings(nullptr);  // a replay never touches the player's stored seed
  vb::ClearMciSent();
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

// --- the right-click menu ----------------------------------------------------------------------

namespace {

// A JSON string literal at `pos` of `line`, into `text`; `pos` then points past its closing quote.
bool ReadJsonString(const std::string& line, std::size_t& pos, std::string& text) {
  if (pos >= line.size() || line[pos] != '"') return false;
  text.clear();
  auto hex4 = [&](std::size_t at, unsigned& value) {
    if (at + 4 > line.size()) return false;
    value = 0;
    for (std::size_t i = at; i < at + 4; ++i) {
      const char c = line[i];
      const int d = c >= '0' && c <= '9'   ? c - '0'
                    : c >= 'a' && c <= 'f' ? c - 'a' + 10
                    : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                           : -1;
      if (d < 0) return false;
      value = value * 16 + static_cast<unsigned>(d);
    }
    return true;
  };
  auto utf8 = [&](unsigned cp) {
    if (cp < 0x80) {
      text += static_cast<char>(cp);
    } else if (cp < 0x800) {
      text += static_cast<char>(0xC0 | (cp >> 6));
      text += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
      text += static_cast<char>(0xE0 | (cp >> 12));
      text += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
      text += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
      text += static_cast<char>(0xF0 | (cp >> 18));
      text += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
      text += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
      text += static_cast<char>(0x80 | (cp & 0x3F));
    }
  };
  for (std::size_t i = pos + 1; i < line.size(); ++i) {
    const unsigned char c = static_cast<unsigned char>(line[i]);
    if (c == '"') {
      pos = i + 1;
      return true;
    }
    if (c < 0x20) return false;
    if (c != '\\') {
      text += static_cast<char>(c);
      continue;
    }
    if (++i >= line.size()) return false;
    switch (line[i]) {
      case '"':
      case '\\':
      case '/':
        text += line[i];
        break;
      case 'b':
        text += '\b';
        break;
      case 'f':
        text += '\f';
        break;
      case 'n':
        text += '\n';
        break;
      case 'r':
        text += '\r';
        break;
      case 't':
        text += '\t';
        break;
      case 'u': {
        unsigned cp = 0;
        if (!hex4(i + 1, cp)) return false;
        i += 4;
        if (cp >= 0xD800 && cp < 0xDC00) {
          unsigned low = 0;
          if (i + 2 >= line.size() || line[i + 1] != '\\' || line[i + 2] != 'u' ||
              !hex4(i + 3, low) || low < 0xDC00 || low >= 0xE000)
            return false;
          i += 6;
          cp = 0x10000 + ((cp - 0xD800) << 10) + (low - 0xDC00);
        } else if (cp >= 0xDC00 && cp < 0xE000) {
          return false;
        }
        utf8(cp);
        break;
      }
      default:
        return false;
    }
  }
  return false;
}

// An unsigned decimal, within `most` (a count of presses or milliseconds the tool will play).
bool ReadCount(const std::string& word, std::int64_t most, std::int64_t& value) {
  if (word.empty() || word.find_first_not_of("0123456789") != std::string::npos) return false;
  const auto [end, ec] = std::from_chars(word.data(), word.data() + word.size(), value);
  return ec == std::errc() && end == word.data() + word.size() && value <= most;
}

constexpr std::int64_t kMostPresses = 100000;
constexpr std::int64_t kMostMilliseconds = 86400000;  // a day

// The menu entries a script names, and what follows the word.
enum class Argument { None, Count, Text, Designs, Milliseconds };
struct MenuWord {
  const char* word;
  const char* entry;  // the menu control
  Argument argument;
  const char* sample;  // a whole line with this word, for the random player
};
const MenuWord kMenuWords[] = {
    {"nova", "MnuNova", Argument::None, "menu nova"},
    {"carregar", "MnuCarregar", Argument::None, "menu carregar"},
    {"salvar", "MnuSalvar", Argument::None, "menu salvar"},
    {"nrocartas", "MnuNroCartas", Argument::Count, "menu nrocartas 3"},
    {"nrofichas", "MnuNroFichas", Argument::Count, "menu nrofichas 1"},
    {"troca", "MnuTroca", Argument::Count, "menu troca 2"},
    {"vficha", "MnuVFicha", Argument::Text, "menu vficha \"7,50\""},
    {"nome", "MnuNome", Argument::Text, "menu nome \"Ana\""},
    {"fundos", "MnuFundos", Argument::Designs, "menu fundos 4 aplicar"},
    {"limite", "MnuLimite", Argument::None, "menu limite"},
    {"fullxcor", "MnuFullxCor", Argument::None, "menu fullxcor"},
    {"trioxescada", "MnuTrioXEscada", Argument::None, "menu trioxescada"},
    {"musica", "MnuMusica", Argument::None, "menu musica"},
    {"efeitos", "MnuEfeitos", Argument::None, "menu efeitos"},
    {"trapassa", "MnuTrapassa", Argument::Text, "menu trapassa \"OBaralhoLimpo  \""},
    {"verbaralho", "MnuVerBaralho", Argument::None, "menu verbaralho"},
    {"vercartas", "MnuVerCartas", Argument::None, "menu vercartas"},
    {"creditos", "MnuAbout", Argument::Milliseconds, "menu creditos 500"},
    {"sair", "MnuSair", Argument::None, "menu sair"},
};

// The words of a line up to its comment.
std::vector<std::string> Words(const std::string& text) {
  std::istringstream in(text.substr(0, text.find('#')));
  std::vector<std::string> words;
  for (std::string w; in >> w;) words.push_back(w);
  return words;
}

std::string Flag(bool on) {
  return on ? "true" : "false";
}

// A Single as the shortest JSON number that reads back as the same value.
std::string SingleNumber(float value) {
  char buf[32];
  const auto end = std::to_chars(buf, buf + sizeof buf, static_cast<double>(value)).ptr;
  return std::string(buf, end);
}

// The chooser: the design chosen, the position of the design store that each of the ten places
// shows, and the preview's five cards as positions of that store (0 where nothing shows).
std::string ChooserFields(const FrmSelFundos& chooser) {
  auto positions = [&](auto place, int count) {
    std::string list;
    for (int i = 1; i <= count; ++i) {
      const vb::ToolbarButton& b = place(i);
      int position = b.ImagePosition();
      if (!position && !b.ImageKey().empty()) {
        // A keyed picture of the preview store: the design it was copied from.
        const std::string picture = b.PictureShown();
        for (int p = 1; p <= chooser.ImageListReves.Count() && !position; ++p)
          if (chooser.ImageListReves.PictureOf(p) == picture) position = p;
      }
      list += (i > 1 ? ", " : "") + std::to_string(position);
    }
    return "[" + list + "]";
  };
  auto design = [&](int i) -> const vb::ToolbarButton& {
    return chooser.ToolbarCartas(i <= 5 ? 1 : 2).Button(2 * (i <= 5 ? i : i - 5));
  };
  auto preview = [&](int i) -> const vb::ToolbarButton& {
    return chooser.ToolbarCartas(3).Button(2 * i);
  };
  return ", \"Selecionado\": " + std::to_string(chooser.Selecionado) +
         ", \"places\": " + positions(design, 10) + ", \"preview\": " + positions(preview, 5);
}

}  // namespace

bool Session::PlayMenu(const std::string& line, int line_number) {
  auto refuse = [&] {
    Emit("illegal", "\"line\": " + std::to_string(line_number));
    return false;
  };
  // menu WORD [ARGUMENT ...]: the word first, then what it takes.
  std::size_t pos = line.find("menu") + 4;
  const std::size_t word_start = line.find_first_not_of(" \t", pos);
  if (word_start == std::string::npos || word_start == pos) return refuse();
  const std::size_t word_end = line.find_first_of(" \t#", word_start);
  const std::string word = line.substr(word_start, word_end - word_start);
  const std::string rest = word_end == std::string::npos ? "" : line.substr(word_end);
  const MenuWord* menu = nullptr;
  for (const MenuWord& m : kMenuWords)
    if (word == m.word) menu = &m;
  if (!menu) return refuse();

  std::deque<DialogStep> steps;
  const std::vector<std::string> args = Words(rest);
  switch (menu->argument) {
    case Argument::None:
      if (!args.empty()) return refuse();
      break;
    case Argument::Count:
    case Argument::Milliseconds: {
      std::int64_t n = 0;
      const bool count = menu->argument == Argument::Count;
      if (args.size() != 1 || !ReadCount(args[0], count ? kMostPresses : kMostMilliseconds, n) ||
          (!count && !impl_->host.CanRunFor(n)))
        return refuse();
      if (count) {
        for (std::int64_t i = 0; i < n; ++i)
          steps.push_back({DialogStep::Press, "Command1", -1, 0, "", 0});
      } else {
        steps.push_back({DialogStep::Wait, "", -1, 0, "", n});
      }
      break;
    }
    case Argument::Text: {
      std::size_t at = rest.find_first_not_of(" \t");
      std::string text;
      if (at == std::string::npos || !ReadJsonString(rest, at, text)) return refuse();
      const std::size_t after = rest.find_first_not_of(" \t", at);
      if (after != std::string::npos && rest[after] != '#') return refuse();
      steps.push_back({DialogStep::Type, "Text1", -1, 0, text, 0});
      break;
    }
    case Argument::Designs:
      for (const std::string& a : args) {
        std::int64_t design = 0;
        if (a == "aplicar") {
          steps.push_back({DialogStep::Press, "Command1", -1, 0, "", 0});
        } else if (a == "desfazer") {
          steps.push_back({DialogStep::Press, "Command2", -1, 0, "", 0});
        } else if (ReadCount(a, 10, design) && design >= 1) {
          // Designs 1 to 5 on the even buttons of the first toolbar, 6 to 10 on the second.
          const int d = static_cast<int>(design);
          steps.push_back({DialogStep::PressButton, "ToolbarCartas", d <= 5 ? 1 : 2,
                           2 * (d <= 5 ? d : d - 5), "", 0});
        } else {
          return refuse();
        }
      }
      break;
  }
  steps.push_back({DialogStep::Close, "", -1, 0, "", 0});

  if (over()) return refuse();
  auto& f = Frm_Principal();
  auto& engine = vb::Engine::Get();
  vb::Input in;
  in.type = vb::Input::Type::Menu;
  in.form = &f;
  in.control = menu->entry;
  in.target = f.Find(menu->entry);
  // The popup opens between hands only, over the table, with no dialog open.
  if (!f.Visible || Fase != 50 || engine.TopModal() || !engine.Accepts(in)) return refuse();
  impl_->dialog = std::move(steps);
  impl_->dialog_form = nullptr;
  Run([&] { engine.Deliver(in); }, in.target == &f.MnuSair ? "quit" : "menu");
  impl_->dialog.clear();
  impl_->dialog_form = nullptr;
  return true;
}

bool Session::DriveDialog() {
  vb::Form* top = vb::Engine::Get().TopModal();
  if (impl_->dialog.empty() || !top) return false;
  if (!impl_->dialog_form) {
    // The dialog has just opened.
    impl_->dialog_form = top;
    EmitDialog(*top);
    return true;
  }
  if (top != impl_->dialog_form) return false;
  const DialogStep step = impl_->dialog.front();
  impl_->dialog.pop_front();
  auto& engine = vb::Engine::Get();
  vb::Input in;
  in.form = top;
  switch (step.kind) {
    case DialogStep::Press:
    case DialogStep::PressButton:
      in.type =
          step.kind == DialogStep::Press ? vb::Input::Type::Click : vb::Input::Type::ButtonClick;
      in.control = step.control;
      in.index = step.index;
      in.button = step.button;
      in.target = top->Find(step.control, step.index);
      engine.Deliver(in);
      EmitDialog(*top);
      break;
    case DialogStep::Type:
      in.type = vb::Input::Type::Type;
      in.control = step.control;
      in.target = top->Find(step.control);
      in.text = step.text;
      engine.Deliver(in);
      break;
    case DialogStep::Wait:
      impl_->host.RunFor(step.ms);
      break;
    case DialogStep::Close:
      in.type = vb::Input::Type::Close;
      impl_->dialog.clear();
      engine.Deliver(in);
      break;
  }
  return true;
}

void Session::EmitDialog(const vb::Form& form) {
  std::string fields = "\"form\": " + Json(form.Name());
  auto caption = [&](const char* name) {
    const vb::Control* c = form.Find(name);
    fields += ", " + Json(name) + ": " + Json(c ? c->Caption.get() : "");
  };
  auto text = [&](const char* name) {
    const vb::Control* c = form.Find(name);
    fields += ", " + Json(name) + ": " + Json(c ? c->Text.get() : "");
  };
  const std::string& name = form.Name();
  if (name == "FrmNumerodeCartas" || name == "FrmNumerodeFichas") {
    caption("Label1");
    caption("Label2");
  } else if (name == "FrmQuantasCartas") {
    caption("Label1");
  } else if (name == "FrmValordaFicha" || name == "frmMeuNome" || name == "FrmTrapassa") {
    text("Text1");
  } else if (name == "frmAbout") {
    caption("lblVersion");
  } else if (name == "FrmSelFundos") {
    fields += ChooserFields(static_cast<const FrmSelFundos&>(form));
  }
  Emit("dialog", fields);
}

void Session::EmitState() {
  auto& f = Frm_Principal();
  auto number = [](long long n) { return std::to_string(n); };
  std::string s;
  auto field = [&](const char* key, const std::string& value) {
    if (!s.empty()) s += ", ";
    s += "\"" + std::string(key) + "\": " + value;
  };
  field("NroCartas", number(NroCartas));
  field("NroFichas", number(NroFichas));
  field("MaxTroca", number(MaxTroca));
  field("ValorFicha", SingleNumber(ValorFicha));
  field("MeuNome", Json(MeuNome));
  field("FullMataCor", Flag(FullMataCor));
  field("TrioMataEscada", Flag(TrioMataEscada));
  field("LimiteAbertura", Flag(LimiteAbertura));
  field("LimiteFichas", number(LimiteFichas));
  field("EfeitosOn", Flag(EfeitosOn));
  field("MusicaOn", Flag(MusicaOn));
  field("Trilha", number(Trilha));
  field("TocandoEfeito", number(TocandoEfeito));
  field("MusicTime", number(MusicTime));
  field("Dorso", number(Dorso));
  field("VerBaralho", Flag(VerBaralho));
  field("VerCartas", Flag(VerCartas));
  field("NroMao", number(NroMao));
  field("Fase", number(Fase));
  field("JogoEmpatado", Flag(JogoEmpatado));
  field("FichasPlayer", number(FichasPlayer));
  field("FichasPoker", number(FichasPoker));
  field("MesaPingo", number(MesaPingo));
  field("LabelPlayerCaption", Json(f.LabelPlayerCaption(0).Caption.get()));
  field("Width", number(f.Width));
  field("Height", number(f.Height));
  std::string menu;
  for (const vb::Control* e : {&f.MnuLimite, &f.MnuFullxCor, &f.MnuTrioXEscada, &f.MnuMusica,
                               &f.MnuEfeitos, &f.MnuTrapassa, &f.MnuVerBaralho, &f.MnuVerCartas}) {
    if (!menu.empty()) menu += ", ";
    menu += Json(e->Name()) + ": [" + Flag(e->Checked) + ", " + Flag(e->Enabled) + ", " +
            Flag(e->Visible) + "]";
  }
  field("menu", "{" + menu + "}");
  Emit("state", s);
}

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
  if (Fase == 50 && !engine.TopModal()) {
    for (const MenuWord& m : kMenuWords) {
      const vb::Control* entry = f.Find(m.entry);
      if (engine.Accepts(T::Menu, &f, entry)) actions.push_back(m.sample);
    }
  }
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
