// The event loop of the form engine. The game has no main loop: handlers run on one thread, and
// a running handler hands control back to the queue with DoEvents() while it waits, so that
// input and timers are served inside it, as nested handlers.
//
// One interface, two hosts: the virtual clock for tests and the replay tool (platform/), and the
// desktop's Qt loop (app/). Timers behave the same in both, since the engine keeps them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/forms.h"

namespace vb {

enum class EndHow {
  Unloaded,  // the main form unloaded: its unload event ran
  End,       // the runtime's End: at once, no unload event
  HungClose  // the window of a hung program was closed
};

// Thrown through the game when the program ends inside a handler (headless hosts only; the
// desktop process simply exits).
struct ProgramEnded {
  int status;
  EndHow how;
};

// The program stopped responding: thrown by the headless host where the desktop shows the hung
// window until it is closed.
struct ProgramHung {};

// One action of the player.
struct Input {
  enum class Type { Click, Key, MouseDown, ButtonClick, Menu, Type, Close };
  Type type = Type::Click;
  Form* form = nullptr;
  std::string control;  // name of the control (empty: the form itself)
  int index = -1;       // index in its control array
  // The control named, when the caller has it at hand already (saves the look-up by name).
  Control* target = nullptr;
  int button = 0;    // toolbar button number, or mouse button (2 = right)
  int key_code = 0;  // for Key: the key code (13 Enter, 32 Space, 37..40 arrows, 9 Tab)
  int shift = 0;
  std::string text;  // for Type
  std::string Describe() const;
};

class Host {
 public:
  virtual ~Host() = default;
  virtual std::int64_t Now() const = 0;
  // Serves what is pending (input, due timers) once; when nothing is, waits for the next thing
  // and serves it. It never spins.
  virtual void ServeEvents() = 0;
  virtual void TimersChanged() {}
  [[noreturn]] virtual void EndProgram(int status, EndHow how) = 0;
  // The program no longer responds; returns never.
  [[noreturn]] virtual void Hang() = 0;
  virtual void PopupMenu(Control& menu) { (void)menu; }
};

class Engine {
 public:
  static Engine& Get() {
    static Engine engine;
    return engine;
  }

  void SetHost(Host* host) { host_ = host; }
  Host& host() const { return *host_; }
  bool has_host() const { return host_ != nullptr; }
  std::int64_t Now() const { return host_ ? host_->Now() : 0; }

  // Forms that exist, the main one first.
  void Register(Form& form);
  void Forget(Form& form);
  const std::vector<Form*>& forms() const { return forms_; }
  Form* MainForm() const;

  void AddListener(Listener* listener);
  void RemoveListener(Listener* listener);
  void Changed(Control& control, Prop prop, int sub) {
    if (!listeners_.empty()) Tell(control, prop, sub);
  }

  // Forms: show (a modal show returns when the form has unloaded), unload, and the two ends.
  void Load(Form& form);  // loads without showing; the Load event runs, timers start
  void Show(Form& form, bool modal = false);
  void Unload(Form& form);
  [[noreturn]] void End();
  [[noreturn]] void Hang();
  bool hung() const { return hung_; }
  Form* TopModal() const { return modal_.empty() ? nullptr : modal_.back(); }

  // Timers.
  void TimerChanged(Control& timer, Prop prop);
  std::int64_t NextTimerDue() const;  // -1: none
  bool FireDueTimers();               // fires every timer due by now; whether any fired

  // Focus events wait in the queue: LostFocus of the control that lost the focus, then GotFocus
  // of the one that took it. They run when the code that moved the focus hands control back: after
  // the handler of an input or a tick, and whenever events are served. Whether any ran.
  void PostFocusEvents(Control* lost, Control* got);
  bool RunFocusEvents();

  // The player's input: runs the handler at once (nested, when a handler is waiting). Returns
  // false when the screen would refuse it (control hidden, disabled, missing, behind a modal
  // form, or the program hung).
  bool Deliver(const Input& input);
  bool Accepts(const Input& input) const;
  // The same question for a control already found (`target` null for a missing one): input of
  // `type` on `target` of `form`, toolbar button `button` for a ButtonClick. For callers that ask
  // it often, as the random player of the soak does.
  bool Accepts(Input::Type type, const Form* form, const Control* target, int button = 0) const;

  void PopupMenu(Control& menu);

  // Every form and listener forgotten, timers stopped: a fresh process for the next test.
  void Reset();

 private:
  Control* Target(const Input& input) const;
  void Tell(Control& control, Prop prop, int sub);
  // Every timer_due is written here, in the engine, which keeps the earliest of them.
  void TimersMoved() { next_due_known_ = false; }
  Host* host_ = nullptr;
  mutable std::int64_t next_due_ = -1;
  mutable bool next_due_known_ = false;
  std::vector<Form*> forms_;
  std::vector<Listener*> listeners_;
  std::vector<Form*> modal_;
  bool hung_ = false;
  struct FocusEvent {
    Control* control;
    bool got;
  };
  std::vector<FocusEvent> focus_events_;
};

// The runtime's DoEvents: hand control to the event queue once.
void DoEvents();

// The hung window's title gains this.
inline constexpr const char* kNotResponding = " (Não está respondendo)";

}  // namespace vb
