#include "front/widgets.h"

#include <qdrawutil.h>

#include <QCloseEvent>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QStyleOption>
#include <cmath>
#include <vector>

#include "front/images.h"
#include "front/scaling.h"

namespace front {

int Px(int twips, double scale) {
  return static_cast<int>(std::lround(twips * scale / 15.0));
}

double ScaleOf(const QWidget* widget) {
  const auto* win = qobject_cast<const FormWindow*>(widget->window());
  return win ? win->scale() : 1.0;
}

QColor ColorOf(std::uint32_t rgb) {
  return QColor(static_cast<int>((rgb >> 16) & 0xFF), static_cast<int>((rgb >> 8) & 0xFF),
                static_cast<int>(rgb & 0xFF));
}

QFont FontOf(const vb::Font& font, double scale) {
  QFont f;
  // Both old faces have metric twins or near twins among the free fonts.
  f.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")});
  f.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * 96.0 / 72.0 * scale))));
  f.setBold(font.bold);
  return f;
}

namespace {

// The picture a toolbar button shows from the attached store, if both exist.
std::string ButtonPicture(vb::Control& /*toolbar*/, const vb::ToolbarButton& button) {
  return button.PictureShown();
}

// The greyed look of a disabled button: light grey shades, the shape kept.
QPixmap Greyed(const QPixmap& pixmap) {
  QImage img = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < img.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(img.scanLine(y));
    for (int x = 0; x < img.width(); ++x) {
      const int g = 128 + qGray(line[x]) / 2;
      line[x] = qRgba(g, g, g, qAlpha(line[x]) * 3 / 4);
    }
  }
  QPixmap out = QPixmap::fromImage(img);
  out.setDevicePixelRatio(pixmap.devicePixelRatio());
  return out;
}

}  // namespace

// --- frames ------------------------------------------------------------------------------------

FrameWidget::FrameWidget(vb::Control& control, QWidget* parent)
    : QWidget(parent), control_(control) {}

void FrameWidget::paintEvent(QPaintEvent*) {
  // A frame given no colour of its own lets its container show through (the speech balloon
  // stands on the felt).
  QPainter p(this);
  if (control_.HasBackColor) p.fillRect(rect(), ColorOf(control_.BackColor));
  const QString caption = QString::fromStdString(control_.Caption);
  if (caption.isEmpty()) return;
  const QFontMetrics fm(font());
  const int top = fm.height() / 2;
  qDrawShadeRect(&p, QRect(0, top, width(), height() - top), palette(), true, 1);
  const QRect text(6, 0, fm.horizontalAdvance(caption) + 4, fm.height());
  p.fillRect(text, control_.HasBackColor ? ColorOf(control_.BackColor) : palette().window());
  p.setPen(ColorOf(control_.ForeColor));
  p.drawText(text, Qt::AlignCenter, caption);
}

// --- pictures ----------------------------------------------------------------------------------

PictureWidget::PictureWidget(vb::Control& control, QWidget* parent)
    : QWidget(parent), control_(control) {}

void PictureWidget::paintEvent(QPaintEvent*) {
  QPainter p(this);
  if (control_.HasBackColor) p.fillRect(rect(), ColorOf(control_.BackColor));
  const QPixmap pixmap = Picture(control_.Picture, ScaleOf(this), devicePixelRatioF());
  if (!pixmap.isNull()) p.drawPixmap(0, 0, pixmap);
  if (hasFocus()) {
    // The yellow of the game's focus bars, drawn inside the place, dashed so that it shows over
    // any picture.
    const double thick = std::max(2.0, 3.0 * ScaleOf(this) / 2.0);
    QPen pen(ColorOf(0xFFFF00), thick, Qt::DashLine);
    p.setPen(pen);
    p.drawRect(QRectF(rect()).adjusted(thick / 2, thick / 2, -thick / 2, -thick / 2));
    pen.setColor(Qt::black);
    pen.setDashOffset(2);
    p.setPen(pen);
    p.drawRect(QRectF(rect()).adjusted(thick / 2, thick / 2, -thick / 2, -thick / 2));
  }
}

// --- shapes and lines --------------------------------------------------------------------------

ShapeWidget::ShapeWidget(vb::Control& control, QWidget* parent)
    : QWidget(parent), control_(control) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeWidget::paintEvent(QPaintEvent*) {
  QPainter p(this);
  const int thick = std::max(1, Px(15 * control_.BorderWidth, ScaleOf(this)));
  if (control_.kind() == vb::Kind::Line) {
    p.setPen(QPen(ColorOf(control_.ForeColor), thick));
    p.drawLine(0, 0, std::max(0, width() - 1), std::max(0, height() - 1));
    return;
  }
  if (control_.HasBackColor) p.fillRect(rect(), ColorOf(control_.BackColor));
  p.setPen(QPen(ColorOf(control_.ForeColor), thick));
  p.drawRect(rect().adjusted(0, 0, -1, -1));
}

// --- toolbars ----------------------------------------------------------------------------------

ToolbarButtonWidget::ToolbarButtonWidget(vb::Control& toolbar, int index, QWidget* parent)
    : QAbstractButton(parent), toolbar_(toolbar), index_(index) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_Hover);
}

