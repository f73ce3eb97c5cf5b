#include "platform/engine.h"

#include <algorithm>
#include <exception>
#include <stdexcept>

#include "platform/runtime.h"

namespace vb {

std::string Input::Describe() const {
  static const char* names[] = {"click", "key", "mousedown", "button", "menu", "type", "close"};
  std::string s = names[static_cast<int>(type)];
  s += " " + (control.empty() ? (form ? form->Name() : std::string("?")) : control);
  // Appended piece by piece: GCC 12 at -O3 warns falsely (-Wrestrict) inside std::string when a
  // text is put in front of a temporary one.
  if (index >= 0) (s += '(') += std::to_string(index) + ")";
  if (type == Type::ButtonClick || type == Type::MouseDown) (s += " #") += std::to_string(button);
  if (type == Type::Key) (s += " key ") += std::to_string(key_code);
  return s;
}

void Engine::Register(Form& form) {
  if (std::find(forms_.begin(), forms_.end(), &form) == forms_.end()) forms_.push_back(&form);
  TimersMoved();
}

void Engine::Forget(Form& form) {
  std::erase_if(focus_events_, [&](const FocusEvent& e) { return &e.control->form() == &form; });
  forms_.erase(std::remove(forms_.begin(), forms_.end(), &form), forms_.end());
  TimersMoved();
  modal_.erase(std::remove(modal_.begin(), modal_.end(), &form), modal_.end());
}

Form* Engine::MainForm() const {
  for (Form* f : forms_)
    if (f->is_main) return f;
  return nullptr;
}

void Engine::AddListener(Listener* listener) {
  listeners_.push_back(listener);
}
void Engine::RemoveListener(Listener* listener) {
  listeners_.erase(std::remove(listeners_.begin(), listeners_.end(), listener), listeners_.end());
}

void Engine::Tell(Control& control, Prop prop, int sub) {
  for (std::size_t i = 0; i < listeners_.size(); ++i) listeners_[i]->Changed(control, prop, sub);
}

void Engine::Reset() {
  for (Form* f : forms_) {
    f->loaded_ = false;
    f->active_ = nullptr;
  }
  forms_.clear();
  TimersMoved();
  listeners_.clear();
  modal_.clear();
  focus_events_.clear();
  hung_ = false;
}

// --- forms -----------------------------------------------------------------------------------

void Engine::Load(Form& form) {
  Register(form);
  if (form.loaded_) return;
  form.loaded_ = true;
  // Timers enabled at design start counting when their form loads.
  for (Control* t : form.timers())
    if (t->Enabled) TimerChanged(*t, Prop::Enabled);
  Changed(form, Prop::Loaded, 1);
  if (form.Load) form.Load();
}

void Engine::Show(Form& form, bool modal) {
  Load(form);
  if (!form.loaded_) return;  // it unloaded itself while loading
  form.modal = modal;
  form.Visible = true;
  if (!modal) return;
  modal_.push_back(&form);
  // A dialog opens with the focus on its first tab stop, then activates.
  if (!form.ActiveControl()) {
    for (Control* c : form.TabStops()) {
      if (c->CanTakeFocus()) {
        form.FocusTo(c);
        break;
      }
    }
  }
  if (form.Activate) form.Activate();
  while (form.loaded_) DoEvents();
  modal_.erase(std::remove(modal_.begin(), modal_.end(), &form), modal_.end());
}

void Engine::Unload(Form& form) {
  if (!form.loaded_) return;
  int cancel = 0;
  if (form.Unload) form.Unload(cancel);
  form.loaded_ = false;
  for (Control* t : form.timers()) t->timer_due = -1;
  TimersMoved();
  if (host_) host_->TimersChanged();
  form.active_ = nullptr;
  form.Visible = false;
  Changed(form, Prop::Loaded, 0);
  if (form.is_main) host_->EndProgram(0, EndHow::Unloaded);
}

void Engine::End() {
  host_->EndProgram(0, EndHow::End);
  std::terminate();  // a host never comes back from ending the program
}

void Engine::Hang() {
  hung_ = true;
  for (Form* f : forms_)
    for (Control* t : f->timers()) t->timer_due = -1;
  TimersMoved();
  if (Form* main = MainForm()) main->Caption = main->Caption.get() + kNotResponding;
  host_->Hang();
  std::terminate();
}

void Engine::PopupMenu(Control& menu) {
  if (host_) host_->PopupMenu(menu);
}

// --- timers ----------------------------------------------------------------------------------

void Engine::TimerChanged(Control& timer, Prop prop) {
  TimersMoved();
  if (!timer.form().Loaded() || hung_) {
    timer.timer_due = -1;
  } else if (!timer.Enabled || timer.Interval <= 0) {
    timer.timer_due = -1;
  } else if (prop == Prop::Interval || timer.timer_due < 0) {
    // Setting the interval restarts the count; enabling a running timer does not.
    timer.timer_due = Now() + timer.Interval;
  }
  if (host_) host_->TimersChanged();
}

std::int64_t Engine::NextTimerDue() const {
  if (next_due_known_) return next_due_;
  std::int64_t next = -1;
  for (Form* f : forms_)
    for (Control* t : f->timers())
      if (t->timer_due >= 0 && (next < 0 || t->timer_due < next)) next = t->timer_due;
  next_due_ = next;
  next_due_known_ = true;
  return next;
}

bool Engine::FireDueTimers() {
  if (hung_) return false;
  const std::int64_t now = Now();
  if (const std::int64_t next = NextTimerDue(); next < 0 || next > now) return false;
  // The ticks due, earliest first, then in their fixed order; among equals, forms in order and
  // timers in order of creation. A game has a handful of timers: they are gathered on the stack
  // and placed by insertion, which keeps equals in the order they came.
  constexpr std::size_t kOnStack = 16;
  Control* on_stack[kOnStack];
  std::vector<Control*> spill;
  Control** due = on_stack;
  std::size_t n = 0;
  const auto before = [](const Control* a, const Control* b) {
    return a->timer_due != b->timer_due ? a->timer_due < b->timer_due
                                        : a->timer_order < b->timer_order;
  };
  for (Form* f : forms_) {
    for (Control* t : f->timers()) {
      if (t->timer_due < 0 || t->timer_due > now) continue;
      if (n == kOnStack) spill.assign(on_stack, on_stack + n);
      if (n >= kOnStack) {
        spill.push_back(t);
        due = spill.data();
      }
      std::size_t i = n++;
      for (; i > 0 && before(t, due[i - 1]); --i) due[i] = due[i - 1];
      due[i] = t;
    }
  }
  if (n == 0) return false;
  bool fired = false;
  for (std::size_t k = 0; k < n; ++k) {
    Control* t = due[k];
    // An earlier tick may have stopped or restarted this one.
    if (t->timer_due < 0 || t->timer_due > now) continue;
    t->timer_due = now + t->Interval;
    TimersMoved();
    if (t->timer_busy) continue;  // a tick never runs inside its own handler
    fired = true;
    t->timer_busy = true;
    struct Done {
      Control* t;
      ~Done() { t->timer_busy = false; }
    } done{t};
    if (t->TimerEvent) t->TimerEvent();
    RunFocusEvents();
  }
  return fired;
}

void Engine::PostFocusEvents(Control* lost, Control* got) {
  if (lost && lost->LostFocus) focus_events_.push_back({lost, false});
  if (got && got->GotFocus) focus_events_.push_back({got, true});
}

bool Engine::RunFocusEvents() {
  bool ran = false;
  while (!focus_events_.empty()) {
    const FocusEvent e = focus_events_.front();
    focus_events_.erase(focus_events_.begin());
    if (!e.control->form().Loaded()) continue;
    ran = true;
    if (e.got) {
      e.control->GotFocus();
    } else {
      e.control->LostFocus();
    }
  }
  return ran;
}

// --- input -----------------------------------------------------------------------------------

Control* Engine::Target(const Input& input) const {
  if (!input.form) return nullptr;
  if (input.control.empty()) return input.form;
  if (input.target) return input.target;
  Control* c = input.form->Find(input.control, input.index);
  if (input.type == Input::Type::Key && input.control.empty()) return input.form->ActiveControl();
  return c;
}

bool Engine::Accepts(const Input& input) const {
  if (hung_) return input.type == Input::Type::Close && input.form && input.form->is_main;
  if (!input.form || !input.form->Loaded()) return false;
  if (input.type == Input::Type::Close) return true;
  const Control* c = input.type == Input::Type::Key && input.control.empty()
                         ? input.form->ActiveControl()
                         : Target(input);
  return Accepts(input.type, input.form, c, input.button);
}

bool Engine::Accepts(Input::Type type, const Form* form, const Control* c, int button) const {
  if (hung_) return type == Input::Type::Close && form && form->is_main;
  if (!form || !form->Loaded()) return false;
  if (type == Input::Type::Close) return true;
  // A modal form takes all input while it is up.
  if (Form* top = TopModal(); top && top != form) return false;
  if (!form->Visible) return false;
  if (!c) return false;
  if (type == Input::Type::Menu) {
    for (const Control* m = c; m; m = m->parent())
      if (!m->Visible || !m->Enabled) return false;
    return true;
  }
  if (!c->EffectivelyVisible() || !c->EffectivelyEnabled()) return false;
  if (type == Input::Type::ButtonClick) {
    const auto& buttons = c->Buttons();
    if (button < 1 || button > static_cast<int>(buttons.size())) return false;
    return buttons[static_cast<std::size_t>(button - 1)]->Enabled();
  }
  return true;
}

bool Engine::Deliver(const Input& input) {
  if (!Accepts(input)) return false;
  if (input.type == Input::Type::Close) {
    if (hung_) host_->EndProgram(0, EndHow::HungClose);
    Form* main = MainForm();
    if (input.form->is_main || input.form->close_ends_game) {
      if (main) Unload(*main);
      host_->EndProgram(0, EndHow::Unloaded);
    }
    Unload(*input.form);
    return true;
  }
  // Focus events still waiting come first: they were queued before this input.
  RunFocusEvents();
  Control* c = input.type == Input::Type::Key && input.control.empty() ? input.form->ActiveControl()
                                                                       : Target(input);
  if (!c) return false;
  switch (input.type) {
    case Input::Type::Click:
      // The press takes the focus, and its LostFocus and GotFocus run before the click; the click
      // runs even if a LostFocus handler moved the focus on.
      if (c->CanTakeFocus()) input.form->FocusTo(c);
      RunFocusEvents();
      if (c->Click) c->Click();
      break;
    case Input::Type::Key: {
      if (input.key_code == 9) {
        input.form->SendKeys(input.shift ? "+{TAB}" : "{TAB}");
        break;
      }
      if (c->KeyDown) c->KeyDown(input.key_code, input.shift);
      int ascii = input.key_code == 13 || input.key_code == 32 ? input.key_code : 0;
      if (ascii && c->kind() == Kind::CommandButton) {
        if (c->Click) c->Click();
      } else if (ascii && c->KeyPress) {
        c->KeyPress(ascii);
      }
      break;
    }
    case Input::Type::MouseDown:
      if (c->MouseDown) c->MouseDown(input.button, input.shift);
      break;
    case Input::Type::ButtonClick:
      if (c->ButtonClick) c->ButtonClick(c->Button(input.button));
      break;
    case Input::Type::Menu:
      if (c->Click) c->Click();
      break;
    case Input::Type::Type:
      c->Text = input.text;
      break;
    case Input::Type::Close:
      break;
  }
  RunFocusEvents();
  return true;
}

void DoEvents() {
  Engine& e = Engine::Get();
  if (!e.has_host()) throw std::logic_error("DoEvents with no event loop");
  e.host().ServeEvents();
}

}  // namespace vb
