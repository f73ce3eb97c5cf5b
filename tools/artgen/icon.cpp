// The application icon (icon/pokerzeva.svg and pokerzeva-<size>.png): a fan of three aces on
// the table's green felt, with a red chip of five in front. Drawn on a 256 x 256 canvas with
// plain fills and gradients only, so the SVG writer renders it the same as the painter does.
#include <QLinearGradient>
#include <QRadialGradient>
#include <QTransform>
#include <cmath>
#include <numbers>

#include "art.h"

namespace artgen {

namespace {

// The felt of the table (the game's filler colour) and its darker edge.
const QColor kFelt(0x02, 0x68, 0x1a);
const QColor kFeltEdge(0x01, 0x3a, 0x0e);
const QColor kRim(0xe8, 0xb8, 0x28);

constexpr double kBigCardW = 92;
constexpr double kBigCardH = 128;

// One card with a big index and a big suit, readable down to 48 pixels. Drawn with its
// top-left corner at the origin.
void paintBigCard(QPainter& p, Suit suit) {
  const QRectF card(0, 0, kBigCardW, kBigCardH);
  QPainterPath outline;
  outline.addRoundedRect(card, 10, 10);

  // A soft shadow to the lower right, so the fanned cards stand apart.
  p.save();
  p.translate(3, 4);
  p.fillPath(outline, QColor(0, 0, 0, 70));
  p.restore();

  QLinearGradient paper(0, 0, kBigCardW, kBigCardH);
  paper.setColorAt(0, QColor(0xff, 0xff, 0xff));
  paper.setColorAt(1, QColor(0xec, 0xec, 0xe4));
  p.fillPath(outline, paper);
  p.strokePath(outline, QPen(QColor(0x50, 0x50, 0x58), 2.0));

  const QColor ink = suitColor(suit);
  p.fillPath(fitPath(textPath(QStringLiteral("A"), 80), QRectF(8, 9, 24, 26)), ink);
  p.fillPath(suitPath(suit, QRectF(9, 39, 22, 22)), ink);
  QLinearGradient g(0, 50, 0, 120);
  g.setColorAt(0, shade(ink, isRed(suit) ? 1.25 : 1.9));
  g.setColorAt(1, ink);
  p.fillPath(suitPath(suit, QRectF(30, 56, 54, 58)), g);
}

// A chip seen from above: body, six edge inserts, a dashed inner ring and its value.
void paintTopChip(QPainter& p, const QPointF& c, double r) {
  const ChipColors colors = chipColors(5);

  QPainterPath disc;
  disc.addEllipse(c, r, r);
  p.save();
  p.translate(3, 5);
  p.fillPath(disc, QColor(0, 0, 0, 90));
  p.restore();

  QRadialGradient body(c.x() - r * 0.3, c.y() - r * 0.35, r * 1.4);
  body.setColorAt(0, shade(colors.body, 1.2));
  body.setColorAt(1, shade(colors.body, 0.8));
  p.fillPath(disc, body);

  for (int k = 0; k < 6; ++k) {
    const double a = k * std::numbers::pi / 3 + std::numbers::pi / 6;
    QPainterPath insert;
    const double half = 0.2;
    insert.moveTo(c + QPointF(r * std::cos(a - half), r * std::sin(a - half)));
    insert.lineTo(c + QPointF(r * std::cos(a + half), r * std::sin(a + half)));
    insert.lineTo(c + QPointF(0.72 * r * std::cos(a + half), 0.72 * r * std::sin(a + half)));
    insert.lineTo(c + QPointF(0.72 * r * std::cos(a - half), 0.72 * r * std::sin(a - half)));
    insert.closeSubpath();
    p.fillPath(insert, colors.spots);
  }
  p.strokePath(disc, QPen(colors.dark, 2.5));

  QPainterPath inner;
  inner.addEllipse(c, r * 0.6, r * 0.6);
  p.fillPath(inner, shade(colors.body, 1.05));
  p.strokePath(inner, QPen(colors.spots, 2.0));
  p.fillPath(fitPath(textPath(QStringLiteral("5"), 80),
                     QRectF(c.x() - r * 0.3, c.y() - r * 0.34, r * 0.6, r * 0.68)),
             colors.spots);
}

}  // namespace

void paintIcon(QPainter& p) {
  const double s = kIconSize;

  // The felt, a rounded square with a gold rim.
  QPainterPath felt;
  felt.addRoundedRect(QRectF(8, 8, s - 16, s - 16), 44, 44);
  QRadialGradient cloth(s / 2, s * 0.42, s * 0.62);
  cloth.setColorAt(0, shade(kFelt, 1.25));
  cloth.setColorAt(0.7, kFelt);
  cloth.setColorAt(1, kFeltEdge);
  p.fillPath(felt, cloth);
  p.strokePath(felt, QPen(kRim, 6));
  QPainterPath inner;
  inner.addRoundedRect(QRectF(17, 17, s - 34, s - 34), 36, 36);
  p.strokePath(inner, QPen(QColor(0xff, 0xff, 0xff, 50), 1.5));

  // Three aces fanned about a point below the cards, the ace of spades in front.
  const QPointF pivot(118, 236);
  const struct {
    Suit suit;
    double angle;
  } fan[] = {{Suit::Diamonds, -26}, {Suit::Hearts, -6}, {Suit::Spades, 16}};
  for (const auto& card : fan) {
    p.save();
    p.translate(pivot);
    p.rotate(card.angle);
    p.translate(-kBigCardW / 2, -200);
    paintBigCard(p, card.suit);
    p.restore();
  }

  paintTopChip(p, QPointF(184, 186), 42);
}

}  // namespace artgen