void ToolbarButtonWidget::paintEvent(QPaintEvent*) {
  if (index_ > static_cast<int>(toolbar_.Buttons().size())) return;
  const vb::ToolbarButton& b = toolbar_.Button(index_);
  QPainter p(this);
  const bool sunk = b.Value() == 1 || isDown();
  if (sunk) {
    p.fillRect(rect().adjusted(1, 1, -1, -1), QColor(255, 255, 255, 60));
    qDrawShadePanel(&p, rect(), palette(), true, 1);
  } else if (underMouse() && isEnabled()) {
    qDrawShadePanel(&p, rect(), palette(), false, 1);
  }
  QPixmap pixmap = Picture(ButtonPicture(toolbar_, b), ScaleOf(this), devicePixelRatioF());
  if (pixmap.isNull()) return;
  if (!isEnabled()) pixmap = Greyed(pixmap);
  const QSize size = pixmap.deviceIndependentSize().toSize();
  const int shift = sunk ? std::max(1, Px(15, ScaleOf(this))) : 0;
  p.drawPixmap((width() - size.width()) / 2 + shift, (height() - size.height()) / 2 + shift,
               pixmap);
}

ToolbarWidget::ToolbarWidget(vb::Control& control, QWidget* parent)
    : QWidget(parent), control_(control) {}

void ToolbarWidget::SyncButtons(const std::function<void(ToolbarButtonWidget*)>& made) {
  auto& model = control_.Buttons();
  while (buttons_.size() < model.size()) {
    auto* b = new ToolbarButtonWidget(control_, static_cast<int>(buttons_.size()) + 1, this);
    buttons_.push_back(b);
    b->lower();
    made(b);
  }
}

void ToolbarWidget::Layout() {
  // Every image of a store has the same size: the buttons are sized from it, with the margin of
  // the old toolbar round the image.
  QSize image;
  if (control_.images && control_.images->Count() > 0)
    image = PictureSize(control_.images->PictureOf(1));
  if (image.isEmpty()) image = QSize(71, 96);
  const bool piles = image.width() > image.height();
  // Laid out in the pixels of scale 1, then scaled edge to edge.
  const double scale = ScaleOf(this);
  const auto px = [scale](int unscaled) { return static_cast<int>(std::lround(unscaled * scale)); };
  int x = 0;
  for (ToolbarButtonWidget* w : buttons_) {
    const vb::ToolbarButton& b = control_.Button(w->index());
    // The odd buttons without key or image are places kept free: under the chip places of a
    // stack strip (so that pile i stands at 600 + 1920 i twips), or the narrow gaps between the
    // cards of a hand (so that the cards stand under their key places).
    const bool gap = w->index() % 2 == 1 && b.Key().empty() && b.Image() == "0";
    const int width = gap ? (piles ? 40 : (w->index() == 1 ? 2 : 13)) : image.width() + 7;
    w->setGeometry(px(x), 0, px(x + width) - px(x), px(image.height() + 7));
    w->setVisible(!gap);
    x += width;
  }
  x = px(x);
  // A strip with more places than fit (the whole deck laid out) overlaps them like a spread
  // deck, each card showing its left edge and the last one whole.
  const int available = Px(control_.Width, scale);
  if (x > available && !buttons_.empty()) {
    std::vector<ToolbarButtonWidget*> shown;
    for (ToolbarButtonWidget* w : buttons_)
      if (w->isVisibleTo(this)) shown.push_back(w);
    if (shown.size() > 1) {
      const int width = shown.front()->width();
      const double step = double(available - width) / double(shown.size() - 1);
      for (std::size_t i = 0; i < shown.size(); ++i) {
        shown[i]->move(static_cast<int>(i * step), 0);
        shown[i]->raise();
      }
    }
  }
}

void ToolbarWidget::Refresh(int index) {
  for (ToolbarButtonWidget* w : buttons_) {
    if (index != 0 && w->index() != index) continue;
    const vb::ToolbarButton& b = control_.Button(w->index());
    w->setEnabled(b.Enabled());
    if (const QString name = QString::fromStdString(control_.AccessibleName(b));
        name != w->accessibleName())
      w->setAccessibleName(name);
    w->update();
  }
}

void ToolbarWidget::paintEvent(QPaintEvent*) {
  // The flat toolbar lets its container's colour through, unless it has its own.
  if (!control_.HasBackColor) return;
  QPainter p(this);
  p.fillRect(rect(), ColorOf(control_.BackColor));
}

// --- windows -----------------------------------------------------------------------------------

FormWindow::FormWindow(vb::Form& form, QWidget* owner, std::function<void()> on_close,
                       std::function<void()> on_rescale)
    : QWidget(owner, owner ? Qt::Dialog : Qt::Window),
      form_(form),
      stage_(new QWidget(this)),
      on_close_(std::move(on_close)),
      on_rescale_(std::move(on_rescale)),
      resizable_(form.is_main) {
  stage_->setObjectName(QStringLiteral("pokerzeva_stage"));
}

void FormWindow::SetBase(QSize base) {
  base_ = base;
  if (resizable_) {
    setMinimumSize(base_ * kMinScale);
    resize(base_ * scale_);
  } else {
    setFixedSize(base_ * scale_);
  }
  Fit();
}

void FormWindow::SetScale(double scale) {
  const bool changed = scale != scale_;
  scale_ = scale;  // a hidden window hears of its new size only when shown
  if (resizable_) {
    resize(base_ * scale);
  } else {
    setFixedSize(base_ * scale_);
  }
  Fit();
  if (changed && on_rescale_) on_rescale_();
}

void FormWindow::resizeEvent(QResizeEvent*) {
  // A size made from the scale keeps that scale exactly.
  if (!resizable_ || size() == base_ * scale_) return Fit();
  const double scale = FitScale(size(), base_);
  const bool changed = scale != scale_;
  scale_ = scale;
  Fit();
  if (changed && on_rescale_) on_rescale_();
}

void FormWindow::Fit() {
  const QSize stage = base_ * scale_;
  stage_->setGeometry(
      QRect(QPoint((width() - stage.width()) / 2, (height() - stage.height()) / 2), stage));
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  on_close_();
}

void FormWindow::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(rect(), form_.HasBackColor ? ColorOf(form_.BackColor) : palette().window());
}

}  // namespace front
