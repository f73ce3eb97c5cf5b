// The small table pictures (extras/), the speech balloon (balao.png) and the
// three pictures of the shuffle animation (barajando/).
#include <QLinearGradient>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>

#include "art.h"

namespace artgen {

namespace {

const QColor kOutline(0x2a, 0x22, 0x18);

// ---- extras ------------------------------------------------------------------

// The player's own face: a friendly man on a round badge.
void paintChallenger(QPainter& p) {
  const QPointF c(16, 16);
  QPainterPath badge;
  badge.addEllipse(c, 15.3, 15.3);
  QRadialGradient bg(QPointF(12, 10), 20);
  bg.setColorAt(0, QColor(0x9c, 0xd0, 0xf4));
  bg.setColorAt(1, QColor(0x3c, 0x84, 0xc8));
  p.fillPath(badge, bg);
  p.save();
  p.setClipPath(badge);

  // Shoulders in a shirt with an open collar.
  QPainterPath body;
  body.moveTo(3, 33);
  body.cubicTo(3, 26, 8, 23.5, 16, 23.5);
  body.cubicTo(24, 23.5, 29, 26, 29, 33);
  body.closeSubpath();
  p.fillPath(body, QColor(0xf0, 0x8c, 0x24));
  p.strokePath(body, QPen(kOutline, 0.7));
  QPainterPath neck;
  neck.moveTo(13, 20);
  neck.lineTo(13, 24.5);
  neck.lineTo(16, 27.5);
  neck.lineTo(19, 24.5);
  neck.lineTo(19, 20);
  neck.closeSubpath();
  p.fillPath(neck, QColor(0xe6, 0xb0, 0x88));
  p.setPen(QPen(kOutline, 0.6));
  p.setBrush(QColor(0xff, 0xff, 0xff));
  QPolygonF left, right;
  left << QPointF(12.2, 23.4) << QPointF(16, 27.6) << QPointF(13.2, 28.6) << QPointF(10.6, 24.4);
  right << QPointF(19.8, 23.4) << QPointF(16, 27.6) << QPointF(18.8, 28.6) << QPointF(21.4, 24.4);
  p.drawPolygon(left);
  p.drawPolygon(right);
  p.restore();

  // Ears, head and hair.
  const QColor skin(0xf4, 0xc8, 0xa0);
  p.setPen(QPen(kOutline, 0.6));
  p.setBrush(skin);
  p.drawEllipse(QPointF(8.9, 15.2), 1.6, 2.2);
  p.drawEllipse(QPointF(23.1, 15.2), 1.6, 2.2);
  QPainterPath head;
  head.moveTo(9.2, 12);
  head.cubicTo(9.2, 6.5, 22.8, 6.5, 22.8, 12);
  head.cubicTo(22.8, 18.5, 20.5, 22.4, 16, 22.4);
  head.cubicTo(11.5, 22.4, 9.2, 18.5, 9.2, 12);
  p.drawPath(head);
  QPainterPath hair;
  hair.moveTo(8.8, 14.2);
  hair.cubicTo(7.6, 7.0, 11.5, 3.6, 16.6, 3.8);
  hair.cubicTo(21.5, 3.9, 24.6, 7.0, 23.2, 14.2);
  hair.cubicTo(22.6, 11.6, 22.0, 10.4, 21.0, 9.8);
  hair.cubicTo(17.6, 10.6, 13.6, 9.8, 12.2, 8.6);
  hair.cubicTo(10.8, 10.0, 9.6, 11.6, 8.8, 14.2);
  p.setBrush(QColor(0x6a, 0x40, 0x1e));
  p.drawPath(hair);

  // Friendly eyes, brows and a broad smile.
  p.setPen(Qt::NoPen);
  p.setBrush(kOutline);
  p.drawEllipse(QPointF(13.3, 14.4), 0.95, 1.15);
  p.drawEllipse(QPointF(18.7, 14.4), 0.95, 1.15);
  p.setBrush(Qt::white);
  p.drawEllipse(QPointF(13.6, 14.0), 0.35, 0.35);
  p.drawEllipse(QPointF(19.0, 14.0), 0.35, 0.35);
  QPen brow(QColor(0x5a, 0x34, 0x18), 0.9, Qt::SolidLine, Qt::RoundCap);
  p.setPen(brow);
  p.drawLine(QPointF(11.8, 12.0), QPointF(14.6, 11.6));
  p.drawLine(QPointF(17.4, 11.6), QPointF(20.2, 12.0));
  QPainterPath smile;
  smile.moveTo(12.6, 18.0);
  smile.quadTo(16, 21.4, 19.4, 18.0);
  smile.quadTo(16, 19.3, 12.6, 18.0);
  p.setPen(QPen(kOutline, 0.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.setBrush(Qt::white);
  p.drawPath(smile);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0xf0, 0x80, 0x70, 80));
  p.drawEllipse(QPointF(11.4, 17.4), 1.4, 0.9);
  p.drawEllipse(QPointF(20.6, 17.4), 1.4, 0.9);

  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0x1c, 0x40, 0x70), 1.0));
  p.drawEllipse(c, 15.3, 15.3);
}

