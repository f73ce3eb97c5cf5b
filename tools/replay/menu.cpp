// The right-click menu in a script: the menu lines, the dialogs they play, and the state line.
#include <charconv>
#include <string>
#include <system_error>
#include <vector>

#include "core/game_state.h"
#include "platform/engine.h"
#include "replay.h"
#include "session/sel_fundos.h"
#include "session_impl.h"
#include "table/frm_principal.h"

namespace replay {

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

void Session::MenuActions(std::vector<std::string>& actions) const {
  auto& f = Frm_Principal();
  for (const MenuWord& m : kMenuWords)
    if (vb::Engine::Get().Accepts(vb::Input::Type::Menu, &f, f.Find(m.entry)))
      actions.push_back(m.sample);
}

}  // namespace replay
