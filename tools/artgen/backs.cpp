// Card backs (fundos/1.png .. fundos/22.png, 71 x 96).
//
// Eleven designs, each a pair: the odd picture is the back of the cards the
// opponent holds face down, the even one its partner, shown for a card just
// taken from the deck: same design, darker, with a marked centre.
#include <QLinearGradient>
#include <QRadialGradient>
#include <cmath>

#include "art.h"

namespace artgen {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kDesigns = 11;

// The four colours a design is made of: ground, main figure, second figure, lines.
struct Palette {
  QColor ground;
  QColor figure;
  QColor second;
  QColor line;
};

Palette palette(int design, bool partner) {
  static const Palette base[kDesigns] = {
      {QColor(0x1f, 0x4f, 0xa8), QColor(0x9c, 0xc4, 0xf4), QColor(0xff, 0xff, 0xff),
       QColor(0xd8, 0xe8, 0xff)},  // lattice, blue
      {QColor(0xb0, 0x1a, 0x2a), QColor(0xd8, 0x3a, 0x44), QColor(0x7a, 0x0c, 0x18),
       QColor(0xf4, 0xcc, 0x60)},  // argyle, red
      {QColor(0x0e, 0x6e, 0x78), QColor(0x8a, 0xe0, 0xdc), QColor(0x3c, 0xa8, 0xb0),
       QColor(0xe0, 0xfa, 0xf6)},  // waves, teal
      {QColor(0x16, 0x1e, 0x4c), QColor(0xf4, 0xc8, 0x3c), QColor(0x6a, 0x7a, 0xc0),
       QColor(0xf8, 0xe0, 0x90)},  // stars, night blue and gold
      {QColor(0xf2, 0xf6, 0xee), QColor(0x2a, 0x8a, 0x48), QColor(0x14, 0x5a, 0x2a),
       QColor(0x1a, 0x6a, 0x34)},  // gingham checks, green
      {QColor(0x52, 0x24, 0x7c), QColor(0xc8, 0xa4, 0xec), QColor(0x7e, 0x4c, 0xaa),
       QColor(0xec, 0xdc, 0xfc)},  // rings, purple
      {QColor(0x8c, 0x3c, 0x0c), QColor(0xe8, 0x8a, 0x30), QColor(0xb0, 0x54, 0x14),
       QColor(0xfc, 0xd8, 0x9a)},  // scales, copper
      {QColor(0x6c, 0x14, 0x34), QColor(0xe8, 0x7c, 0xa4), QColor(0xf0, 0xc0, 0x50),
       QColor(0xfc, 0xe0, 0xea)},  // chevrons, maroon
      {QColor(0xd0, 0x68, 0x10), QColor(0xf4, 0xb0, 0x30), QColor(0xb0, 0x40, 0x08),
       QColor(0xfc, 0xf0, 0xc0)},  // sunburst, orange
      {QColor(0x98, 0x14, 0x68), QColor(0xf4, 0x9c, 0xcc), QColor(0xfc, 0xe0, 0x50),
       QColor(0xfc, 0xd8, 0xec)},  // rosettes, magenta
      {QColor(0x1a, 0x46, 0x30), QColor(0x1c, 0x2a, 0x5c), QColor(0xc8, 0x28, 0x28),
       QColor(0xe8, 0xc8, 0x40)},  // tartan, spare
  };
  Palette p = base[design];
  if (partner) {
    p.ground = shade(p.ground, 0.62);
    p.figure = shade(p.figure, 0.72);
    p.second = shade(p.second, 0.72);
    p.line = shade(p.line, 0.8);
  }
  return p;
}

const QRectF kArea(4, 4, 63, 88);  // patterned part of the back
const QPointF kCentre(kCardW / 2.0, kCardH / 2.0);

void lattice(QPainter& p, const Palette& c) {
  const double s = 7.0;
  const double cx = kCentre.x(), cy = kCentre.y();
  p.setPen(QPen(c.figure, 1.1));
  for (int i = -20; i <= 20; ++i) {
    const double k1 = cx - cy + i * s;  // x - y = k1
    p.drawLine(QPointF(k1 - 10, -10), QPointF(k1 + 110, 110));
    const double k2 = cx + cy + i * s;  // x + y = k2
    p.drawLine(QPointF(k2 + 10, -10), QPointF(k2 - 110, 110));
  }
  p.setPen(Qt::NoPen);
  for (int i = -20; i <= 20; ++i) {
    for (int j = -20; j <= 20; ++j) {
      const QPointF at(cx + (i + j) * s / 2, cy + (j - i) * s / 2);
      if (!kArea.adjusted(-2, -2, 2, 2).contains(at)) continue;
      const bool big = (i + j) % 2 == 0;
      p.setBrush(big ? c.second : c.line);
      p.drawEllipse(at, big ? 1.3 : 0.8, big ? 1.3 : 0.8);
    }
  }
}

void argyle(QPainter& p, const Palette& c) {
  const double w = 12.6, h = 17.6;
  auto diamond = [&](QPointF at) {
    QPolygonF d;
    d << QPointF(at.x(), at.y() - h / 2) << QPointF(at.x() + w / 2, at.y())
      << QPointF(at.x(), at.y() + h / 2) << QPointF(at.x() - w / 2, at.y());
    return d;
  };
  p.setPen(Qt::NoPen);
  for (int i = -4; i <= 4; ++i) {
    for (int j = -4; j <= 4; ++j) {
      p.setBrush((i + j) % 2 == 0 ? c.figure : c.second);
      p.drawPolygon(diamond(QPointF(kCentre.x() + i * w, kCentre.y() + j * h)));
    }
  }
  // Dashed diagonals through the diamonds, as on a knitted argyle.
  QPen dash(c.line, 0.7);
  dash.setDashPattern({2.0, 1.6});
  p.setPen(dash);
  for (int i = -12; i <= 12; ++i) {
    const double x0 = kCentre.x() + i * w;
    p.drawLine(QPointF(x0 - 5 * w, kCentre.y() - 5 * h), QPointF(x0 + 5 * w, kCentre.y() + 5 * h));
    p.drawLine(QPointF(x0 + 5 * w, kCentre.y() - 5 * h), QPointF(x0 - 5 * w, kCentre.y() + 5 * h));
  }
}

QPainterPath wave(double y, double amp, double len, double phase) {
  QPainterPath path;
  path.moveTo(-4, y + amp * std::sin(phase + (-4) * 2 * kPi / len));
  for (double x = -4; x <= 76; x += 0.5) {
    path.lineTo(x, y + amp * std::sin(phase + x * 2 * kPi / len));
  }
  return path;
}

void waves(QPainter& p, const Palette& c) {
  const double step = 6.0;
  for (int j = -9; j <= 9; ++j) {
    const double y = kCentre.y() + j * step;
    const double phase = (j % 2 == 0) ? 0.0 : kPi / 3;
    p.strokePath(wave(y, 2.0, 14.0, phase),
                 QPen(j % 2 == 0 ? c.figure : c.second, 1.8, Qt::SolidLine, Qt::RoundCap));
    p.strokePath(wave(y + step / 2, 1.6, 14.0, phase + kPi / 2), QPen(c.line, 0.5));
  }
}

QPainterPath starPath(QPointF at, double outer, double inner, double turn = 0.0) {
  QPainterPath path;
  for (int k = 0; k < 10; ++k) {
    const double r = k % 2 == 0 ? outer : inner;
    const double a = turn + k * kPi / 5 - kPi / 2;
    const QPointF pt(at.x() + r * std::cos(a), at.y() + r * std::sin(a));
    if (k == 0) {
      path.moveTo(pt);
    } else {
      path.lineTo(pt);
    }
  }
  path.closeSubpath();
  return path;
}

void stars(QPainter& p, const Palette& c) {
  QRadialGradient glow(kCentre, 50);
  glow.setColorAt(0, shade(c.ground, 1.25));
  glow.setColorAt(1, c.ground);
  p.fillRect(kArea, glow);
  const double sx = 10.5, sy = 11.0;
  for (int j = -5; j <= 5; ++j) {
    for (int i = -4; i <= 4; ++i) {
      const double off = (j % 2 == 0) ? 0.0 : sx / 2;
      const QPointF at(kCentre.x() + i * sx + off, kCentre.y() + j * sy);
      p.fillPath(starPath(at, 3.4, 1.4, j % 2 == 0 ? 0.0 : kPi), c.figure);
      p.setPen(Qt::NoPen);
      p.setBrush(c.second);
      p.drawEllipse(QPointF(at.x() + sx / 2, at.y()), 0.7, 0.7);
    }
  }
}

void gingham(QPainter& p, const Palette& c) {
  const double s = 5.25;  // 12 squares across
  QColor band = c.figure;
  band.setAlpha(130);
  for (int i = -10; i <= 10; i += 2) {
    p.fillRect(QRectF(kCentre.x() + i * s - s / 2, 0, s, kCardH), band);
    p.fillRect(QRectF(0, kCentre.y() + i * s - s / 2, kCardW, s), band);
  }
  p.setPen(QPen(c.line, 0.4));
  for (int i = -10; i <= 10; ++i) {
    const double x = kCentre.x() + i * s;
    p.drawLine(QPointF(x, 0), QPointF(x, kCardH));
  }
}

void rings(QPainter& p, const Palette& c) {
  const double s = 6.5;
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(c.second, 2.2));
  for (int i = -6; i <= 6; ++i) {
    for (int j = -8; j <= 8; ++j) {
      p.drawEllipse(QPointF(kCentre.x() + i * s, kCentre.y() + j * s), s, s);
    }
  }
  p.setPen(QPen(c.figure, 0.8));
  for (int i = -6; i <= 6; ++i) {
    for (int j = -8; j <= 8; ++j) {
      p.drawEllipse(QPointF(kCentre.x() + i * s, kCentre.y() + j * s), s, s);
    }
  }
  p.setPen(Qt::NoPen);
  p.setBrush(c.line);
  for (int i = -6; i <= 6; ++i) {
    for (int j = -8; j <= 8; ++j) {
      p.drawEllipse(QPointF(kCentre.x() + (i + 0.5) * s, kCentre.y() + (j + 0.5) * s), 0.9, 0.9);
    }
  }
}