// Up or down arrow inside the top-left 13 x 10 pixels.
void paintArrow(QPainter& p, bool up) {
  QPolygonF arrow;
  arrow << QPointF(6.5, 0.7) << QPointF(12.3, 5.6) << QPointF(8.9, 5.6) << QPointF(8.9, 9.3)
        << QPointF(4.1, 9.3) << QPointF(4.1, 5.6) << QPointF(0.7, 5.6);
  if (!up) {
    for (QPointF& pt : arrow) pt.setY(10.0 - pt.y());
  }
  QLinearGradient g(0, up ? 0 : 10, 0, up ? 10 : 0);
  g.setColorAt(0, QColor(0xff, 0xff, 0xe0));
  g.setColorAt(0.5, QColor(0xff, 0xe0, 0x40));
  g.setColorAt(1, QColor(0xf0, 0xa8, 0x10));
  p.setBrush(g);
  p.setPen(QPen(kOutline, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  p.drawPolygon(arrow);
}

// A chip seen edge-on inside the top-left 16 x 6 pixels; on the table these
// are stacked 6 px apart so a column of them reads as a pile.
void paintEdgeChip(QPainter& p, int denomination) {
  const ChipColors c = chipColors(denomination);
  const QRectF body(0.5, 0.5, 15.0, 5.0);
  QPainterPath shape;
  shape.addRoundedRect(body, 1.6, 1.6);
  QLinearGradient g(0, 0.5, 0, 5.5);
  g.setColorAt(0, shade(c.body, 1.25));
  g.setColorAt(0.45, c.body);
  g.setColorAt(1, mix(c.body, c.dark, 0.55));
  p.fillPath(shape, g);
  p.save();
  p.setClipPath(shape);
  for (double x : {1.8, 6.8, 11.8}) {
    QColor s = c.spots;
    p.fillRect(QRectF(x, 0.5, 2.4, 5.0), s);
  }
  QLinearGradient round(0.5, 0, 15.5, 0);
  round.setColorAt(0, QColor(0, 0, 0, 70));
  round.setColorAt(0.3, QColor(0, 0, 0, 0));
  round.setColorAt(0.7, QColor(0, 0, 0, 0));
  round.setColorAt(1, QColor(0, 0, 0, 80));
  p.fillRect(body, round);
  p.restore();
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(c.dark, 1.0));
  p.drawPath(shape);
}

// Small icon of a chip rack: a wooden tray holding four rows of chips.
void paintRack(QPainter& p) {
  QPainterPath tray;
  tray.addRoundedRect(QRectF(2.5, 7.5, 27, 19), 2.5, 2.5);
  QLinearGradient wood(0, 7, 0, 27);
  wood.setColorAt(0, QColor(0xc8, 0x8a, 0x4a));
  wood.setColorAt(1, QColor(0x86, 0x50, 0x22));
  p.fillPath(tray, wood);
  p.strokePath(tray, QPen(kOutline, 1.0));
  const int denominations[4] = {50, 10, 5, 1};
  for (int row = 0; row < 4; ++row) {
    const ChipColors c = chipColors(denominations[row]);
    const QRectF slot(4.5, 9.5 + row * 4.0, 23, 3.6);
    QPainterPath roll;
    roll.addRoundedRect(slot, 1.6, 1.6);
    QLinearGradient g(0, slot.top(), 0, slot.bottom());
    g.setColorAt(0, shade(c.body, 1.3));
    g.setColorAt(0.5, c.body);
    g.setColorAt(1, mix(c.body, c.dark, 0.6));
    p.fillPath(roll, g);
    p.save();
    p.setClipPath(roll);
    for (double x = slot.left() + 1.6; x < slot.right(); x += 2.2) {
      p.fillRect(QRectF(x, slot.top(), 0.5, slot.height()), mix(c.body, c.dark, 0.7));
    }
    p.restore();
    p.strokePath(roll, QPen(c.dark, 0.5));
  }
}

// ---- speech balloon -------------------------------------------------------------

constexpr int kBalloonW = 190;
constexpr int kBalloonH = 142;

QPainterPath balloonShape() {
  // Body covers the text area (9,33)-(181,136); the tail rises to the top left,
  // towards the opponent's face.
  QPainterPath body;
  body.addRoundedRect(QRectF(3.5, 26.5, 183, 112), 11, 11);
  QPainterPath tail;
  tail.moveTo(27, 31);
  tail.quadTo(26, 14, 11, 2);
  tail.quadTo(36, 10, 54, 31);
  tail.closeSubpath();
  // Qt flattens curves when it merges paths; merging at 16x keeps the facets
  // far below a pixel.
  QTransform up, down;
  up.scale(16, 16);
  down.scale(1.0 / 16, 1.0 / 16);
  return down.map(up.map(body).united(up.map(tail)));
}

// Blurs the alpha of a shadow picture with three box passes (close to a gaussian).
QImage blurred(const QImage& src, int radius) {
  QImage img = src.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  const int w = img.width(), h = img.height();
  std::vector<int> buf(static_cast<std::size_t>(w) * h);
  for (int y = 0; y < h; ++y) {
    const QRgb* line = reinterpret_cast<const QRgb*>(img.constScanLine(y));
    for (int x = 0; x < w; ++x) buf[static_cast<std::size_t>(y) * w + x] = qAlpha(line[x]);
  }
  std::vector<int> tmp(buf.size());
  for (int pass = 0; pass < 3; ++pass) {
    for (int y = 0; y < h; ++y) {
      for (int x = 0; x < w; ++x) {
        int sum = 0, n = 0;
        for (int k = -radius; k <= radius; ++k) {
          const int xx = x + k;
          if (xx >= 0 && xx < w) sum += buf[static_cast<std::size_t>(y) * w + xx];
          ++n;
        }
        tmp[static_cast<std::size_t>(y) * w + x] = sum / n;
      }
    }
    for (int y = 0; y < h; ++y) {
      for (int x = 0; x < w; ++x) {
        int sum = 0, n = 0;
        for (int k = -radius; k <= radius; ++k) {
          const int yy = y + k;
          if (yy >= 0 && yy < h) sum += tmp[static_cast<std::size_t>(yy) * w + x];
          ++n;
        }
        buf[static_cast<std::size_t>(y) * w + x] = sum / n;
      }
    }
  }
  QImage out(w, h, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < h; ++y) {
    QRgb* line = reinterpret_cast<QRgb*>(out.scanLine(y));
    for (int x = 0; x < w; ++x) {
      const int a = buf[static_cast<std::size_t>(y) * w + x];
      line[x] = qRgba(0, 0, 0, a);
    }
  }
  return out;
}

void paintBalloon(QPainter& p) {
  const QPainterPath shape = balloonShape();

  // Soft shadow: the shape painted at the device resolution, blurred, offset.
  const QTransform world = p.worldTransform();
  const double scale = world.m11();
  const int sw = static_cast<int>(std::lround(kBalloonW * scale));
  const int sh = static_cast<int>(std::lround(kBalloonH * scale));
  QImage shadow(sw, sh, QImage::Format_ARGB32_Premultiplied);
  shadow.fill(Qt::transparent);
  {
    QPainter sp(&shadow);
    sp.setRenderHint(QPainter::Antialiasing, true);
    sp.scale(scale, scale);
    sp.fillPath(balloonShape().translated(1.5, 2.0), QColor(0, 0, 0, 130));
  }
  const QImage soft = blurred(shadow, static_cast<int>(std::lround(1.5 * scale)));
  p.save();
  p.resetTransform();
  p.drawImage(0, 0, soft);
  p.restore();

  QLinearGradient g(0, 0, 0, kBalloonH);
  g.setColorAt(0, QColor(0xff, 0xff, 0xff));
  g.setColorAt(1, QColor(0xf2, 0xf2, 0xec));
  p.fillPath(shape, g);
  p.strokePath(shape, QPen(QColor(0x5a, 0x5a, 0x62), 1.0));
}

// ---- shuffle animation ------------------------------------------------------------

constexpr int kShuffleDesign = 0;

// The whole deck: a few backs stacked with their edges showing.
void paintDeck(QPainter& p) {
  const double w = 64, h = 87;
  for (int k = 6; k >= 1; --k) {
    const QRectF r(k * 1.0, k * 1.4, w, h);
    QPainterPath edge = cardOutline(r, 4.0);
    p.fillPath(edge, QColor(0xf6, 0xf6, 0xf0));
    p.strokePath(edge, QPen(QColor(0x70, 0x70, 0x78), 0.8));
  }
  paintCardBack(p, QRectF(0, 0, w, h), kShuffleDesign, false);
}

// Half a deck fanned out; `left` chooses which half (they slide towards each
// other, so the two fans open away from each other).
void paintHalfDeck(QPainter& p, bool left) {
  const double w = 50, h = 68;
  const QPointF pivot(0, 70);  // below the cards, so they spread like a held fan
  const double angles[] = {-18, -13.5, -9, -4.5, 0};
  std::vector<QTransform> placed;
  QRectF bounds;
  for (double a : angles) {
    QTransform t;
    t.translate(pivot.x(), pivot.y());
    t.rotate(left ? a : -a);
    t.translate(-pivot.x(), -pivot.y());
    placed.push_back(t);
    bounds = bounds.united(t.mapRect(QRectF(-w / 2, -h / 2, w, h)));
  }
  // Fit the whole fan inside the picture, resting on its bottom edge.
  const QRectF box(1, 1, kCardW - 2, kCardH - 2);
  const double k = std::min(box.width() / bounds.width(), box.height() / bounds.height());
  p.save();
  p.translate(box.center().x(), box.bottom());
  p.scale(k, k);
  p.translate(-bounds.center().x(), -bounds.bottom());
  for (const QTransform& t : placed) {
    p.save();
    p.setTransform(t, true);
    paintCardBack(p, QRectF(-w / 2, -h / 2, w, h), kShuffleDesign, false);
    p.restore();
  }
  p.restore();
}

}  // namespace

