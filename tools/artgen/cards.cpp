// The 52 card faces (barajas/<rank><suit>.png, 71 x 96).
//
// Card codes: rank A K Q J D 9 8 7 6 5 4 3 2 (D is the ten, shown as "10"),
// then the suit letter: C hearts, D diamonds, P spades, T clubs.
#include <QLinearGradient>
#include <QRadialGradient>
#include <array>
#include <cmath>

#include "art.h"

namespace artgen {

namespace {

constexpr double kMidX = kCardW / 2.0;
constexpr double kMidY = kCardH / 2.0;

// Ink colour for the outlines of the court figures.
const QColor kInk(0x2a, 0x1c, 0x14);
const QColor kGold(0xe8, 0xb8, 0x28);
const QColor kSkin(0xf8, 0xd8, 0xb8);

// Rank text fitted so that its capital height fills `box`; letters with a tail
// (the Q) may reach a little below.
QPainterPath rankPath(const QString& text, const QRectF& box) {
  const QPainterPath ref = textPath(QStringLiteral("K"), 60);
  const QPainterPath path = textPath(text, 60);
  const QRectF rb = ref.boundingRect();
  const QRectF b = path.boundingRect();
  double sy = box.height() / rb.height();
  double sx = sy;
  if (b.width() * sx > box.width()) sx = box.width() / b.width();
  QTransform t;
  t.translate(box.center().x(), box.top());
  t.scale(sx, sy);
  t.translate(-b.center().x(), -rb.top());
  return t.map(path);
}

void fillSuit(QPainter& p, Suit suit, const QRectF& box) {
  const QPainterPath path = suitPath(suit, box);
  QLinearGradient g(box.topLeft(), box.bottomRight());
  if (isRed(suit)) {
    g.setColorAt(0.0, QColor(0xe4, 0x2c, 0x46));
    g.setColorAt(1.0, QColor(0xa8, 0x0a, 0x22));
  } else {
    g.setColorAt(0.0, QColor(0x40, 0x40, 0x4a));
    g.setColorAt(0.6, QColor(0x16, 0x16, 0x1e));
    g.setColorAt(1.0, QColor(0x0a, 0x0a, 0x10));
  }
  p.fillPath(path, g);
}

// The index in the top-left corner: rank above a small suit.
void paintIndex(QPainter& p, const QString& rankText, Suit suit) {
  const double w = rankText.size() > 1 ? 13.0 : 11.0;
  const QRectF rankBox(8.5 - w / 2, 4.0, w, 11.5);
  p.fillPath(rankPath(rankText, rankBox), suitColor(suit));
  fillSuit(p, suit, QRectF(4.0, 18.5, 9.0, 9.0));
}

// Pip centres (upper half upright, lower half turned) in the classic layout.
std::vector<QPointF> pipLayout(int n) {
  const double l = 23.0, m = kMidX, r = 48.0;
  const double top = 17.0, bottom = 79.0;
  const double q1 = top + (bottom - top) / 3.0, q2 = top + 2 * (bottom - top) / 3.0;
  std::vector<QPointF> pts;
  auto sides = [&](std::initializer_list<double> ys) {
    for (double y : ys) {
      pts.emplace_back(l, y);
      pts.emplace_back(r, y);
    }
  };
  switch (n) {
    case 2:
      pts = {{m, top}, {m, bottom}};
      break;
    case 3:
      pts = {{m, top}, {m, kMidY}, {m, bottom}};
      break;
    case 4:
      sides({top, bottom});
      break;
    case 5:
      sides({top, bottom});
      pts.emplace_back(m, kMidY);
      break;
    case 6:
      sides({top, kMidY, bottom});
      break;
    case 7:
      sides({top, kMidY, bottom});
      pts.emplace_back(m, (top + kMidY) / 2);
      break;
    case 8:
      sides({top, kMidY, bottom});
      pts.emplace_back(m, (top + kMidY) / 2);
      pts.emplace_back(m, (bottom + kMidY) / 2);
      break;
    case 9:
      sides({top, q1, q2, bottom});
      pts.emplace_back(m, kMidY);
      break;
    case 10:
      sides({top, q1, q2, bottom});
      pts.emplace_back(m, (top + q1) / 2);
      pts.emplace_back(m, (q2 + bottom) / 2);
      break;
    default:
      break;
  }
  return pts;
}

void paintPips(QPainter& p, Suit suit, int n) {
  const double pw = 12.0, ph = 13.0;
  for (const QPointF& c : pipLayout(n)) {
    p.save();
    p.translate(c);
    if (c.y() > kMidY + 0.1) p.rotate(180);
    fillSuit(p, suit, QRectF(-pw / 2, -ph / 2, pw, ph));
    p.restore();
  }
}

void paintAce(QPainter& p, Suit suit) {
  if (suit == Suit::Spades) {
    // The ace of spades gets its traditional ornament.
    QPainterPath ring;
    ring.addEllipse(QPointF(kMidX, kMidY), 25.0, 29.0);
    p.setBrush(QColor(0xfa, 0xf4, 0xe0));
    p.setPen(QPen(kGold, 1.2));
    p.drawPath(ring);
    p.setPen(QPen(shade(kGold, 0.7), 0.6));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(kMidX, kMidY), 22.5, 26.5);
    fillSuit(p, suit, QRectF(kMidX - 19, kMidY - 21, 38, 40));
  } else {
    fillSuit(p, suit, QRectF(kMidX - 17, kMidY - 19, 34, 36));
  }
}

// ---- court figures -----------------------------------------------------------

struct CourtColors {
  QColor robe;
  QColor robeDark;
  QColor trim;
  QColor hair;
};

CourtColors courtColors(Suit suit, QChar rank) {
  CourtColors c;
  switch (suit) {
    case Suit::Hearts:
      c.robe = QColor(0xc8, 0x18, 0x30);
      c.trim = kGold;
      break;
    case Suit::Diamonds:
      c.robe = QColor(0xd8, 0x4a, 0x1c);
      c.trim = QColor(0x2c, 0x5c, 0xb8);
      break;
    case Suit::Spades:
      c.robe = QColor(0x22, 0x3c, 0x8c);
      c.trim = kGold;
      break;
    case Suit::Clubs:
      c.robe = QColor(0x24, 0x24, 0x2c);
      c.trim = QColor(0xd0, 0x2a, 0x2a);
      break;
  }
  c.robeDark = shade(c.robe, 0.62);
  if (rank == QLatin1Char('K')) {
    static const QColor kingHair[] = {QColor(0xe4, 0xe0, 0xd8), QColor(0x8a, 0x52, 0x24),
                                      QColor(0x4a, 0x36, 0x28), QColor(0xc8, 0x92, 0x34)};
    c.hair = kingHair[static_cast<int>(suit)];
  } else if (rank == QLatin1Char('Q')) {
    c.hair = (suit == Suit::Hearts || suit == Suit::Spades) ? QColor(0xe0, 0xaa, 0x3a)
                                                            : QColor(0x5a, 0x30, 0x18);
  } else {
    c.hair = (suit == Suit::Diamonds || suit == Suit::Clubs) ? QColor(0xe0, 0xaa, 0x3a)
                                                             : QColor(0x6a, 0x3a, 0x1a);
  }
  return c;
}

void strokeFill(QPainter& p, const QPainterPath& path, const QBrush& fill, double pen = 0.6) {
  p.fillPath(path, fill);
  p.strokePath(path, QPen(kInk, pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

// Upper half of a court card; the lower half is the same turned around.
void paintCourtHalf(QPainter& p, QChar rank, Suit suit) {
  const CourtColors c = courtColors(suit, rank);
  const double cx = kMidX;
  const bool king = rank == QLatin1Char('K');
  const bool queen = rank == QLatin1Char('Q');

  // Long hair of the queen falls behind the shoulders.
  if (queen) {
    QPainterPath hair;
    hair.moveTo(cx - 6.5, 20);
    hair.cubicTo(cx - 10, 26, cx - 10, 33, cx - 8.5, 38);
    hair.lineTo(cx + 8.5, 38);
    hair.cubicTo(cx + 10, 33, cx + 10, 26, cx + 6.5, 20);
    hair.closeSubpath();
    strokeFill(p, hair, c.hair);
  }

  // Robe and shoulders.
  QPainterPath robe;
  robe.moveTo(cx - 13.5, 48.5);
  robe.lineTo(cx - 13.5, 41);
  robe.cubicTo(cx - 13.5, 37, cx - 11, 35.2, cx - 7, 34.8);
  robe.lineTo(cx + 7, 34.8);
  robe.cubicTo(cx + 11, 35.2, cx + 13.5, 37, cx + 13.5, 41);
  robe.lineTo(cx + 13.5, 48.5);
  robe.closeSubpath();
  QLinearGradient rg(cx - 14, 0, cx + 14, 0);
  rg.setColorAt(0, c.robeDark);
  rg.setColorAt(0.5, c.robe);
  rg.setColorAt(1, c.robeDark);
  strokeFill(p, robe, rg);

  // Ornamented panel down the middle and trimmed sleeves.
  QPainterPath panel;
  panel.addRect(QRectF(cx - 3, 36.5, 6, 12));
  strokeFill(p, panel, c.trim, 0.5);
  for (double y = 39.5; y < 48; y += 3.5) {
    p.fillPath(suitPath(suit, QRectF(cx - 1.5, y - 1.5, 3, 3)),
               suit == Suit::Diamonds ? QColor(255, 255, 255) : c.robeDark);
  }
  for (double sx : {cx - 10.5, cx + 10.5}) {
    QPainterPath band;
    band.addRect(QRectF(sx - 1.1, 39.0, 2.2, 9.5));
    strokeFill(p, band, c.trim, 0.4);
  }
  // A belt where the two halves meet.
  QPainterPath belt;
  belt.addRect(QRectF(cx - 13.5, 46.2, 27, 2.3));
  strokeFill(p, belt, shade(c.trim, 0.85), 0.4);

  // Collar: ermine for the king, a lace collar for the others.
  QPainterPath collar;
  collar.moveTo(cx - 8, 34.6);
  collar.lineTo(cx, 40.5);
  collar.lineTo(cx + 8, 34.6);
  collar.quadTo(cx, 37, cx - 8, 34.6);
  strokeFill(p, collar, QColor(0xfb, 0xfb, 0xf4), 0.5);
  if (king) {
    for (double dx : {-4.0, 0.0, 4.0}) {
      p.fillRect(QRectF(cx + dx - 0.4, 36.2 + (dx == 0 ? 1.4 : 0), 0.8, 1.2), kInk);
    }
  }

  // Neck and head.
  QPainterPath neck;
  neck.addRect(QRectF(cx - 2.2, 30, 4.4, 5));
  p.fillPath(neck, shade(kSkin, 0.9));
  QPainterPath head;
  head.addEllipse(QPointF(cx, 25.5), 5.4, 6.4);
  strokeFill(p, head, kSkin);

  // Hair and beard.
  if (king) {
    QPainterPath hair;
    hair.moveTo(cx - 5.5, 27);
    hair.cubicTo(cx - 6.8, 22, cx - 4, 19.5, cx, 19.8);
    hair.cubicTo(cx + 4, 19.5, cx + 6.8, 22, cx + 5.5, 27);
    hair.cubicTo(cx + 4.6, 24, cx + 4, 22.8, cx, 22.6);
    hair.cubicTo(cx - 4, 22.8, cx - 4.6, 24, cx - 5.5, 27);
    strokeFill(p, hair, c.hair, 0.5);
    QPainterPath beard;
    beard.moveTo(cx - 5.2, 26.5);
    beard.cubicTo(cx - 5.4, 31.5, cx - 3, 35, cx, 35.8);
    beard.cubicTo(cx + 3, 35, cx + 5.4, 31.5, cx + 5.2, 26.5);
    beard.cubicTo(cx + 4, 29.5, cx + 2.5, 30.2, cx, 30.0);
    beard.cubicTo(cx - 2.5, 30.2, cx - 4, 29.5, cx - 5.2, 26.5);
    strokeFill(p, beard, c.hair, 0.5);
    // Moustache.
    QPainterPath mou;
    mou.moveTo(cx - 3.0, 29.6);
    mou.quadTo(cx, 27.6, cx + 3.0, 29.6);
    p.strokePath(mou, QPen(shade(c.hair, 0.6), 1.0, Qt::SolidLine, Qt::RoundCap));
  } else if (queen) {
    QPainterPath fringe;
    fringe.moveTo(cx - 5.6, 25);
    fringe.cubicTo(cx - 6, 19, cx - 2, 18.5, cx, 20.5);
    fringe.cubicTo(cx + 2, 18.5, cx + 6, 19, cx + 5.6, 25);
    fringe.cubicTo(cx + 4.5, 22, cx + 2, 21.5, cx, 22.5);
    fringe.cubicTo(cx - 2, 21.5, cx - 4.5, 22, cx - 5.6, 25);
    strokeFill(p, fringe, c.hair, 0.5);
  } else {
    QPainterPath hair;
    hair.moveTo(cx - 5.6, 28.5);
    hair.cubicTo(cx - 7, 22, cx - 4, 19, cx, 19.5);
    hair.cubicTo(cx + 4, 19, cx + 7, 22, cx + 5.6, 28.5);
    hair.cubicTo(cx + 4.6, 25, cx + 4, 23, cx, 22.8);
    hair.cubicTo(cx - 4, 23, cx - 4.6, 25, cx - 5.6, 28.5);
    strokeFill(p, hair, c.hair, 0.5);
  }

  // Face: eyes, brows, nose, mouth.
  p.setPen(Qt::NoPen);
  p.setBrush(kInk);
  p.drawEllipse(QPointF(cx - 2.1, 25.2), 0.75, 0.75);
  p.drawEllipse(QPointF(cx + 2.1, 25.2), 0.75, 0.75);
  QPen brow(shade(kInk, 1.3), 0.5, Qt::SolidLine, Qt::RoundCap);
  p.setPen(brow);
  p.drawLine(QPointF(cx - 3.3, 23.4), QPointF(cx - 1.0, 23.2));
  p.drawLine(QPointF(cx + 1.0, 23.2), QPointF(cx + 3.3, 23.4));
  p.drawLine(QPointF(cx, 25.6), QPointF(cx - 0.5, 27.4));
  if (!king) {
    QPainterPath lips;
    lips.moveTo(cx - 1.6, 29.2);
    lips.quadTo(cx, 30.4, cx + 1.6, 29.2);
    p.strokePath(lips,
                 QPen(QColor(0xc0, 0x28, 0x3a), queen ? 1.0 : 0.7, Qt::SolidLine, Qt::RoundCap));
  }
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0xf0, 0x80, 0x80, 90));
  p.drawEllipse(QPointF(cx - 3.3, 27.6), 1.2, 0.9);
  p.drawEllipse(QPointF(cx + 3.3, 27.6), 1.2, 0.9);

  // Headwear.
  if (king) {
    QPainterPath crown;
    crown.moveTo(cx - 6.2, 21.0);
    crown.lineTo(cx - 6.8, 12.8);
    crown.lineTo(cx - 3.4, 16.6);
    crown.lineTo(cx, 11.2);
    crown.lineTo(cx + 3.4, 16.6);
    crown.lineTo(cx + 6.8, 12.8);
    crown.lineTo(cx + 6.2, 21.0);
    crown.closeSubpath();
    QLinearGradient cg(0, 11, 0, 21);
    cg.setColorAt(0, shade(kGold, 1.35));
    cg.setColorAt(1, shade(kGold, 0.8));
    strokeFill(p, crown, cg);
    p.fillRect(QRectF(cx - 6.2, 19.0, 12.4, 2.0), shade(kGold, 0.75));
    p.setBrush(QColor(0xd0, 0x10, 0x28));
    p.setPen(QPen(kInk, 0.3));
    p.drawEllipse(QPointF(cx, 17.6), 1.1, 1.1);
    p.setBrush(QColor(0x20, 0x60, 0xd0));
    p.drawEllipse(QPointF(cx - 3.8, 18.2), 0.7, 0.7);
    p.drawEllipse(QPointF(cx + 3.8, 18.2), 0.7, 0.7);
  } else if (queen) {
    QPainterPath tiara;
    tiara.moveTo(cx - 5.2, 20.6);
    tiara.quadTo(cx - 5.6, 16.5, cx - 4.2, 15.2);
    tiara.lineTo(cx - 2.4, 17.6);
    tiara.lineTo(cx, 13.8);
    tiara.lineTo(cx + 2.4, 17.6);
    tiara.lineTo(cx + 4.2, 15.2);
    tiara.quadTo(cx + 5.6, 16.5, cx + 5.2, 20.6);
    tiara.quadTo(cx, 19.0, cx - 5.2, 20.6);
    strokeFill(p, tiara, kGold, 0.5);
    p.setPen(QPen(kInk, 0.3));
    p.setBrush(QColor(255, 255, 255));
    for (const QPointF& b : {QPointF(cx - 4.2, 14.6), QPointF(cx, 13.0), QPointF(cx + 4.2, 14.6)}) {
      p.drawEllipse(b, 0.9, 0.9);
    }
    // A flower in her hand.
    p.setPen(QPen(QColor(0x2a, 0x80, 0x3a), 0.9, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(22.5, 45.5), QPointF(23.5, 31.5));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x3a, 0x9a, 0x48));
    p.drawEllipse(QPointF(21.7, 37), 1.6, 0.8);
    const QColor petal = isRed(suit) ? QColor(0xf4, 0xd0, 0x30) : QColor(0xe0, 0x30, 0x50);
    p.setPen(QPen(kInk, 0.35));
    p.setBrush(petal);
    for (int i = 0; i < 5; ++i) {
      const double a = i * 72.0 * 3.14159265 / 180.0;
      p.drawEllipse(QPointF(23.5 + 1.6 * std::sin(a), 30.0 - 1.6 * std::cos(a)), 1.25, 1.25);
    }
    p.setBrush(QColor(0xff, 0xf4, 0xc0));
    p.drawEllipse(QPointF(23.5, 30.0), 0.9, 0.9);
  } else {
    // Jack: a feathered cap.
    QPainterPath feather;
    feather.moveTo(cx + 3, 18.5);
    feather.cubicTo(cx + 8, 16, cx + 11, 12.5, cx + 12.5, 9.5);
    feather.cubicTo(cx + 9.5, 11, cx + 6, 13, cx + 2, 17);
    feather.closeSubpath();
    strokeFill(p, feather, isRed(suit) ? QColor(0x30, 0x90, 0x50) : QColor(0xf0, 0xf0, 0xe8), 0.4);
    QPainterPath cap;
    cap.moveTo(cx - 7.4, 20.8);
    cap.cubicTo(cx - 7.6, 14.0, cx + 6.5, 13.0, cx + 7.6, 19.8);
    cap.quadTo(cx, 18.4, cx - 7.4, 20.8);
    strokeFill(p, cap, c.trim);
    QPainterPath band;
    band.moveTo(cx - 7.2, 20.6);
    band.quadTo(cx, 18.0, cx + 7.4, 19.7);
    p.strokePath(band, QPen(c.robe, 1.2, Qt::SolidLine, Qt::RoundCap));
    // A halberd on his shoulder.
    p.setPen(QPen(QColor(0x7a, 0x4a, 0x22), 1.0, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(50.0, 47.5), QPointF(50.0, 16.0));
    QPainterPath blade;
    blade.moveTo(50.0, 11.0);
    blade.lineTo(51.2, 16.0);
    blade.quadTo(54.0, 17.5, 53.6, 21.5);
    blade.quadTo(51.5, 19.5, 50.0, 20.0);
    blade.lineTo(48.8, 16.0);
    blade.closeSubpath();
    strokeFill(p, blade, QColor(0xd8, 0xdc, 0xe4), 0.4);
  }

  if (king) {
    // A sword held upright.
    QPainterPath sword;
    sword.addRect(QRectF(20.4, 13.0, 1.8, 18.0));
    strokeFill(p, sword, QColor(0xdc, 0xe0, 0xe8), 0.4);
    QPainterPath tip;
    tip.moveTo(20.4, 13.0);
    tip.lineTo(21.3, 11.0);
    tip.lineTo(22.2, 13.0);
    strokeFill(p, tip, QColor(0xdc, 0xe0, 0xe8), 0.4);
    QPainterPath guard;
    guard.addRoundedRect(QRectF(17.8, 30.6, 7.0, 1.6), 0.7, 0.7);
    strokeFill(p, guard, kGold, 0.4);
    QPainterPath grip;
    grip.addRect(QRectF(20.6, 32.2, 1.4, 3.6));
    strokeFill(p, grip, QColor(0x6a, 0x3a, 0x1a), 0.3);
  }

  // The arm and hand holding the sword, flower or halberd.
  {
    QPointF shoulder(cx - 11.5, 40.0), hand(21.3, 34.2);
    if (queen) hand = QPointF(23.1, 38.0);
    if (rank == QLatin1Char('J')) {
      shoulder = QPointF(cx + 11.5, 40.0);
      hand = QPointF(50.0, 36.0);
    }
    QPainterPath arm;
    arm.moveTo(shoulder);
    arm.quadTo(QPointF((shoulder.x() + hand.x()) / 2, shoulder.y() + 1.5), hand);
    p.strokePath(arm, QPen(kInk, 3.6, Qt::SolidLine, Qt::RoundCap));
    p.strokePath(arm, QPen(c.robeDark, 2.6, Qt::SolidLine, Qt::RoundCap));
    QPainterPath fist;
    fist.addEllipse(hand, 1.5, 1.4);
    strokeFill(p, fist, kSkin, 0.4);
  }

  // Suit mark in the free corner of the frame.
  const QRectF mark =
      rank == QLatin1Char('J') ? QRectF(18.5, 9.5, 6.5, 6.5) : QRectF(46.5, 9.5, 6.5, 6.5);
  fillSuit(p, suit, mark);
}

void paintCourt(QPainter& p, QChar rank, Suit suit) {
  const QRectF frame(16.5, 7.5, 38, 81);
  QLinearGradient bg(frame.topLeft(), frame.bottomRight());
  bg.setColorAt(0, QColor(0xfd, 0xf6, 0xe0));
  bg.setColorAt(1, QColor(0xf4, 0xe6, 0xc0));
  p.fillRect(frame, bg);

  const QRectF upper(frame.left(), frame.top(), frame.width(), kMidY - frame.top());
  for (int half = 0; half < 2; ++half) {
    p.save();
    if (half == 1) {
      p.translate(kCardW, kCardH);
      p.rotate(180);
    }
    p.setClipRect(upper);
    paintCourtHalf(p, rank, suit);
    p.restore();
  }
  // Divider between the two halves and the frame line.
  p.setPen(QPen(shade(suitColor(suit), isRed(suit) ? 1.0 : 1.6), 0.8));
  p.drawLine(QPointF(frame.left(), kMidY), QPointF(frame.right(), kMidY));
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(suitColor(suit), 1.0));
  p.drawRect(frame);
}

void paintCardFace(QPainter& p, QChar rank, Suit suit) {
  const QRectF card(0, 0, kCardW, kCardH);
  const QPainterPath outline = cardOutline(card, 4.5);
  QLinearGradient paper(0, 0, kCardW, kCardH);
  paper.setColorAt(0, QColor(0xff, 0xff, 0xff));
  paper.setColorAt(1, QColor(0xf3, 0xf3, 0xee));
  p.fillPath(outline, paper);

  const QString rankText = rank == QLatin1Char('D') ? QStringLiteral("10") : QString(rank);
  for (int corner = 0; corner < 2; ++corner) {
    p.save();
    if (corner == 1) {
      p.translate(kCardW, kCardH);
      p.rotate(180);
    }
    paintIndex(p, rankText, suit);
    p.restore();
  }

  if (rank == QLatin1Char('A')) {
    paintAce(p, suit);
  } else if (rank == QLatin1Char('K') || rank == QLatin1Char('Q') || rank == QLatin1Char('J')) {
    paintCourt(p, rank, suit);
  } else {
    const int n = rank == QLatin1Char('D') ? 10 : rank.digitValue();
    paintPips(p, suit, n);
  }

  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0x50, 0x50, 0x58), 1.0));
  p.drawPath(outline);
}

}  // namespace

void addCardFaces(ArtList& list) {
  const QString ranks = QStringLiteral("AKQJD98765432");
  const std::array<std::pair<QChar, Suit>, 4> suits = {{{QLatin1Char('C'), Suit::Hearts},
                                                        {QLatin1Char('D'), Suit::Diamonds},
                                                        {QLatin1Char('P'), Suit::Spades},
                                                        {QLatin1Char('T'), Suit::Clubs}}};
  for (const auto& [letter, suit] : suits) {
    for (QChar rank : ranks) {
      const QString code = QString(rank) + letter;
      const Suit s = suit;
      list.push_back({QStringLiteral("barajas/") + code, QStringLiteral("barajas (card faces)"),
                      kCardW, kCardH, [rank, s](QPainter& p) { paintCardFace(p, rank, s); }});
    }
  }
}

}  // namespace artgen