void scales(QPainter& p, const Palette& c) {
  const double r = 5.0;
  for (int j = -12; j <= 12; ++j) {
    const double y = kCentre.y() + j * r * 0.9;
    const double off = (j % 2 == 0) ? 0.0 : r;
    for (int i = -5; i <= 5; ++i) {
      const QPointF at(kCentre.x() + i * 2 * r + off, y);
      QRadialGradient g(QPointF(at.x(), at.y() + r * 0.9), r * 1.3);
      g.setColorAt(0, c.figure);
      g.setColorAt(0.75, c.second);
      g.setColorAt(1, c.ground);
      p.setBrush(g);
      p.setPen(QPen(c.line, 0.5));
      p.drawEllipse(at, r, r);
    }
  }
}

void chevrons(QPainter& p, const Palette& c) {
  const double period = 10.0, amp = 3.6, step = 6.4;
  for (int j = -9; j <= 9; ++j) {
    const double y = kCentre.y() + j * step;
    QPainterPath zig;
    for (int k = -5; k <= 5; ++k) {
      const double x = kCentre.x() + k * period;
      const QPointF a(x - period / 2, y + amp / 2), b(x, y - amp / 2);
      if (k == -5) {
        zig.moveTo(a);
      } else {
        zig.lineTo(a);
      }
      zig.lineTo(b);
    }
    p.strokePath(zig, QPen(j % 2 == 0 ? c.figure : c.second, j % 2 == 0 ? 2.2 : 1.2, Qt::SolidLine,
                           Qt::SquareCap, Qt::MiterJoin));
  }
}

