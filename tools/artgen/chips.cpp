// Piles of chips in the pot (potes/F<denomination>_<count>.png, 81 x 37).
//
// F01, F05, F10 and F50 for the four denominations, counts 00 to 30. Chips are
// seen slightly from the side and stacked in up to three columns of ten, left
// column first; the count is also written small in the corner. 00 is the empty
// place: a faint dashed chip spot.
#include <QLinearGradient>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>

#include "art.h"

namespace artgen {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kPileW = 81;
constexpr int kPileH = 37;
constexpr double kRx = 9.2;     // half width of a chip
constexpr double kRy = 3.4;     // half height of its top seen from the side
constexpr double kThick = 2.6;  // height of one chip in the stack
constexpr double kColumnX[3] = {10.5, 31.0, 51.5};
constexpr double kBottomTopY = kPileH - 1.0 - kRy - kThick;  // top centre of the lowest chip

QPointF onRim(double cx, double cy, double angle) {
  return {cx + kRx * std::cos(angle), cy + kRy * std::sin(angle)};
}

// One chip whose top face is centred at (cx, cy). `turn` rotates the edge
// inserts so neighbouring chips in a stack do not line up.
void paintChip(QPainter& p, double cx, double cy, const ChipColors& c, double turn) {
  const QRectF top(cx - kRx, cy - kRy, 2 * kRx, 2 * kRy);
  const QRectF bottom = top.translated(0, kThick);

  QPainterPath side;
  side.moveTo(cx - kRx, cy);
  side.lineTo(cx - kRx, cy + kThick);
  side.arcTo(bottom, 180, 180);
  side.lineTo(cx + kRx, cy);
  side.arcTo(top, 0, -180);
  side.closeSubpath();
  QLinearGradient sg(cx - kRx, 0, cx + kRx, 0);
  sg.setColorAt(0.0, mix(c.body, c.dark, 0.7));
  sg.setColorAt(0.35, mix(c.body, c.dark, 0.15));
  sg.setColorAt(0.6, c.body);
  sg.setColorAt(1.0, mix(c.body, c.dark, 0.75));
  p.fillPath(side, sg);

  // Edge inserts on the visible (front) half of the rim.
  const double halfWidth = 0.2;
  for (int k = 0; k < 6; ++k) {
    const double a = turn + k * kPi / 3;
    const double a0 = std::fmod(a, 2 * kPi);
    if (a0 - halfWidth < 0.05 || a0 + halfWidth > kPi - 0.05) continue;
    QPolygonF spot;
    spot << onRim(cx, cy, a0 - halfWidth) << onRim(cx, cy, a0 + halfWidth)
         << onRim(cx, cy + kThick, a0 + halfWidth) << onRim(cx, cy + kThick, a0 - halfWidth);
    QColor sc = c.spots;
    sc.setAlphaF(0.55f + 0.4f * static_cast<float>(std::sin(a0)));
    p.setPen(Qt::NoPen);
    p.setBrush(sc);
    p.drawPolygon(spot);
  }

  // Dark seam under the chip so the stack can be counted.
  QPainterPath seam;
  seam.arcMoveTo(bottom, 180);
  seam.arcTo(bottom, 180, 180);
  p.strokePath(seam, QPen(c.dark, 0.6));

  // Top face with its ring of inserts and a lighter centre.
  QPainterPath face;
  face.addEllipse(top);
  QLinearGradient fg(cx, cy - kRy, cx, cy + kRy);
  fg.setColorAt(0, shade(c.body, 1.18));
  fg.setColorAt(1, c.body);
  p.fillPath(face, fg);
  QPen ring(c.spots, 1.0);
  ring.setDashPattern({1.4, 1.4});
  ring.setDashOffset(turn * 3);
  p.setPen(ring);
  p.setBrush(Qt::NoBrush);
  p.drawEllipse(QPointF(cx, cy), kRx * 0.78, kRy * 0.74);
  p.setPen(QPen(mix(c.body, c.dark, 0.5), 0.4));
  p.setBrush(shade(c.body, 1.08));
  p.drawEllipse(QPointF(cx, cy), kRx * 0.5, kRy * 0.48);
  p.strokePath(face, QPen(mix(c.body, c.dark, 0.6), 0.5));
}

void paintPile(QPainter& p, int denomination, int count) {
  const ChipColors c = chipColors(denomination);
  if (count == 0) {
    QPen dash(QColor(255, 255, 255, 120), 0.8);
    dash.setDashPattern({2.0, 2.0});
    p.setPen(dash);
    p.setBrush(QColor(255, 255, 255, 24));
    const QRectF spot(kColumnX[0] - kRx, kBottomTopY - kRy, 2 * kRx, 2 * kRy + kThick);
    p.drawRoundedRect(spot, kRx, kRy + kThick / 2, Qt::AbsoluteSize);
    return;
  }
  for (int col = 0; col < 3; ++col) {
    const int inColumn = std::clamp(count - 10 * col, 0, 10);
    for (int k = 0; k < inColumn; ++k) {
      const double turn = 0.35 + 0.9 * ((k * 7 + col * 3) % 5);
      paintChip(p, kColumnX[col], kBottomTopY - k * kThick, c, turn);
    }
  }

  // The count, small, in the lower right corner.
  const QPainterPath label =
      fitPath(textPath(QStringLiteral("x%1").arg(count), 40), QRectF(63.5, 27.2, 15.5, 6.6));
  QPainterPath pill;
  pill.addRoundedRect(QRectF(62.0, 25.5, 18.5, 10.0), 4.0, 4.0);
  p.fillPath(pill, QColor(0, 0, 0, 150));
  p.fillPath(label, QColor(255, 255, 255));
}

}  // namespace

void addChipPiles(ArtList& list) {
  for (int denomination : {1, 5, 10, 50}) {
    for (int count = 0; count <= 30; ++count) {
      const QString name = QStringLiteral("potes/F%1_%2")
                               .arg(denomination, 2, 10, QLatin1Char('0'))
                               .arg(count, 2, 10, QLatin1Char('0'));
      list.push_back({name, QStringLiteral("potes (chip piles)"), kPileW, kPileH,
                      [denomination, count](QPainter& p) { paintPile(p, denomination, count); }});
    }
  }
}

}  // namespace artgen
