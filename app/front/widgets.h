// The widgets that stand for the game's controls where Qt has none of its own: frames, pictures,
// shapes and lines, toolbars and their image buttons, and the form's window. Each paints straight
// from its control in the model, so what is drawn is always what the game last set.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QFont>
#include <QWidget>
#include <functional>
#include <vector>

#include "platform/forms.h"

namespace front {

// Twips to the desktop's units: 15 to the pixel at scale 1, as at the usual 96 dots an inch, times
// the table's scale. Qt turns these into device pixels by the screen's own ratio.
int Px(int twips, double scale);
// The scale of the table a widget stands on (1 outside the game's windows).
double ScaleOf(const QWidget* widget);
QColor ColorOf(std::uint32_t rgb);
// Arial becomes Liberation Sans and MS Sans Serif a like sans; sizes in points at 96 dpi, scaled.
QFont FontOf(const vb::Font& font, double scale);

// A frame: the back colour, and the etched border with its caption when it has one.
class FrameWidget : public QWidget {
  Q_OBJECT
 public:
  FrameWidget(vb::Control& control, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  vb::Control& control_;
};

// A picture box: its picture at its natural size (scaled) from the top-left corner, cut to the
// box; a picture that has the focus is ringed with the game's yellow focus bars.
class PictureWidget : public QWidget {
  Q_OBJECT
 public:
  PictureWidget(vb::Control& control, QWidget* parent);
  vb::Control& control() const { return control_; }
  void Press();  // pressed by a screen reader

 signals:
  void pressed();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  vb::Control& control_;
};

// A shape (its outline) or a line (from the top-left to the bottom-right corner of its box).
class ShapeWidget : public QWidget {
  Q_OBJECT
 public:
  ShapeWidget(vb::Control& control, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  vb::Control& control_;
};

// One button of a toolbar: the image of its key in the toolbar's image store, flat until the
// mouse is over it, sunk while pressed or while its Value is 1, greyed when disabled.
class ToolbarButtonWidget : public QAbstractButton {
  Q_OBJECT
 public:
  ToolbarButtonWidget(vb::Control& toolbar, int index, QWidget* parent);
  int index() const { return index_; }
  vb::Control& toolbar() const { return toolbar_; }
  QSize sizeHint() const override { return size(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  vb::Control& toolbar_;
  int index_;
};

// A toolbar: a container for other controls, with its buttons laid in a row beneath them.
class ToolbarWidget : public QWidget {
  Q_OBJECT
 public:
  ToolbarWidget(vb::Control& control, QWidget* parent);
  // Makes a widget for each button the toolbar has, and lays them out.
  void SyncButtons(const std::function<void(ToolbarButtonWidget*)>& made);
  void Layout();
  void Refresh(int index);  // one button changed; 0: all of them
  const std::vector<ToolbarButtonWidget*>& buttons() const { return buttons_; }
  vb::Control& control() const { return control_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  vb::Control& control_;
  std::vector<ToolbarButtonWidget*> buttons_;
};

// The window of a form. Its close box asks the game (which may unload the form, end the game, or
// refuse), and never closes the window by itself. The controls stand on a stage of the form's
// size times the scale, centred in the window, with the form's colour round it. The main window
// can be resized: its scale follows its size. A dialog keeps the table's scale.
class FormWindow : public QWidget {
  Q_OBJECT
 public:
  // `owner`: the table's window, for a dialog (it stays above the table).
  FormWindow(vb::Form& form, QWidget* owner, std::function<void()> on_close,
             std::function<void()> on_rescale);
  vb::Form& form() const { return form_; }
  QWidget* stage() const { return stage_; }
  double scale() const { return scale_; }
  // The form's client size at scale 1.
  void SetBase(QSize base);
  QSize base() const { return base_; }
  // A dialog's fixed size follows; the table's window is resized to the scale.
  void SetScale(double scale);
  bool resizable() const { return resizable_; }
  bool placed = false;  // put in its place on the screen once, when first shown

 protected:
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Fit();
  vb::Form& form_;
  QWidget* stage_;
  std::function<void()> on_close_;
  std::function<void()> on_rescale_;
  QSize base_;
  double scale_ = 1.0;
  bool resizable_;
};

}  // namespace front
