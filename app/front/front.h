// The desktop front: every form of the game drawn with real Qt widgets and kept in step with the
// model through its change notices; the player's mouse and keys sent back as the model's input.
//
// Forms become windows when they first load or show, with a widget for each control: labels,
// push buttons (whose "&" letter works with Alt), frames, pictures, text boxes, shapes, lines and
// toolbars of image buttons. The model decides everything: focus moves only when the model moves
// it (Tab and the arrows are the game's keys), a window closes only when the game unloads its
// form, and a click on something the game has disabled does nothing.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QScreen>
#include <QWidget>

#include "front/widgets.h"
#include "platform/engine.h"

namespace front {

class Front : public QObject, public vb::Listener {
  Q_OBJECT

 public:
  // Listens to the engine and to the application's input from now on.
  Front();
  ~Front() override;

  void Changed(vb::Control& control, vb::Prop prop, int sub) override;

  // The widget of a control (a form's is its window); nullptr before its form was first shown.
  QWidget* WidgetOf(const vb::Control& control) const;
  FormWindow* WindowOf(const vb::Form& form) const;
  // The button widget of a toolbar button.
  ToolbarButtonWidget* ButtonOf(const vb::Control& toolbar, int index) const;
  // The control a widget stands for.
  vb::Control* ControlOf(const QObject* widget) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  FormWindow* Build(vb::Form& form);
  void BuildMissing(vb::Form& form);
  QWidget* Create(vb::Control& control, QWidget* parent);
  void Restack(vb::Form& form);
  void ApplyAll(vb::Control& control);
  void SyncButtons(ToolbarWidget& bar);
  void Apply(vb::Control& control, vb::Prop prop, int sub);
  void ApplyLook(vb::Control& control, QWidget* widget);
  void ShowOrHide(vb::Form& form);
  void Place(FormWindow& window);
  void KeepOnScreen(FormWindow& window);
  // Every control of the form again at its window's scale.
  void Rescale(vb::Form& form);
  QScreen* ScreenFor(const QWidget* over) const;
  void Deliver(const vb::Input& input);
  bool MouseEvent(QWidget* widget, vb::Control& control, QEvent* event);
  bool KeyEvent(QWidget* widget, QEvent* event);

  QHash<const vb::Control*, QWidget*> widgets_;
  QHash<const QObject*, vb::Control*> controls_;
  QHash<const vb::Form*, FormWindow*> windows_;
  QPointer<QWidget> pressed_;  // the widget a left press went to, whose release is its click
};

}  // namespace front
