#include "front/front.h"

#include <QAccessible>
#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "front/accessible.h"
#include "front/guard.h"
#include "front/menus.h"
#include "front/names.h"
#include "front/scaling.h"

namespace front {
namespace {

// The old window's frame round its client area: the form's size counts it, ours does not.
constexpr int kChromeWidth = 8;
constexpr int kChromeHeight = 34;
// A window manager's frame, as far as we can tell before the window is first shown.
const QMargins kFrame(4, 30, 4, 4);

// A reader hears the new text of a live control; any other name change is just noted.
void Announce(QWidget* w, bool live = true) {
  QAccessibleEvent changed(w, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&changed);
  if (!live) return;
  QAccessibleEvent alert(w, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

int ShiftOf(Qt::KeyboardModifiers m) {
  return (m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) |
         (m & Qt::AltModifier ? 4 : 0);
}

// The old key codes: letters and digits are their capital ASCII, the rest as the runtime named
// them. 0 for keys the game never hears.
int KeyCodeOf(int key) {
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return key;
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return 112 + (key - Qt::Key_F1);
  switch (key) {
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Space:
      return 32;
    case Qt::Key_PageUp:
      return 33;
    case Qt::Key_PageDown:
      return 34;
    case Qt::Key_End:
      return 35;
    case Qt::Key_Home:
      return 36;
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Insert:
      return 45;
    case Qt::Key_Delete:
      return 46;
    default:
      return 0;
  }
}

vb::Input InputOn(vb::Input::Type type, vb::Control& c) {
  vb::Input in;
  in.type = type;
  in.form = &c.form();
  if (&c != &c.form()) {
    in.control = c.Name();
    in.index = c.Index();
  }
  return in;
}

bool Windowless(vb::Kind kind) {
  return kind == vb::Kind::Label || kind == vb::Kind::Shape || kind == vb::Kind::Line;
}

QString Hex(std::uint32_t rgb) {
  return ColorOf(rgb).name();
}

}  // namespace

void PictureWidget::Press() {
  emit pressed();
}

Front::Front() {
  InstallAccessibility([this](const QObject* o) { return controls_.value(o); });
  vb::Engine::Get().AddListener(this);
  qApp->installEventFilter(this);
}

Front::~Front() {
  qApp->removeEventFilter(this);
  vb::Engine::Get().RemoveListener(this);
  InstallAccessibility(nullptr);
  // Dialogs go with the table's window, their parent.
  QList<QPointer<FormWindow>> all;
  for (FormWindow* w : std::as_const(windows_)) all << w;
  for (const QPointer<FormWindow>& w : all) delete w.data();
}

QWidget* Front::WidgetOf(const vb::Control& control) const {
  return widgets_.value(&control);
}
FormWindow* Front::WindowOf(const vb::Form& form) const {
  return windows_.value(&form);
}
vb::Control* Front::ControlOf(const QObject* widget) const {
  return controls_.value(widget);
}

ToolbarButtonWidget* Front::ButtonOf(const vb::Control& toolbar, int index) const {
  auto* bar = qobject_cast<ToolbarWidget*>(widgets_.value(&toolbar));
  if (!bar || index < 1 || index > static_cast<int>(bar->buttons().size())) return nullptr;
  return bar->buttons()[index - 1];
}

// --- building ----------------------------------------------------------------------------------

FormWindow* Front::Build(vb::Form& form) {
  // A dialog belongs to the table's window: it stays above it and is centred on it.
  FormWindow* owner = nullptr;
  if (vb::Form* main = vb::Engine::Get().MainForm(); main && main != &form)
    owner = windows_.value(main);
  auto* win = new FormWindow(
      form, owner, [this, &form] { Deliver(InputOn(vb::Input::Type::Close, form)); },
      [this, &form] { Rescale(form); });
  widgets_[&form] = win;
  controls_[win] = &form;
  windows_[&form] = win;
  BuildMissing(form);
  ApplyAll(form);
  // The table opens as large as sits comfortably on its screen; a dialog at the table's scale.
  if (form.is_main) {
    if (QScreen* screen = ScreenFor(nullptr))
      win->SetScale(OpeningScale(win->base(), screen->availableGeometry(), kFrame));
  } else if (owner) {
    win->SetScale(owner->scale());
  }
  return win;
}

QScreen* Front::ScreenFor(const QWidget* over) const {
  if (over && over->isVisible() && over->screen()) return over->screen();
  if (QScreen* s = QGuiApplication::screenAt(QCursor::pos())) return s;
  return QGuiApplication::primaryScreen();
}

void Front::Rescale(vb::Form& form) {
  FormWindow* win = windows_.value(&form);
  if (!win) return;
  for (const auto& c : form.controls()) {
    QWidget* w = widgets_.value(c.get());
    if (!w) continue;
    ApplyLook(*c, w);
    Apply(*c, vb::Prop::Geometry, 0);
    if (auto* bar = qobject_cast<ToolbarWidget*>(w)) bar->Layout();
  }
  win->update();
  // The dialogs follow the table.
  if (form.is_main)
    for (FormWindow* other : std::as_const(windows_))
      if (other != win) other->SetScale(win->scale());
}

void Front::BuildMissing(vb::Form& form) {
  FormWindow* win = windows_.value(&form);
  std::vector<vb::Control*> made;
  // A control comes after its container in the form's list.
  for (const auto& up : form.controls()) {
    vb::Control& c = *up;
    if (widgets_.contains(&c)) continue;
    QWidget* parent = c.parent() ? widgets_.value(c.parent()) : win->stage();
    if (!parent) continue;
    if (Create(c, parent)) made.push_back(&c);
  }
  if (made.empty()) return;
  Restack(form);
  for (vb::Control* c : made) ApplyAll(*c);
}

QWidget* Front::Create(vb::Control& c, QWidget* parent) {
  QWidget* w = nullptr;
  switch (c.kind()) {
    case vb::Kind::Frame:
      w = new FrameWidget(c, parent);
      break;
    case vb::Kind::Label: {
      auto* label = new QLabel(parent);
      // A label hidden from readers keeps its changes to itself: a label with a name of its own
      // tells no reader when its text changes (the music clock's line changes ten times a
      // second). What readers hear comes from the game, never from this name.
      if (c.accessible.hidden) label->setAccessibleName(QStringLiteral("-"));
      label->setTextFormat(Qt::PlainText);
      label->setWordWrap(true);
      label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
      label->setMargin(0);
      label->setIndent(0);
      w = label;
      break;
    }
    case vb::Kind::CommandButton: {
      auto* button = new QPushButton(parent);
      button->setAutoDefault(false);
      connect(button, &QPushButton::clicked, this,
              [this, &c] { Deliver(InputOn(vb::Input::Type::Click, c)); });
      w = button;
      break;
    }
    case vb::Kind::TextBox: {
      auto* edit = new QLineEdit(parent);
      connect(edit, &QLineEdit::textEdited, this, [this, &c](const QString& text) {
        vb::Input in = InputOn(vb::Input::Type::Type, c);
        in.text = text.toStdString();
        Deliver(in);
      });
      w = edit;
      break;
    }
    case vb::Kind::PictureBox: {
      auto* picture = new PictureWidget(c, parent);
      connect(picture, &PictureWidget::pressed, this,
              [this, &c] { Deliver(InputOn(vb::Input::Type::Click, c)); });
      w = picture;
      break;
    }
    case vb::Kind::Shape:
    case vb::Kind::Line:
      w = new ShapeWidget(c, parent);
      break;
    case vb::Kind::Toolbar:
      w = new ToolbarWidget(c, parent);
      break;
    default:
      return nullptr;  // timers, image stores and menus have nothing on the screen
  }
  // The focus is the game's: Qt moves it only when the game does.
  w->setFocusPolicy(c.kind() == vb::Kind::TextBox ? Qt::ClickFocus : Qt::NoFocus);
  widgets_[&c] = w;
  controls_[w] = &c;
  return w;
}

void Front::Restack(vb::Form& form) {
  // Among controls that share a container, a later one covers an earlier one; labels, shapes and
  // lines are painted on their container, beneath every control that has a window of its own;
  // a toolbar's buttons lie beneath what stands on the toolbar.
  for (const auto& c : form.controls())
    if (QWidget* w = widgets_.value(c.get()); w && !Windowless(c->kind())) w->raise();
  for (auto it = form.controls().rbegin(); it != form.controls().rend(); ++it)
    if (QWidget* w = widgets_.value(it->get()); w && Windowless((*it)->kind())) w->lower();
  for (const auto& c : form.controls())
    if (auto* bar = qobject_cast<ToolbarWidget*>(widgets_.value(c.get())))
      for (ToolbarButtonWidget* b : bar->buttons()) b->lower();
}

// --- keeping in step ---------------------------------------------------------------------------

void Front::Changed(vb::Control& c, vb::Prop prop, int sub) {
  vb::Form& form = c.form();
  if (!windows_.contains(&form)) {
    // A form gets its window when it first loads or shows.
    const bool starts = &c == &form && ((prop == vb::Prop::Loaded && form.Loaded()) ||
                                        (prop == vb::Prop::Visible && form.Visible));
    if (starts) Build(form);
    return;
  }
  if (!widgets_.contains(&c) && c.kind() != vb::Kind::ImageList) BuildMissing(form);
  Apply(c, prop, sub);
}

void Front::ApplyAll(vb::Control& c) {
  for (vb::Prop p : {vb::Prop::Caption, vb::Prop::Geometry, vb::Prop::Enabled, vb::Prop::Picture,
                     vb::Prop::Text, vb::Prop::Visible})
    Apply(c, p, 0);
  if (auto* bar = qobject_cast<ToolbarWidget*>(widgets_.value(&c))) SyncButtons(*bar);
  if (c.form().ActiveControl() == &c) Apply(c, vb::Prop::Focus, 0);
}

void Front::SyncButtons(ToolbarWidget& bar) {
  vb::Control& c = bar.control();
  bar.SyncButtons([this, &c](ToolbarButtonWidget* b) {
    controls_[b] = &c;
    connect(b, &QAbstractButton::clicked, this, [this, &c, b] {
      vb::Input in = InputOn(vb::Input::Type::ButtonClick, c);
      in.button = b->index();
      Deliver(in);
    });
  });
  bar.Layout();
  bar.Refresh(0);
}

void Front::Apply(vb::Control& c, vb::Prop prop, int sub) {
  if (c.kind() == vb::Kind::ImageList) {
    if (prop != vb::Prop::Images) return;
    for (QWidget* w : std::as_const(widgets_))
      if (auto* bar = qobject_cast<ToolbarWidget*>(w); bar && bar->control().images == &c) {
        bar->Layout();
        bar->Refresh(0);
      }
    return;
  }
  QWidget* w = widgets_.value(&c);
  if (!w) return;
  ApplyLook(c, w);

  if (c.kind() == vb::Kind::Form) {
    auto& form = static_cast<vb::Form&>(c);
    switch (prop) {
      case vb::Prop::Caption:
        w->setWindowTitle(QString::fromStdString(c.Caption));
        break;
      case vb::Prop::Geometry:
        if (c.Width > 0 && c.Height > 0) {
          auto* win = static_cast<FormWindow*>(w);
          win->SetBase(QSize(std::max(1, Px(c.Width, 1.0) - kChromeWidth),
                             std::max(1, Px(c.Height, 1.0) - kChromeHeight)));
          if (win->isVisible()) KeepOnScreen(*win);
        }
        break;
      case vb::Prop::Enabled:
        w->setEnabled(c.Enabled);
        break;
      case vb::Prop::Visible:
      case vb::Prop::Loaded:
        ShowOrHide(form);
        break;
      default:
        break;
    }
    return;
  }

  switch (prop) {
    case vb::Prop::Caption:
      if (auto* label = qobject_cast<QLabel*>(w)) {
        label->setText(QString::fromStdString(c.Caption).remove(QLatin1Char('\r')));
      } else if (auto* button = qobject_cast<QPushButton*>(w)) {
        button->setText(QString::fromStdString(c.Caption));
      }
      if (c.accessible.live) Announce(w);
      w->update();
      break;
    case vb::Prop::Visible:
      w->setVisible(c.Visible);
      break;
    case vb::Prop::Enabled:
      w->setEnabled(c.Enabled);
      break;
    case vb::Prop::Geometry: {
      const double scale = ScaleOf(w);
      const bool line = c.kind() == vb::Kind::Line;
      const int thick = std::max(1, Px(15 * c.BorderWidth, scale));
      const Span x = Scaled(c.Left, c.Width, scale);
      const Span y = Scaled(c.Top, c.Height, scale);
      w->setGeometry(x.start, y.start, std::max(line ? thick : 0, x.length),
                     std::max(line ? thick : 0, y.length));
      break;
    }
    case vb::Prop::Picture:
    case vb::Prop::Tag:
      if (c.accessible.namer) Announce(w, false);
      w->update();
      break;
    case vb::Prop::Text:
      if (auto* edit = qobject_cast<QLineEdit*>(w);
          edit && edit->text() != QString::fromStdString(c.Text))
        edit->setText(QString::fromStdString(c.Text));
      break;
    case vb::Prop::Focus:
      w->setFocus(Qt::OtherFocusReason);
      break;
    case vb::Prop::ButtonImage:
    case vb::Prop::ButtonEnabled:
    case vb::Prop::ButtonValue:
    case vb::Prop::ButtonTag:
      if (auto* bar = qobject_cast<ToolbarWidget*>(w)) {
        if (bar->buttons().size() < c.Buttons().size()) {
          SyncButtons(*bar);  // buttons added since the toolbar was drawn
        } else {
          if (prop == vb::Prop::ButtonImage) bar->Layout();
          bar->Refresh(sub);
        }
      }
      break;
    default:
      break;
  }
}

// Colours and fonts are plain fields of the model: they are read again with every change of the
// control, and applied when they differ from what the widget has.
void Front::ApplyLook(vb::Control& c, QWidget* w) {
  const double scale = ScaleOf(w);
  const QString look = QStringLiteral("%1|%2|%3|%4|%5|%6|%7")
                           .arg(scale)
                           .arg(c.BackColor)
                           .arg(c.ForeColor)
                           .arg(c.HasBackColor)
                           .arg(QString::fromStdString(c.font.name))
                           .arg(c.font.size)
                           .arg(c.font.bold);
  if (w->property("pokerzeva_look").toString() == look) return;
  w->setProperty("pokerzeva_look", look);
  if (c.kind() != vb::Kind::Form) w->setFont(FontOf(c.font, scale));
  // A frame with a colour of its own hides what lies beneath it: Qt then leaves out the
  // repainting of what it covers (the music clock's line under the table, redrawn at each tick).
  if (c.kind() == vb::Kind::Frame || c.kind() == vb::Kind::PictureBox)
    w->setAttribute(Qt::WA_OpaquePaintEvent, c.HasBackColor);
  switch (c.kind()) {
    case vb::Kind::Label:
    case vb::Kind::TextBox: {
      QPalette pal = w->palette();
      const auto text_role = c.kind() == vb::Kind::Label ? QPalette::WindowText : QPalette::Text;
      const auto back_role = c.kind() == vb::Kind::Label ? QPalette::Window : QPalette::Base;
      for (auto group : {QPalette::Active, QPalette::Inactive})
        pal.setColor(group, text_role, ColorOf(c.ForeColor));
      if (c.HasBackColor) pal.setColor(back_role, ColorOf(c.BackColor));
      w->setPalette(pal);
      if (c.kind() == vb::Kind::Label) w->setAutoFillBackground(c.HasBackColor);
      break;
    }
    case vb::Kind::CommandButton: {
      // The raised face of the old buttons, in the button's own colour.
      // The focus is the raised face drawn thick and dark, with the caption underlined by the
      // same yellow as the focus bars round the chip places and the cards.
      const QString back = c.HasBackColor ? Hex(c.BackColor) : QStringLiteral("#d4d0c8");
      const int edge = std::max(1, Px(15, scale));
      const int focus = std::max(2, Px(45, scale));
      w->setStyleSheet(
          QStringLiteral("QPushButton{background-color:%1;color:%2;padding:0px;border:%3px solid;"
                         "border-color:#ffffff #404040 #404040 #ffffff;}"
                         "QPushButton:focus{border:%4px solid #000000;"
                         "background-color:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 %1,"
                         "stop:0.8 %1,stop:0.81 #ffff00,stop:1 #ffff00);}"
                         "QPushButton:pressed{border-color:#404040 #ffffff #ffffff #404040;"
                         "padding-left:%5px;padding-top:%5px;}"
                         "QPushButton:disabled{color:#808080;}")
              .arg(back, Hex(c.ForeColor))
              .arg(edge)
              .arg(focus)
              .arg(2 * edge));
      break;
    }
    default:
      w->update();
      break;
  }
}

// --- windows -----------------------------------------------------------------------------------

void Front::ShowOrHide(vb::Form& form) {
  FormWindow* win = windows_.value(&form);
  const bool want = form.Loaded() && form.Visible;
  if (!want) {
    win->hide();
    return;
  }
  // The game keeps a modal form's hold on input itself; to the desktop every window stays free,
  // so that the table's close box is heard while a dialog or the shuffle is up.
  if (win->isVisible()) return;
  if (!form.is_main || !win->placed) Place(*win);
  win->show();
  win->activateWindow();
  // Once more when the queue is served: a menu that just closed hands the focus back to the
  // table, and a dialog opened from it must keep the keys.
  if (!form.is_main)
    QTimer::singleShot(0, win, [win] {
      if (win->isVisible()) win->activateWindow();
    });
  if (vb::Control* active = form.ActiveControl())
    if (QWidget* w = widgets_.value(active)) w->setFocus(Qt::ActiveWindowFocusReason);
}

void Front::Place(FormWindow& win) {
  win.placed = true;
  const vb::Form& form = win.form();
  QScreen* screen = ScreenFor(win.parentWidget());
  const QRect available = screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
  const QSize outer = win.size().grownBy(kFrame);
  if (form.Left != 0 || form.Top != 0) {
    const QPoint at(Px(form.Left, win.scale()), Px(form.Top, win.scale()));
    const QRect r = PlaceWithin(outer, QRect(at, outer), available);
    win.move(r.topLeft());
    return;
  }
  // A dialog centred on the table; the table centred on its screen; either kept on the screen.
  QRect over = available;
  if (QWidget* owner = win.parentWidget(); owner && owner->isVisible())
    over = owner->frameGeometry();
  win.move(PlaceWithin(outer, over, available).topLeft());
}

void Front::KeepOnScreen(FormWindow& win) {
  QScreen* screen = ScreenFor(&win);
  if (!screen || win.isMaximized() || win.isFullScreen()) return;
  const QRect available = screen->availableGeometry();
  const QMargins frame = win.frameGeometry().isValid() && win.frameGeometry() != win.geometry()
                             ? QMargins(win.geometry().left() - win.frameGeometry().left(),
                                        win.geometry().top() - win.frameGeometry().top(),
                                        win.frameGeometry().right() - win.geometry().right(),
                                        win.frameGeometry().bottom() - win.geometry().bottom())
                             : kFrame;
  const QSize outer = win.size().grownBy(frame);
  if (outer.width() > available.width() || outer.height() > available.height())
    win.SetScale(OpeningScale(win.base(), available, frame));
  win.move(PlaceWithin(win.size().grownBy(frame), win.frameGeometry(), available).topLeft());
}

// --- input -------------------------------------------------------------------------------------

void Front::Deliver(const vb::Input& input) {
  const vb::Input in = input;  // the control it names may change while the handler runs
  Guarded([&in] { vb::Engine::Get().Deliver(in); });
}

bool Front::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::WindowActivate:
      // A window behind an open dialog gives the activation on to the dialog, which stays above.
      if (vb::Form* top = vb::Engine::Get().TopModal()) {
        FormWindow* dialog = windows_.value(top);
        if (dialog && dialog != watched && dialog->isVisible() &&
            qobject_cast<FormWindow*>(watched)) {
          dialog->raise();
          dialog->activateWindow();
        }
      }
      return false;
    case QEvent::KeyPress:
      return watched->isWidgetType() && KeyEvent(static_cast<QWidget*>(watched), event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
      if (vb::Control* c = controls_.value(watched))
        return MouseEvent(static_cast<QWidget*>(watched), *c, event);
      return false;
    default:
      return false;
  }
}

// A control hears the mouse when it has a handler for it; otherwise the press goes on to its
// container, as a click on the felt reaches the table. A left press and release on the same
// control is its Click; a command button's and a toolbar button's clicks come from Qt's button.
bool Front::MouseEvent(QWidget* w, vb::Control& c, QEvent* event) {
  if (!w->isEnabled()) return false;
  auto* me = static_cast<QMouseEvent*>(event);
  const bool qt_button = qobject_cast<QAbstractButton*>(w) || qobject_cast<QLineEdit*>(w);
  if (event->type() == QEvent::MouseButtonRelease) {
    if (me->button() != Qt::LeftButton || pressed_ != w) return false;
    pressed_ = nullptr;
    if (w->rect().contains(me->position().toPoint())) Deliver(InputOn(vb::Input::Type::Click, c));
    return true;
  }
  vb::Input down = InputOn(vb::Input::Type::MouseDown, c);
  down.shift = ShiftOf(me->modifiers());
  if (me->button() == Qt::RightButton) {
    // A right press is heard only where the game listens for it; elsewhere it goes nowhere
    // (a picture or a label over the felt is no way into the menu).
    if (c.MouseDown) {
      down.button = 2;
      Deliver(down);
    }
    return true;
  }
  if (me->button() != Qt::LeftButton) return false;
  const bool has_down = static_cast<bool>(c.MouseDown);
  if (has_down) {
    down.button = 1;
    Deliver(down);
  }
  if (qt_button) return false;
  if (!c.Click) return has_down;
  pressed_ = w;
  return true;
}

// The keys go to the game, which moves its focus itself: Tab and Shift+Tab, the arrows, Space
// and Enter, letters and digits. A text box keeps its typing and its cursor keys.
bool Front::KeyEvent(QWidget* w, QEvent* event) {
  auto* win = qobject_cast<FormWindow*>(w->window());
  if (!win || windows_.value(&win->form()) != win) return false;
  auto* ke = static_cast<QKeyEvent*>(event);
  // The menu key and Shift+F10 are the right button of the keyboard: a right press on the form,
  // with the menu where the focus is.
  if (ke->key() == Qt::Key_Menu ||
      (ke->key() == Qt::Key_F10 && ke->modifiers() == Qt::ShiftModifier)) {
    vb::Form& form = win->form();
    if (!form.MouseDown) return true;
    QWidget* at = QApplication::focusWidget();
    if (!at || at->window() != win) at = win;
    SetPopupPlace(at->mapToGlobal(at->rect().center()));
    vb::Input down = InputOn(vb::Input::Type::MouseDown, form);
    down.button = 2;
    Deliver(down);
    SetPopupPlace(std::nullopt);
    return true;
  }
  const int code = KeyCodeOf(ke->key());
  if (code == 0) return false;
  // Esc closes a dialog as its close box does; so does Enter in its text box, the way a player
  // ends typing a name or a value. Not the shuffle's box, whose close ends the game.
  const vb::Form& form = win->form();
  if (!form.is_main && !form.close_ends_game &&
      (code == 27 || (code == 13 && qobject_cast<QLineEdit*>(w)))) {
    Deliver(InputOn(vb::Input::Type::Close, win->form()));
    return true;
  }
  if (qobject_cast<QLineEdit*>(w) && code != 9 && code != 13 && code != 27) return false;
  vb::Input in = InputOn(vb::Input::Type::Key, win->form());
  in.key_code = code;
  in.shift = ShiftOf(ke->modifiers()) | (ke->key() == Qt::Key_Backtab ? 1 : 0);
  Deliver(in);
  return true;
}

}  // namespace front