void sunburst(QPainter& p, const Palette& c) {
  const int rays = 28;
  p.setPen(Qt::NoPen);
  for (int k = 0; k < rays; ++k) {
    const double a0 = k * 2 * kPi / rays, a1 = (k + 1) * 2 * kPi / rays;
    QPolygonF wedge;
    wedge << kCentre << QPointF(kCentre.x() + 90 * std::cos(a0), kCentre.y() + 90 * std::sin(a0))
          << QPointF(kCentre.x() + 90 * std::cos(a1), kCentre.y() + 90 * std::sin(a1));
    p.setBrush(k % 2 == 0 ? c.figure : c.second);
    p.drawPolygon(wedge);
  }
  p.setBrush(Qt::NoBrush);
  for (int k = 1; k <= 6; ++k) {
    QColor ring = c.line;
    ring.setAlpha(150);
    p.setPen(QPen(ring, 0.7));
    p.drawEllipse(kCentre, k * 9.0, k * 9.0);
  }
}

void rosettes(QPainter& p, const Palette& c) {
  const double sx = 11.0, sy = 11.0;
  for (int j = -5; j <= 5; ++j) {
    for (int i = -4; i <= 4; ++i) {
      const double off = (j % 2 == 0) ? 0.0 : sx / 2;
      const QPointF at(kCentre.x() + i * sx + off, kCentre.y() + j * sy);
      p.setPen(Qt::NoPen);
      p.setBrush(c.figure);
      for (int k = 0; k < 4; ++k) {
        p.save();
        p.translate(at);
        p.rotate(45 + k * 90);
        p.drawEllipse(QPointF(0, -2.2), 1.5, 2.3);
        p.restore();
      }
      p.setBrush(c.second);
      p.drawEllipse(at, 1.2, 1.2);
      p.setBrush(c.line);
      p.drawEllipse(QPointF(at.x() + sx / 2, at.y() + sy / 2), 0.6, 0.6);
    }
  }
}