void addExtras(ArtList& list) {
  const QString section = QStringLiteral("extras (32 x 32)");
  list.push_back({QStringLiteral("extras/Challenger"), section, 32, 32, paintChallenger});
  list.push_back({QStringLiteral("extras/SetaAcima"), section, 32, 32,
                  [](QPainter& p) { paintArrow(p, true); }});
  list.push_back({QStringLiteral("extras/SetaAbaixo"), section, 32, 32,
                  [](QPainter& p) { paintArrow(p, false); }});
  for (int d : {50, 10, 5, 1}) {
    list.push_back({QStringLiteral("extras/Ficha%1").arg(d), section, 32, 32,
                    [d](QPainter& p) { paintEdgeChip(p, d); }});
  }
  list.push_back({QStringLiteral("extras/Extra2"), section, 32, 32, paintRack});
}

void addBalloon(ArtList& list) {
  list.push_back({QStringLiteral("balao"), QStringLiteral("balao (speech balloon)"), kBalloonW,
                  kBalloonH, paintBalloon});
}

void addShuffle(ArtList& list) {
  const QString section = QStringLiteral("barajando (shuffle)");
  list.push_back({QStringLiteral("barajando/1"), section, kCardW, kCardH, paintDeck});
  list.push_back({QStringLiteral("barajando/2"), section, kCardW, kCardH,
                  [](QPainter& p) { paintHalfDeck(p, true); }});
  list.push_back({QStringLiteral("barajando/3"), section, kCardW, kCardH,
                  [](QPainter& p) { paintHalfDeck(p, false); }});
}

}  // namespace artgen
