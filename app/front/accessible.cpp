#include "front/accessible.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QLabel>
#include <QPushButton>

#include "front/names.h"
#include "front/widgets.h"

namespace front {
namespace {

std::function<vb::Control*(const QObject*)> g_control_of;

vb::Control* ControlOf(const QObject* o) {
  return g_control_of ? g_control_of(o) : nullptr;
}

bool IsStage(const QObject* o) {
  return o->objectName() == QLatin1String("pokerzeva_stage");
}

// Whether a widget of the game is left out of the tree (its children are not).
bool Hidden(const QWidget* w) {
  if (IsStage(w)) return true;
  if (const auto* b = qobject_cast<const ToolbarButtonWidget*>(w))
    return b->accessibleName().isEmpty() &&
           b->toolbar().AccessibleName(b->toolbar().Button(b->index())).empty();
  const vb::Control* c = ControlOf(w);
  if (!c || c->kind() == vb::Kind::Form) return false;
  if (c->accessible.hidden) return true;
  switch (c->kind()) {
    case vb::Kind::Frame:
    case vb::Kind::Toolbar:
      // A container with nothing to say lets its controls speak for it.
      return c->Caption.get().empty() && c->AccessibleName().empty();
    case vb::Kind::Shape:
    case vb::Kind::Line:
      return true;  // drawing only
    default:
      return false;
  }
}

// The children a reader sees: hidden ones replaced by their own, windows left to themselves.
void Shown(const QWidget* parent, QList<QWidget*>& out) {
  for (QObject* o : parent->children()) {
    auto* w = qobject_cast<QWidget*>(o);
    if (!w || w->isWindow()) continue;
    if (Hidden(w)) {
      Shown(w, out);
    } else {
      out.append(w);
    }
  }
}

class GameAccessible : public QAccessibleWidget {
 public:
  GameAccessible(QWidget* w, vb::Control* c) : QAccessibleWidget(w, RoleOf(w, c)), control_(c) {}

  QString text(QAccessible::Text t) const override {
    if (t == QAccessible::Name) {
      if (auto* b = qobject_cast<ToolbarButtonWidget*>(widget()))
        return QString::fromStdString(b->toolbar().AccessibleName(b->toolbar().Button(b->index())));
      if (control_) return AccessibleName(*control_);
      return QString();
    }
    if (t == QAccessible::Description && control_ && !qobject_cast<ToolbarButtonWidget*>(widget()))
      return QString::fromStdString(control_->accessible.description);
    return QAccessibleWidget::text(t);
  }

  int childCount() const override { return Children().size(); }
  QAccessibleInterface* child(int index) const override {
    const QList<QWidget*> kids = Children();
    if (index < 0 || index >= kids.size()) return nullptr;
    return QAccessible::queryAccessibleInterface(kids[index]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    if (!child || !child->object()) return -1;
    return Children().indexOf(qobject_cast<QWidget*>(child->object()));
  }
  QAccessibleInterface* parent() const override {
    QWidget* up = widget()->isWindow() ? nullptr : widget()->parentWidget();
    while (up && !up->isWindow() && Hidden(up)) up = up->parentWidget();
    if (!up) return QAccessibleWidget::parent();
    return QAccessible::queryAccessibleInterface(up);
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (role() == QAccessible::Button && widget()->isEnabled()) names.prepend(pressAction());
    return names;
  }
  void doAction(const QString& name) override {
    if (name != pressAction() || role() != QAccessible::Button || !widget()->isEnabled())
      return QAccessibleWidget::doAction(name);
    if (auto* b = qobject_cast<QAbstractButton*>(widget())) {
      b->click();
    } else if (auto* p = qobject_cast<PictureWidget*>(widget())) {
      p->Press();
    }
  }

 private:
  QList<QWidget*> Children() const {
    QList<QWidget*> kids;
    Shown(widget(), kids);
    return kids;
  }

  static QAccessible::Role RoleOf(QWidget* w, vb::Control* c) {
    if (auto* b = qobject_cast<ToolbarButtonWidget*>(w))
      return b->toolbar().ButtonClick ? QAccessible::Button : QAccessible::Graphic;
    if (!c) return QAccessible::Grouping;
    switch (c->kind()) {
      case vb::Kind::Form:
        return static_cast<vb::Form*>(c)->is_main ? QAccessible::Window : QAccessible::Dialog;
      case vb::Kind::CommandButton:
        return QAccessible::Button;
      case vb::Kind::Label:
        return QAccessible::StaticText;
      case vb::Kind::PictureBox:
        return c->Click || c->MouseDown || c->TabIndex >= 0 ? QAccessible::Button
                                                            : QAccessible::Graphic;
      case vb::Kind::Frame:
      case vb::Kind::Toolbar:
        return QAccessible::Grouping;
      default:
        return QAccessible::Graphic;
    }
  }

  vb::Control* control_;
};

QAccessibleInterface* Factory(const QString& class_name, QObject* object) {
  if (!object || !object->isWidgetType()) return nullptr;
  // Only the game's own widgets, asked for by their most derived class.
  if (class_name != QString::fromLatin1(object->metaObject()->className())) return nullptr;
  auto* w = static_cast<QWidget*>(object);
  vb::Control* c = ControlOf(object);
  if (qobject_cast<ToolbarButtonWidget*>(w)) return new GameAccessible(w, nullptr);
  if (!c && !IsStage(object)) return nullptr;
  if (qobject_cast<QLabel*>(w) || qobject_cast<QPushButton*>(w) || qobject_cast<FormWindow*>(w) ||
      qobject_cast<FrameWidget*>(w) || qobject_cast<PictureWidget*>(w) ||
      qobject_cast<ShapeWidget*>(w) || qobject_cast<ToolbarWidget*>(w) || IsStage(object))
    return new GameAccessible(w, c);
  return nullptr;  // text boxes keep Qt's own, with their editable text
}

}  // namespace

void InstallAccessibility(std::function<vb::Control*(const QObject*)> control_of) {
  static bool installed = false;
  g_control_of = std::move(control_of);
  if (installed) return;
  QAccessible::installFactory(Factory);
  installed = true;
}

}  // namespace front