void tartan(QPainter& p, const Palette& c) {
  QColor wide = c.figure;
  wide.setAlpha(150);
  QColor red = c.second;
  red.setAlpha(200);
  QColor yellow = c.line;
  yellow.setAlpha(200);
  const double s = 16.0;
  for (int i = -4; i <= 4; ++i) {
    const double x = kCentre.x() + i * s, y = kCentre.y() + i * s;
    p.fillRect(QRectF(x - 4, 0, 8, kCardH), wide);
    p.fillRect(QRectF(0, y - 4, kCardW, 8), wide);
    p.fillRect(QRectF(x + 7.2, 0, 1.2, kCardH), red);
    p.fillRect(QRectF(0, y + 7.2, kCardW, 1.2), red);
    p.fillRect(QRectF(x - 0.3, 0, 0.6, kCardH), yellow);
    p.fillRect(QRectF(0, y - 0.3, kCardW, 0.6), yellow);
  }
}

// The marked centre of the partner backs: a cream medallion with a Z.
void medallion(QPainter& p, const Palette& c) {
  const double rx = 13.0, ry = 16.5;
  QRadialGradient g(kCentre - QPointF(3, 4), ry * 1.3);
  g.setColorAt(0, QColor(0xff, 0xfb, 0xee));
  g.setColorAt(1, QColor(0xec, 0xdc, 0xb4));
  p.setBrush(g);
  p.setPen(QPen(QColor(0xe8, 0xb8, 0x28), 1.6));
  p.drawEllipse(kCentre, rx, ry);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(shade(c.ground, 0.8), 0.6));
  p.drawEllipse(kCentre, rx - 2.3, ry - 2.3);
  const QPainterPath z =
      fitPath(textPath(QStringLiteral("Z"), 60, true, QStringLiteral("DejaVu Serif")),
              QRectF(kCentre.x() - 6, kCentre.y() - 8, 12, 16));
  p.fillPath(z, c.ground.lightness() > 120 ? c.second : c.ground);
}

}  // namespace

void paintCardBack(QPainter& p, const QRectF& r, int design, bool partner) {
  const Palette c = palette(design % kDesigns, partner);
  p.save();
  p.translate(r.topLeft());
  p.scale(r.width() / kCardW, r.height() / kCardH);

  const QPainterPath outline = cardOutline(QRectF(0, 0, kCardW, kCardH), 4.5);
  p.fillPath(outline, QColor(0xfc, 0xfc, 0xf8));

  QPainterPath area;
  area.addRoundedRect(kArea, 2.5, 2.5);
  p.fillPath(area, c.ground);
  p.save();
  p.setClipPath(area);
  switch (design % kDesigns) {
    case 0:
      lattice(p, c);
      break;
    case 1:
      argyle(p, c);
      break;
    case 2:
      waves(p, c);
      break;
    case 3:
      stars(p, c);
      break;
    case 4:
      gingham(p, c);
      break;
    case 5:
      rings(p, c);
      break;
    case 6:
      scales(p, c);
      break;
    case 7:
      chevrons(p, c);
      break;
    case 8:
      sunburst(p, c);
      break;
    case 9:
      rosettes(p, c);
      break;
    default:
      tartan(p, c);
      break;
  }
  // A fine inner frame line.
  p.setBrush(Qt::NoBrush);
  QColor frameLine = c.ground.lightness() > 200 ? c.second : QColor(255, 255, 255, 190);
  p.setPen(QPen(frameLine, 0.8));
  p.drawRoundedRect(kArea.adjusted(2, 2, -2, -2), 1.8, 1.8);
  if (partner) medallion(p, c);
  p.restore();

  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(shade(c.ground, 0.7), 0.6));
  p.drawPath(area);
  p.setPen(QPen(QColor(0x50, 0x50, 0x58), 1.0));
  p.drawPath(outline);
  p.restore();
}

void addCardBacks(ArtList& list) {
  for (int design = 0; design < kDesigns; ++design) {
    for (int partner = 0; partner < 2; ++partner) {
      const int number = 2 * design + 1 + partner;
      list.push_back({QStringLiteral("fundos/%1").arg(number),
                      QStringLiteral("fundos (card backs)"), kCardW, kCardH,
                      [design, partner](QPainter& p) {
                        paintCardBack(p, QRectF(0, 0, kCardW, kCardH), design, partner != 0);
                      }});
    }
  }
}

}  // namespace artgen
