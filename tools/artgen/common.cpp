// Drawing helpers shared by the pictures: suit symbols, card outline, chip
// colours and text turned into paths.
#include <QFont>
#include <QTransform>
#include <algorithm>

#include "art.h"

namespace artgen {

namespace {

// Suit symbols drawn in a unit square (0..1 both ways), pointing up.
QPainterPath unitHeart() {
  QPainterPath p;
  p.moveTo(0.5, 0.97);
  p.cubicTo(0.36, 0.78, 0.0, 0.57, 0.01, 0.30);
  p.cubicTo(0.02, 0.08, 0.32, -0.04, 0.5, 0.21);
  p.cubicTo(0.68, -0.04, 0.98, 0.08, 0.99, 0.30);
  p.cubicTo(1.0, 0.57, 0.64, 0.78, 0.5, 0.97);
  p.closeSubpath();
  return p;
}

QPainterPath unitDiamond() {
  QPainterPath p;
  p.moveTo(0.5, 0.0);
  p.quadTo(0.66, 0.30, 0.88, 0.5);
  p.quadTo(0.66, 0.70, 0.5, 1.0);
  p.quadTo(0.34, 0.70, 0.12, 0.5);
  p.quadTo(0.34, 0.30, 0.5, 0.0);
  p.closeSubpath();
  return p;
}

// Adds `part` to `shape` turning the same way as every other part, so that
// with the winding fill rule overlapping parts merge instead of leaving holes.
// (Qt's boolean path operations would flatten the curves into visible facets.)
void addPart(QPainterPath& shape, const QPainterPath& part) {
  const QPolygonF poly = part.toFillPolygon();
  double area = 0;
  for (int i = 0; i < poly.size(); ++i) {
    const QPointF& a = poly[i];
    const QPointF& b = poly[(i + 1) % poly.size()];
    area += a.x() * b.y() - b.x() * a.y();
  }
  shape.addPath(area >= 0 ? part : part.toReversed());
}

QPainterPath stem() {
  QPainterPath s;
  s.moveTo(0.46, 0.62);
  s.quadTo(0.45, 0.88, 0.27, 1.0);
  s.lineTo(0.73, 1.0);
  s.quadTo(0.55, 0.88, 0.54, 0.62);
  s.closeSubpath();
  return s;
}

QPainterPath unitSpade() {
  QPainterPath blade;
  blade.moveTo(0.5, 0.0);
  blade.cubicTo(0.36, 0.20, 0.0, 0.37, 0.01, 0.60);
  blade.cubicTo(0.02, 0.82, 0.32, 0.88, 0.49, 0.70);
  blade.lineTo(0.51, 0.70);
  blade.cubicTo(0.68, 0.88, 0.98, 0.82, 0.99, 0.60);
  blade.cubicTo(1.0, 0.37, 0.64, 0.20, 0.5, 0.0);
  blade.closeSubpath();
  QPainterPath p;
  p.setFillRule(Qt::WindingFill);
  addPart(p, blade);
  addPart(p, stem());
  return p;
}

QPainterPath unitClub() {
  const double r = 0.225;
  QPainterPath p;
  p.setFillRule(Qt::WindingFill);
  for (const QPointF& c : {QPointF(0.5, 0.24), QPointF(0.245, 0.58), QPointF(0.755, 0.58)}) {
    QPainterPath leaf;
    leaf.addEllipse(c, r, r);
    addPart(p, leaf);
  }
  // Fill the gap where the three leaves meet.
  QPainterPath core;
  core.moveTo(0.5, 0.3);
  core.lineTo(0.32, 0.62);
  core.lineTo(0.68, 0.62);
  core.closeSubpath();
  addPart(p, core);
  addPart(p, stem());
  return p;
}

}  // namespace

QPainterPath suitPath(Suit suit, const QRectF& box) {
  QPainterPath unit;
  double aspect = 1.0;  // width / height of the symbol
  switch (suit) {
    case Suit::Hearts:
      unit = unitHeart();
      aspect = 1.0;
      break;
    case Suit::Diamonds:
      unit = unitDiamond();
      aspect = 0.82;
      break;
    case Suit::Spades:
      unit = unitSpade();
      aspect = 0.92;
      break;
    case Suit::Clubs:
      unit = unitClub();
      aspect = 1.0;
      break;
  }
  double h = box.height();
  double w = h * aspect;
  if (w > box.width()) {
    w = box.width();
    h = w / aspect;
  }
  QTransform t;
  t.translate(box.center().x() - w / 2, box.center().y() - h / 2);
  t.scale(w, h);
  return t.map(unit);
}

bool isRed(Suit suit) {
  return suit == Suit::Hearts || suit == Suit::Diamonds;
}

QColor suitColor(Suit suit) {
  return isRed(suit) ? QColor(0xc8, 0x10, 0x2e) : QColor(0x14, 0x14, 0x1c);
}

QPainterPath cardOutline(const QRectF& r, double radius) {
  QPainterPath p;
  p.addRoundedRect(r.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
  return p;
}

ChipColors chipColors(int denomination) {
  switch (denomination) {
    case 1:
      return {QColor(0xee, 0xee, 0xe8), QColor(0x8a, 0x8e, 0x98), QColor(0x3c, 0x6e, 0xc8)};
    case 5:
      return {QColor(0xd2, 0x22, 0x2a), QColor(0x78, 0x0c, 0x12), QColor(0xff, 0xff, 0xff)};
    case 10:
      return {QColor(0x1e, 0x5a, 0xc8), QColor(0x0c, 0x2a, 0x66), QColor(0xff, 0xff, 0xff)};
    default:
      return {QColor(0x26, 0x26, 0x2c), QColor(0x08, 0x08, 0x0a), QColor(0xf2, 0xc2, 0x3a)};
  }
}

QPainterPath textPath(const QString& text, int pixelSize, bool bold, const QString& family) {
  QFont font(family);
  font.setPixelSize(pixelSize);
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setKerning(true);
  QPainterPath p;
  p.addText(0, 0, font, text);
  return p;
}

QPainterPath fitPath(const QPainterPath& path, const QRectF& box, double maxSqueeze) {
  const QRectF b = path.boundingRect();
  if (b.isEmpty()) return path;
  double sy = box.height() / b.height();
  double sx = sy;
  if (b.width() * sx > box.width()) {
    sx = std::max(box.width() / b.width(), sy * maxSqueeze);
    if (b.width() * sx > box.width()) {
      const double k = box.width() / (b.width() * sx);
      sx *= k;
      sy *= k;
    }
  }
  QTransform t;
  t.translate(box.center().x(), box.center().y());
  t.scale(sx, sy);
  t.translate(-b.center().x(), -b.center().y());
  return t.map(path);
}

QColor mix(const QColor& a, const QColor& b, double t) {
  return QColor::fromRgbF(static_cast<float>(a.redF() + (b.redF() - a.redF()) * t),
                          static_cast<float>(a.greenF() + (b.greenF() - a.greenF()) * t),
                          static_cast<float>(a.blueF() + (b.blueF() - a.blueF()) * t),
                          static_cast<float>(a.alphaF() + (b.alphaF() - a.alphaF()) * t));
}

QColor shade(const QColor& c, double factor) {
  if (factor >= 1.0) return mix(c, QColor(255, 255, 255, c.alpha()), factor - 1.0);
  return mix(QColor(0, 0, 0, c.alpha()), c, factor);
}

}  // namespace artgen
