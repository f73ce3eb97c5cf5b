#include "front/front.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "front/guard.h"
#include "front/names.h"

namespace front {
namespace {

// The old window's frame round its client area: the form's size counts it, ours does not.
constexpr int kChromeWidth = 8;
constexpr int kChromeHeight = 34;

// A picture the player acts on reads as a button to a screen reader, and can be pressed by one.
class PictureAccessible : public QAccessibleWidget {
 public:
  explicit PictureAccessible(PictureWidget* w)
      : QAccessibleWidget(w,
                          Actionable(w->control()) ? QAccessible::Button : QAccessible::Graphic) {}
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (role() == QAccessible::Button) names.prepend(pressAction());
    return names;
  }
  void doAction(const QString& name) override {
    if (name == pressAction() && role() == QAccessible::Button) {
      static_cast<PictureWidget*>(widget())->Press();
      return;
    }
    QAccessibleWidget::doAction(name);
  }
  static bool Actionable(const vb::Control& c) { return c.Click || c.MouseDown || c.TabIndex >= 0; }
};

QAccessibleInterface* AccessibleFactory(const QString& class_name, QObject* object) {
  if (class_name == QLatin1String("front::PictureWidget"))
    return new PictureAccessible(static_cast<PictureWidget*>(object));
  return nullptr;
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
  static bool factory = false;
  if (!factory) {
    QAccessible::installFactory(AccessibleFactory);
    factory = true;
  }
  vb::Engine::Get().AddListener(this);
  qApp->installEventFilter(this);
}

Front::~Front() {
  qApp->removeEventFilter(this);
  vb::Engine::Get().RemoveListener(this);
  for (FormWindow* w : std::as_const(windows_)) delete w;
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
  auto* win =
      new FormWindow(form, [this, &form] { Deliver(InputOn(vb::Input::Type::Close, form)); });
  widgets_[&form] = win;
  controls_[win] = &form;
  windows_[&form] = win;
  BuildMissing(form);
  ApplyAll(form);
  return win;
}

void Front::BuildMissing(vb::Form& form) {
  FormWindow* win = windows_.value(&form);
  std::vector<vb::Control*> made;
  // A control comes after its container in the form's list.
  for (const auto& up : form.controls()) {
    vb::Control& c = *up;
    if (widgets_.contains(&c)) continue;
    QWidget* parent = c.parent() ? widgets_.value(c.parent()) : win;
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
        if (c.Width > 0 && c.Height > 0)
          w->setFixedSize(std::max(1, Px(c.Width) - kChromeWidth),
                          std::max(1, Px(c.Height) - kChromeHeight));
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
      w->setAccessibleName(AccessibleName(c));
      w->update();
      break;
    case vb::Prop::Visible:
      w->setVisible(c.Visible);
      break;
    case vb::Prop::Enabled:
      w->setEnabled(c.Enabled);
      break;
    case vb::Prop::Geometry: {
      const bool line = c.kind() == vb::Kind::Line;
      const int thick = std::max(1, c.BorderWidth);
      w->setGeometry(Px(c.Left), Px(c.Top), std::max(line ? thick : 0, Px(c.Width)),
                     std::max(line ? thick : 0, Px(c.Height)));
      break;
    }
    case vb::Prop::Picture:
      w->setAccessibleName(AccessibleName(c));
      w->setAccessibleDescription(QString::fromStdString(c.Picture));
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
  const QString look = QStringLiteral("%1|%2|%3|%4|%5|%6")
                           .arg(c.BackColor)
                           .arg(c.ForeColor)
                           .arg(c.HasBackColor)
                           .arg(QString::fromStdString(c.font.name))
                           .arg(c.font.size)
                           .arg(c.font.bold);
  if (w->property("pokerzeva_look").toString() == look) return;
  w->setProperty("pokerzeva_look", look);
  if (c.kind() != vb::Kind::Form) w->setFont(FontOf(c.font));
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
      const QString back = c.HasBackColor ? Hex(c.BackColor) : QStringLiteral("#d4d0c8");
      w->setStyleSheet(
          QStringLiteral("QPushButton{background-color:%1;color:%2;padding:0px;border:1px solid;"
                         "border-color:#ffffff #404040 #404040 #ffffff;}"
                         "QPushButton:focus{border-color:#000000;}"
                         "QPushButton:pressed{border-color:#404040 #ffffff #ffffff #404040;"
                         "padding-left:2px;padding-top:2px;}"
                         "QPushButton:disabled{color:#808080;}")
              .arg(back, Hex(c.ForeColor)));
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
  const Qt::WindowModality modality = form.modal ? Qt::ApplicationModal : Qt::NonModal;
  if (!want) {
    win->hide();
    return;
  }
  if (win->isVisible() && win->windowModality() == modality) return;
  win->hide();
  win->setWindowModality(modality);
  if (!form.is_main) {
    vb::Form* main = vb::Engine::Get().MainForm();
    if (FormWindow* owner = main ? windows_.value(main) : nullptr; owner && owner->isVisible()) {
      win->winId();
      win->windowHandle()->setTransientParent(owner->windowHandle());
    }
  }
  if (!win->placed) Place(*win);
  win->show();
  win->activateWindow();
  // A menu that opened the dialog hands the focus back to the table as it closes, after this:
  // the dialog takes it once more when the queue is served.
  if (form.modal) QTimer::singleShot(0, win, [win] { win->activateWindow(); });
  if (vb::Control* active = form.ActiveControl())
    if (QWidget* w = widgets_.value(active)) w->setFocus(Qt::ActiveWindowFocusReason);
}

void Front::Place(FormWindow& win) {
  win.placed = true;
  const vb::Form& form = win.form();
  if (form.Left != 0 || form.Top != 0) {
    win.move(Px(form.Left), Px(form.Top));
    return;
  }
  // Centred on the main window for a dialog, else on the screen.
  QRect over;
  vb::Form* main = vb::Engine::Get().MainForm();
  if (FormWindow* owner = main && main != &form ? windows_.value(main) : nullptr;
      owner && owner->isVisible()) {
    over = owner->frameGeometry();
  } else if (QScreen* screen = QGuiApplication::primaryScreen()) {
    over = screen->availableGeometry();
  }
  if (over.isValid()) win.move(over.center() - QPoint(win.width() / 2, win.height() / 2));
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
    if (!c.MouseDown) return false;
    down.button = 2;
    Deliver(down);
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
  const int code = KeyCodeOf(ke->key());
  if (code == 0) return false;
  // Esc closes a dialog as its close box does; so does Enter in its text box, the way a player
  // ends typing a name or a value.
  if (!win->form().is_main && (code == 27 || (code == 13 && qobject_cast<QLineEdit*>(w)))) {
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
