// ZEVA, the opponent (faces/1.png .. faces/27.png, 32 x 32).
//
// One character every time: dark wavy hair, a red flower over her left ear,
// gold hoop earrings, a red dress. Only eyes, brows, mouth, cheeks and a few
// marks (tear, heart, sparkle...) change from one mood to the next.
#include <QLinearGradient>
#include <QRadialGradient>
#include <cmath>

#include "art.h"

namespace artgen {

namespace {

constexpr double kPi = 3.14159265358979323846;

const QColor kSkin(0xf6, 0xd2, 0xb2);
const QColor kSkinShade(0xe2, 0xae, 0x8a);
const QColor kHair(0x2c, 0x18, 0x14);
const QColor kHairLight(0x6a, 0x3c, 0x2c);
const QColor kLine(0x22, 0x12, 0x0e);
const QColor kLips(0xc8, 0x24, 0x3c);
const QColor kMouthInside(0x6a, 0x12, 0x1e);
const QColor kIris(0x4a, 0x24, 0x10);
const QColor kGoldRing(0xf0, 0xc0, 0x30);

// Eyes sit on pixel centres so they stay sharp in the 32 x 32 picture.
constexpr double kEyeY = 14.5;
constexpr double kEyeLX = 12.5;
constexpr double kEyeRX = 19.5;
constexpr double kBrowY = 10.6;
constexpr double kMouthY = 20.4;

enum class Eye { Open, Wide, Tiny, Half, Angry, Droopy, Happy, Closed, Heart, Star };
enum class Brow { Normal, Raised, Angry, Sad, Flat, Low };
enum class Mouth {
  Smile,
  SmileOpen,
  Laugh,
  Smirk,
  Pout,
  Oh,
  Kiss,
  Tongue,
  Flat,
  Frown,
  FrownOpen,
  Grimace,
  Wavy,
  Yawn,
  TinySmile,
  Side,
};

enum Mark : unsigned {
  kNone = 0,
  kTear = 1u << 0,
  kSweat = 1u << 1,
  kZzz = 1u << 2,
  kHeart = 1u << 3,
  kAnger = 1u << 4,
  kSparkle = 1u << 5,
  kHandMouth = 1u << 6,
  kQuestion = 1u << 7,
};

struct Mood {
  Eye left, right;  // as seen by the player
  Brow browLeft, browRight;
  Mouth mouth;
  int blush;  // 0 none, 1 light, 2 strong
  unsigned marks;
  QPointF look;  // where the eyes look
};

// The 27 moods, in file order (faces/1.png is the first).
const Mood kMoods[27] = {
    {Eye::Open, Eye::Open, Brow::Normal, Brow::Normal, Mouth::Smile, 1, kNone, {}},  // 1 calm smile
    {Eye::Open, Eye::Open, Brow::Raised, Brow::Raised, Mouth::SmileOpen, 1, kNone, {}},  // 2 happy
    {Eye::Open, Eye::Happy, Brow::Normal, Brow::Raised, Mouth::Smile, 1, kSparkle, {}},  // 3 wink
    {Eye::Happy, Eye::Happy, Brow::Raised, Brow::Raised, Mouth::Laugh, 1, kNone, {}},  // 4 laughing
    {Eye::Half, Eye::Half, Brow::Normal, Brow::Raised, Mouth::Smirk, 0, kNone, {0.4, 0}},  // 5 smug
    {Eye::Open, Eye::Open, Brow::Sad, Brow::Sad, Mouth::Pout, 2, kNone, {-0.5, 0.2}},  // 6 pouting
    {Eye::Wide, Eye::Wide, Brow::Raised, Brow::Raised, Mouth::Oh, 0, kNone, {}},  // 7 surprised
    {Eye::Open,
     Eye::Open,
     Brow::Flat,
     Brow::Raised,
     Mouth::Side,
     0,
     kQuestion,
     {0.5, -0.5}},                                                                     // 8 thinking
    {Eye::Open, Eye::Happy, Brow::Normal, Brow::Normal, Mouth::Tongue, 1, kNone, {}},  // 9 teasing
    {Eye::Closed, Eye::Closed, Brow::Normal, Brow::Normal, Mouth::Kiss, 2, kHeart, {}},  // 10 kiss
    {Eye::Closed, Eye::Closed, Brow::Flat, Brow::Flat, Mouth::TinySmile, 0, kZzz, {}},  // 11 sleepy
    {Eye::Angry, Eye::Angry, Brow::Angry, Brow::Angry, Mouth::Frown, 0, kAnger, {}},    // 12 angry
    {Eye::Open, Eye::Open, Brow::Sad, Brow::Sad, Mouth::TinySmile, 2, kNone, {-0.3, 0.5}},  // 13
                                                                                            // shy
    {Eye::Droopy, Eye::Droopy, Brow::Sad, Brow::Sad, Mouth::Frown, 0, kTear, {0, 0.3}},  // 14 sad
    {Eye::Open, Eye::Open, Brow::Sad, Brow::Sad, Mouth::Wavy, 0, kSweat, {}},   // 15 worried
    {Eye::Half, Eye::Half, Brow::Flat, Brow::Flat, Mouth::Flat, 0, kNone, {}},  // 16 unimpressed
    {Eye::Open, Eye::Open, Brow::Low, Brow::Low, Mouth::SmileOpen, 0, kSparkle, {}},  // 17
                                                                                      // confident
    {Eye::Tiny, Eye::Tiny, Brow::Raised, Brow::Raised, Mouth::FrownOpen, 0, kSweat, {}},  // 18
                                                                                          // shocked
    {Eye::Heart, Eye::Heart, Brow::Raised, Brow::Raised, Mouth::SmileOpen, 2, kNone, {}},  // 19 in
                                                                                           // love
    {Eye::Half, Eye::Half, Brow::Raised, Brow::Normal, Mouth::Smirk, 0, kNone, {0.9, 0}},  // 20 sly
    {Eye::Closed, Eye::Closed, Brow::Sad, Brow::Sad, Mouth::Frown, 0, kNone, {}},          // 21
                                                                                   // disappointed
    {Eye::Star, Eye::Star, Brow::Raised, Brow::Raised, Mouth::Laugh, 1, kSparkle, {}},  // 22
                                                                                        // excited
    {Eye::Angry,
     Eye::Open,
     Brow::Low,
     Brow::Raised,
     Mouth::Flat,
     0,
     kNone,
     {0.5, 0}},  // 23 suspicious
    {Eye::Happy,
     Eye::Happy,
     Brow::Normal,
     Brow::Normal,
     Mouth::Smile,
     2,
     kHandMouth,
     {}},  // 24 giggle
    {Eye::Half, Eye::Half, Brow::Flat, Brow::Raised, Mouth::Side, 0, kNone, {0, -0.7}},  // 25
                                                                                         // eye-roll
    {Eye::Open, Eye::Open, Brow::Sad, Brow::Sad, Mouth::Grimace, 0, kSweat, {}},  // 26 nervous
    {Eye::Closed, Eye::Closed, Brow::Raised, Brow::Raised, Mouth::Yawn, 0, kTear, {}},  // 27 yawn
};

// At 1x the thin dark lines of eyes and brows are drawn without smoothing so
// they stay crisp single pixels instead of grey smears.
void strokeCrisp(QPainter& p, const QPainterPath& path, const QPen& pen) {
  const bool small = p.worldTransform().m11() < 1.5;
  if (small) p.setRenderHint(QPainter::Antialiasing, false);
  p.strokePath(path, pen);
  if (small) p.setRenderHint(QPainter::Antialiasing, true);
}

QPen linePen(const QColor& c, double w) {
  return QPen(c, w, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// ---- the head that never changes ----------------------------------------------------

void paintBackHair(QPainter& p) {
  QPainterPath hair;
  hair.moveTo(16, 1.4);
  hair.cubicTo(23.6, 1.2, 28.0, 5.4, 27.6, 11.0);
  hair.cubicTo(29.8, 14.0, 27.2, 16.6, 29.0, 19.6);
  hair.cubicTo(30.8, 22.6, 28.2, 24.8, 30.0, 27.6);
  hair.cubicTo(30.8, 29.2, 30.0, 31.0, 29.2, 32.0);
  hair.lineTo(2.8, 32.0);
  hair.cubicTo(2.0, 31.0, 1.2, 29.2, 2.0, 27.6);
  hair.cubicTo(3.8, 24.8, 1.2, 22.6, 3.0, 19.6);
  hair.cubicTo(4.8, 16.6, 2.2, 14.0, 4.4, 11.0);
  hair.cubicTo(4.0, 5.4, 8.4, 1.2, 16, 1.4);
  hair.closeSubpath();
  QRadialGradient g(QPointF(14, 8), 22);
  g.setColorAt(0, kHairLight);
  g.setColorAt(0.45, kHair);
  g.setColorAt(1, shade(kHair, 0.8));
  p.fillPath(hair, g);
  p.strokePath(hair, linePen(shade(kHair, 0.6), 0.5));
}

void paintBody(QPainter& p) {
  QPainterPath neck;
  neck.addRect(QRectF(13.4, 20.5, 5.2, 7.5));
  p.fillPath(neck, kSkinShade);
  QPainterPath shoulders;
  shoulders.moveTo(4.0, 32.2);
  shoulders.cubicTo(4.6, 28.6, 8.4, 26.8, 13.0, 26.4);
  shoulders.lineTo(19.0, 26.4);
  shoulders.cubicTo(23.6, 26.8, 27.4, 28.6, 28.0, 32.2);
  shoulders.closeSubpath();
  p.fillPath(shoulders, kSkin);
  // Shadow under the chin.
  QPainterPath chinShadow;
  chinShadow.moveTo(13.4, 22.6);
  chinShadow.quadTo(16, 25.4, 18.6, 22.6);
  chinShadow.lineTo(18.6, 21.0);
  chinShadow.lineTo(13.4, 21.0);
  p.fillPath(chinShadow, shade(kSkinShade, 0.9));
  // Red dress with a low neckline, and a small gold pendant.
  QPainterPath dress;
  dress.moveTo(3.4, 32.2);
  dress.cubicTo(4.2, 30.0, 6.2, 29.4, 8.4, 29.2);
  dress.quadTo(16.0, 31.8, 23.6, 29.2);
  dress.cubicTo(25.8, 29.4, 27.8, 30.0, 28.6, 32.2);
  dress.closeSubpath();
  QLinearGradient dg(0, 29, 0, 32);
  dg.setColorAt(0, QColor(0xd8, 0x20, 0x3a));
  dg.setColorAt(1, QColor(0x96, 0x10, 0x24));
  p.fillPath(dress, dg);
  p.setPen(linePen(kGoldRing, 0.4));
  p.setBrush(Qt::NoBrush);
  QPainterPath chain;
  chain.moveTo(13.6, 26.6);
  chain.quadTo(16, 28.6, 18.4, 26.6);
  p.drawPath(chain);
  p.setPen(Qt::NoPen);
  p.setBrush(kGoldRing);
  p.drawEllipse(QPointF(16, 28.0), 0.7, 0.8);
}

void paintFaceShape(QPainter& p) {
  QPainterPath face;
  face.moveTo(16, 5.6);
  face.cubicTo(21.6, 5.6, 23.8, 9.4, 23.6, 13.6);
  face.cubicTo(23.4, 18.6, 20.0, 24.2, 16, 24.4);
  face.cubicTo(12.0, 24.2, 8.6, 18.6, 8.4, 13.6);
  face.cubicTo(8.2, 9.4, 10.4, 5.6, 16, 5.6);
  face.closeSubpath();
  QRadialGradient g(QPointF(15, 13), 12);
  g.setColorAt(0, shade(kSkin, 1.08));
  g.setColorAt(0.7, kSkin);
  g.setColorAt(1, kSkinShade);
  p.fillPath(face, g);
  p.strokePath(face, linePen(QColor(0x9a, 0x62, 0x48), 0.45));
  // Nose.
  QPainterPath nose;
  nose.moveTo(16.3, 16.0);
  nose.quadTo(16.9, 17.4, 16.0, 17.7);
  p.strokePath(nose, linePen(QColor(0xb8, 0x7a, 0x5a), 0.55));
}

void paintFrontHair(QPainter& p) {
  // Locks framing the face and falling over the shoulders.
  for (int side = -1; side <= 1; side += 2) {
    QPainterPath lock;
    auto pt = [side](double x, double y) { return QPointF(16 + side * (16 - x), y); };
    lock.moveTo(pt(9.2, 11.0));
    lock.cubicTo(pt(7.8, 16.0), pt(9.8, 19.6), pt(8.4, 23.6));
    lock.cubicTo(pt(7.2, 26.8), pt(9.0, 29.2), pt(7.8, 32.0));
    lock.lineTo(pt(3.6, 32.0));
    lock.cubicTo(pt(5.0, 28.4), pt(3.4, 25.4), pt(4.8, 21.8));
    lock.cubicTo(pt(6.0, 18.4), pt(5.2, 14.8), pt(6.6, 11.2));
    lock.closeSubpath();
    p.fillPath(lock, kHair);
    QPainterPath shine;
    shine.moveTo(pt(6.6, 15.0));
    shine.cubicTo(pt(7.2, 18.0), pt(6.0, 20.0), pt(6.4, 23.0));
    p.strokePath(shine, linePen(QColor(0x7a, 0x4a, 0x38, 150), 0.5));
  }
  // Side-swept fringe.
  QPainterPath fringe;
  fringe.moveTo(8.3, 14.0);
  fringe.cubicTo(7.4, 7.0, 11.8, 4.0, 16.5, 4.2);
  fringe.cubicTo(21.6, 4.4, 24.8, 8.0, 23.7, 14.2);
  fringe.cubicTo(23.0, 11.4, 22.2, 9.6, 20.8, 8.7);
  fringe.cubicTo(18.4, 9.0, 14.6, 8.6, 12.8, 6.9);
  fringe.cubicTo(10.6, 7.9, 9.0, 9.6, 8.3, 14.0);
  fringe.closeSubpath();
  QLinearGradient fg(10, 4, 20, 11);
  fg.setColorAt(0, kHairLight);
  fg.setColorAt(0.5, kHair);
  fg.setColorAt(1, shade(kHair, 0.85));
  p.fillPath(fringe, fg);
  QPainterPath wave;
  wave.moveTo(11.0, 6.6);
  wave.quadTo(14.0, 4.8, 17.6, 5.4);
  p.strokePath(wave, linePen(QColor(0x8a, 0x5a, 0x46, 170), 0.6));
  QPainterPath wave2;
  wave2.moveTo(19.6, 6.0);
  wave2.quadTo(22.4, 7.4, 22.8, 10.4);
  p.strokePath(wave2, linePen(QColor(0x8a, 0x5a, 0x46, 120), 0.5));
}

void paintEarrings(QPainter& p) {
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(kGoldRing, 0.7));
  p.drawEllipse(QPointF(8.7, 19.4), 1.1, 1.3);
  p.drawEllipse(QPointF(23.3, 19.4), 1.1, 1.3);
}

void paintFlower(QPainter& p) {
  const QPointF c(8.0, 7.4);
  // Leaves.
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0x2e, 0x8a, 0x3a));
  for (double a : {35.0, 120.0}) {
    p.save();
    p.translate(c);
    p.rotate(a);
    p.drawEllipse(QPointF(2.9, 0), 1.5, 0.7);
    p.restore();
  }
  p.setPen(QPen(QColor(0x8a, 0x0c, 0x18), 0.35));
  p.setBrush(QColor(0xe8, 0x22, 0x30));
  for (int k = 0; k < 5; ++k) {
    const double a = -kPi / 2 + k * 2 * kPi / 5;
    p.drawEllipse(QPointF(c.x() + 1.45 * std::cos(a), c.y() + 1.45 * std::sin(a)), 1.35, 1.35);
  }
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0xff, 0x5a, 0x60));
  p.drawEllipse(c, 1.1, 1.1);
  p.setBrush(QColor(0xf8, 0xd8, 0x40));
  p.drawEllipse(c, 0.55, 0.55);
}

// ---- what changes with the mood ------------------------------------------------------

QPainterPath almond(double cx, double cy, double w, double h) {
  QPainterPath a;
  a.moveTo(cx - w / 2, cy);
  a.quadTo(cx, cy - h * 0.66, cx + w / 2, cy);
  a.quadTo(cx, cy + h * 0.6, cx - w / 2, cy);
  a.closeSubpath();
  return a;
}

// `side` is -1 for the eye on the player's left, +1 on the right.
void paintEye(QPainter& p, Eye eye, double cx, double cy, int side, QPointF look) {
  const double outer = cx + side * 2.2;
  const double inner = cx - side * 2.2;
  switch (eye) {
    case Eye::Happy: {
      QPainterPath arc;
      arc.moveTo(cx - 1.9, cy + 0.7);
      arc.quadTo(cx, cy - 1.7, cx + 1.9, cy + 0.7);
      strokeCrisp(p, arc, linePen(kLine, 1.0));
      return;
    }
    case Eye::Closed: {
      QPainterPath arc;
      arc.moveTo(inner, cy - 0.1);
      arc.quadTo(cx, cy + 1.4, outer, cy - 0.1);
      arc.lineTo(outer + side * 0.6, cy - 0.7);
      strokeCrisp(p, arc, linePen(kLine, 1.0));
      return;
    }
    case Eye::Heart: {
      const QPainterPath heart = suitPath(Suit::Hearts, QRectF(cx - 2.2, cy - 2.1, 4.4, 4.2));
      p.fillPath(heart, QColor(0xe8, 0x1c, 0x40));
      p.strokePath(heart, linePen(QColor(0x80, 0x08, 0x18), 0.4));
      p.setPen(Qt::NoPen);
      p.setBrush(QColor(255, 255, 255, 200));
      p.drawEllipse(QPointF(cx - 0.9, cy - 0.8), 0.45, 0.45);
      return;
    }
    default:
      break;
  }

  if (eye == Eye::Wide || eye == Eye::Tiny) {
    // Surprise shows the whites of the eyes.
    const QPainterPath white = almond(cx, cy, 4.6, 4.0);
    p.fillPath(white, QColor(0xff, 0xfc, 0xf8));
    p.save();
    p.setClipPath(white);
    p.setPen(Qt::NoPen);
    p.setBrush(kIris);
    const QPointF iris(cx + look.x(), cy + 0.2 + look.y());
    if (eye == Eye::Wide) {
      p.drawEllipse(iris, 1.2, 1.3);
      p.setBrush(Qt::white);
      p.drawEllipse(iris + QPointF(0.4, -0.45), 0.45, 0.45);
    } else {
      p.setBrush(kLine);
      p.drawEllipse(iris, 0.55, 0.55);
    }
    p.restore();
    QPainterPath lash;
    lash.moveTo(cx - side * 2.3, cy + 0.1);
    lash.quadTo(cx, cy - 2.9, cx + side * 2.3, cy - 0.1);
    lash.lineTo(cx + side * 3.0, cy - 0.9);
    strokeCrisp(p, lash, linePen(kLine, 1.0));
    return;
  }

  // Dark almond-shaped eyes with a bright highlight: they stay readable even
  // when the picture is only 32 pixels wide.
  const QPointF at(cx + look.x(), cy + look.y());
  QPainterPath iris;
  iris.addEllipse(at, 1.35, 1.65);
  p.save();
  if (eye == Eye::Star) {
    p.fillPath(iris, QColor(0x2a, 0x14, 0x08));
    QPainterPath star;
    for (int k = 0; k < 10; ++k) {
      const double r = k % 2 == 0 ? 1.35 : 0.5;
      const double a = -kPi / 2 + k * kPi / 5;
      const QPointF q(at.x() + r * std::cos(a), at.y() + r * std::sin(a));
      if (k == 0) {
        star.moveTo(q);
      } else {
        star.lineTo(q);
      }
    }
    star.closeSubpath();
    p.fillPath(star, QColor(0xff, 0xd8, 0x30));
  } else {
    QLinearGradient g(at.x(), at.y() - 1.75, at.x(), at.y() + 1.75);
    g.setColorAt(0, kLine);
    g.setColorAt(1, QColor(0x7a, 0x42, 0x1e));
    p.fillPath(iris, g);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawEllipse(at + QPointF(0.45, -0.6), 0.55, 0.55);
  }

  // Eyelids for the half-closed, angry and sad eyes.
  const double in = cx - side * 1.8;
  const double out = cx + side * 1.9;
  QPainterPath lash;
  bool lid = true;
  if (eye == Eye::Half) {
    lash.moveTo(in, cy - 0.1);
    lash.quadTo(cx, cy - 0.6, out, cy - 0.2);
  } else if (eye == Eye::Angry) {
    lash.moveTo(in, cy - 0.2);
    lash.lineTo(out, cy - 1.6);
  } else if (eye == Eye::Droopy) {
    lash.moveTo(in, cy - 1.6);
    lash.lineTo(out, cy - 0.3);
  } else {
    lid = false;
    lash.moveTo(in, cy - 1.3);
    lash.quadTo(cx, cy - 2.6, out, cy - 1.6);
  }
  if (lid) {
    QPainterPath cover = lash;
    cover.lineTo(out + side * 0.6, cy - 3.5);
    cover.lineTo(in - side * 0.6, cy - 3.5);
    cover.closeSubpath();
    p.fillPath(cover, shade(kSkin, 0.93));
  }
  p.restore();
  lash.lineTo(cx + side * 2.8, cy - (lid ? 1.0 : 2.4));
  strokeCrisp(p, lash, linePen(kLine, 1.0));
}

void paintBrow(QPainter& p, Brow brow, double cx, int side) {
  const double in = cx - side * 1.6;
  const double out = cx + side * 2.1;
  const double y = kBrowY;
  QPainterPath b;
  switch (brow) {
    case Brow::Normal:
      b.moveTo(in, y + 0.2);
      b.quadTo(cx, y - 0.9, out, y + 0.4);
      break;
    case Brow::Raised:
      b.moveTo(in, y - 0.4);
      b.quadTo(cx, y - 1.7, out, y - 0.2);
      break;
    case Brow::Angry:
      b.moveTo(in, y + 1.0);
      b.quadTo(cx, y - 0.1, out, y - 0.8);
      break;
    case Brow::Sad:
      b.moveTo(in, y - 0.7);
      b.quadTo(cx, y - 0.3, out, y + 0.7);
      break;
    case Brow::Flat:
      b.moveTo(in, y);
      b.lineTo(out, y - 0.1);
      break;
    case Brow::Low:
      b.moveTo(in, y + 0.8);
      b.quadTo(cx, y + 0.1, out, y + 0.4);
      break;
  }
  strokeCrisp(p, b, linePen(kLine, 1.0));
}

void paintMouth(QPainter& p, Mouth mouth) {
  const double cx = 16, y = kMouthY;
  const QPen lips = linePen(kLips, 1.0);
  auto openMouth = [&](const QPainterPath& shape, bool teeth, bool tongue) {
    p.fillPath(shape, kMouthInside);
    p.save();
    p.setClipPath(shape);
    const QRectF b = shape.boundingRect();
    if (teeth)
      p.fillRect(QRectF(b.left(), b.top() - 1, b.width(), 1.0 + b.height() * 0.38), Qt::white);
    if (tongue) {
      p.setPen(Qt::NoPen);
      p.setBrush(QColor(0xf0, 0x6a, 0x80));
      p.drawEllipse(QPointF(b.center().x(), b.bottom()), b.width() * 0.3, b.height() * 0.42);
    }
    p.restore();
    p.strokePath(shape, linePen(kLips, 0.6));
  };
  switch (mouth) {
    case Mouth::Smile: {
      QPainterPath m;
      m.moveTo(cx - 2.4, y - 0.5);
      m.quadTo(cx, y + 1.6, cx + 2.4, y - 0.5);
      p.strokePath(m, lips);
      break;
    }
    case Mouth::TinySmile: {
      QPainterPath m;
      m.moveTo(cx - 1.3, y);
      m.quadTo(cx, y + 0.9, cx + 1.3, y);
      p.strokePath(m, lips);
      break;
    }
    case Mouth::SmileOpen: {
      QPainterPath m;
      m.moveTo(cx - 2.7, y - 0.8);
      m.quadTo(cx, y - 0.1, cx + 2.7, y - 0.8);
      m.quadTo(cx, y + 3.4, cx - 2.7, y - 0.8);
      openMouth(m, true, false);
      break;
    }
    case Mouth::Laugh: {
      QPainterPath m;
      m.moveTo(cx - 3.0, y - 1.0);
      m.quadTo(cx, y - 0.3, cx + 3.0, y - 1.0);
      m.quadTo(cx, y + 4.6, cx - 3.0, y - 1.0);
      openMouth(m, true, true);
      break;
    }
    case Mouth::Smirk: {
      QPainterPath m;
      m.moveTo(cx - 2.1, y + 0.3);
      m.quadTo(cx + 0.6, y + 1.1, cx + 2.4, y - 0.6);
      m.lineTo(cx + 2.8, y - 1.0);
      p.strokePath(m, lips);
      break;
    }
    case Mouth::Pout: {
      QPainterPath m;
      m.moveTo(cx - 1.5, y + 0.5);
      m.quadTo(cx, y - 0.9, cx + 1.5, y + 0.5);
      m.quadTo(cx, y + 2.0, cx - 1.5, y + 0.5);
      m.closeSubpath();
      p.fillPath(m, kLips);
      p.strokePath(m, linePen(shade(kLips, 0.7), 0.35));
      p.setPen(linePen(shade(kLips, 0.55), 0.4));
      p.drawLine(QPointF(cx - 1.1, y + 0.5), QPointF(cx + 1.1, y + 0.5));
      break;
    }
    case Mouth::Oh: {
      QPainterPath m;
      m.addEllipse(QPointF(cx, y + 0.6), 1.3, 1.7);
      openMouth(m, false, false);
      break;
    }
    case Mouth::Kiss: {
      QPainterPath m;
      m.addEllipse(QPointF(cx + 0.4, y + 0.3), 1.1, 1.0);
      p.fillPath(m, kLips);
      p.strokePath(m, linePen(shade(kLips, 0.6), 0.35));
      p.setPen(linePen(shade(kLips, 0.5), 0.4));
      p.drawLine(QPointF(cx - 0.2, y + 0.3), QPointF(cx + 1.0, y + 0.3));
      break;
    }
    case Mouth::Tongue: {
      QPainterPath m;
      m.moveTo(cx - 2.3, y - 0.5);
      m.quadTo(cx, y + 1.6, cx + 2.3, y - 0.5);
      p.strokePath(m, lips);
      QPainterPath t;
      t.moveTo(cx - 0.9, y + 0.5);
      t.cubicTo(cx - 1.2, y + 2.9, cx + 1.6, y + 3.0, cx + 1.3, y + 0.4);
      t.closeSubpath();
      p.fillPath(t, QColor(0xf0, 0x6a, 0x80));
      p.strokePath(t, linePen(shade(kLips, 0.7), 0.4));
      p.setPen(linePen(QColor(0xc0, 0x40, 0x58), 0.35));
      p.drawLine(QPointF(cx + 0.2, y + 1.0), QPointF(cx + 0.2, y + 2.0));
      break;
    }
    case Mouth::Flat:
      p.setPen(lips);
      p.drawLine(QPointF(cx - 1.9, y + 0.4), QPointF(cx + 1.9, y + 0.4));
      break;
    case Mouth::Side:
      p.setPen(lips);
      p.drawLine(QPointF(cx - 0.8, y + 0.6), QPointF(cx + 2.2, y + 0.1));
      break;
    case Mouth::Frown: {
      QPainterPath m;
      m.moveTo(cx - 2.1, y + 1.1);
      m.quadTo(cx, y - 0.7, cx + 2.1, y + 1.1);
      p.strokePath(m, lips);
      break;
    }
    case Mouth::FrownOpen: {
      QPainterPath m;
      m.moveTo(cx - 2.3, y + 2.0);
      m.quadTo(cx, y - 2.4, cx + 2.3, y + 2.0);
      m.quadTo(cx, y + 1.2, cx - 2.3, y + 2.0);
      openMouth(m, false, false);
      break;
    }
    case Mouth::Grimace: {
      QPainterPath m;
      m.addRoundedRect(QRectF(cx - 2.7, y - 0.8, 5.4, 2.4), 0.9, 0.9);
      p.fillPath(m, Qt::white);
      p.setPen(linePen(QColor(0xa0, 0x90, 0x90), 0.3));
      p.drawLine(QPointF(cx - 2.6, y + 0.4), QPointF(cx + 2.6, y + 0.4));
      for (double x : {-1.3, 0.0, 1.3})
        p.drawLine(QPointF(cx + x, y - 0.7), QPointF(cx + x, y + 1.5));
      p.strokePath(m, linePen(kLips, 0.6));
      break;
    }
    case Mouth::Wavy: {
      QPainterPath m;
      m.moveTo(cx - 2.4, y + 0.5);
      m.cubicTo(cx - 1.6, y - 0.5, cx - 0.8, y - 0.5, cx, y + 0.5);
      m.cubicTo(cx + 0.8, y + 1.5, cx + 1.6, y + 1.5, cx + 2.4, y + 0.5);
      p.strokePath(m, linePen(kLips, 0.8));
      break;
    }
    case Mouth::Yawn: {
      QPainterPath m;
      m.addEllipse(QPointF(cx, y + 1.0), 1.9, 2.4);
      openMouth(m, false, true);
      break;
    }
  }
}

void paintBlush(QPainter& p, int level) {
  if (level == 0) return;
  p.setPen(Qt::NoPen);
  for (double x : {10.9, 21.1}) {
    QRadialGradient g(QPointF(x, 17.6), 2.2);
    g.setColorAt(0, QColor(0xf4, 0x60, 0x70, level == 2 ? 190 : 110));
    g.setColorAt(1, QColor(0xf4, 0x60, 0x70, 0));
    p.setBrush(g);
    p.drawEllipse(QPointF(x, 17.6), 2.2, 1.5);
  }
  if (level == 2) {
    p.setPen(linePen(QColor(0xd8, 0x38, 0x50), 0.4));
    for (double x : {10.9, 21.1}) {
      for (double dx : {-0.9, 0.0, 0.9}) {
        p.drawLine(QPointF(x + dx - 0.25, 18.0), QPointF(x + dx + 0.35, 17.1));
      }
    }
  }
}

QPainterPath dropPath(QPointF tip, double size) {
  QPainterPath d;
  d.moveTo(tip);
  d.cubicTo(tip.x() + size * 0.5, tip.y() + size * 0.6, tip.x() + size * 0.55, tip.y() + size,
            tip.x(), tip.y() + size);
  d.cubicTo(tip.x() - size * 0.55, tip.y() + size, tip.x() - size * 0.5, tip.y() + size * 0.6,
            tip.x(), tip.y());
  d.closeSubpath();
  return d;
}

void paintSparkle(QPainter& p, QPointF c, double r, const QColor& color) {
  QPainterPath s;
  s.moveTo(c.x(), c.y() - r);
  s.quadTo(c.x(), c.y(), c.x() + r, c.y());
  s.quadTo(c.x(), c.y(), c.x(), c.y() + r);
  s.quadTo(c.x(), c.y(), c.x() - r, c.y());
  s.quadTo(c.x(), c.y(), c.x(), c.y() - r);
  p.strokePath(s, linePen(QColor(0x60, 0x40, 0x00, 200), 0.6));
  p.fillPath(s, color);
}

// A hand with red nails held over the mouth (giggling).
void paintHand(QPainter& p, QPointF at) {
  QPainterPath hand;
  hand.addRoundedRect(QRectF(at.x() - 2.8, at.y() - 1.6, 5.6, 4.0), 1.8, 1.8);
  p.fillPath(hand, kSkin);
  p.strokePath(hand, linePen(QColor(0x9a, 0x62, 0x48), 0.45));
  p.setPen(linePen(QColor(0xc0, 0x86, 0x66), 0.35));
  for (double dx : {-1.2, 0.1}) {
    p.drawLine(QPointF(at.x() + dx, at.y() - 0.4), QPointF(at.x() + dx + 0.8, at.y() + 0.2));
  }
  p.setPen(Qt::NoPen);
  p.setBrush(kLips);
  for (double dx : {-1.4, 0.1, 1.6}) p.drawEllipse(QPointF(at.x() + dx, at.y() - 1.2), 0.45, 0.35);
}

void paintMarks(QPainter& p, unsigned marks) {
  const QColor dropFill(0x8c, 0xd0, 0xf8);
  const QPen dropPen = linePen(QColor(0x20, 0x60, 0xa8), 0.45);
  if (marks & kTear) {
    const QPainterPath d = dropPath(QPointF(20.6, 15.9), 2.6);
    p.fillPath(d, dropFill);
    p.strokePath(d, dropPen);
  }
  if (marks & kSweat) {
    const QPainterPath d = dropPath(QPointF(25.2, 5.2), 3.6);
    p.fillPath(d, dropFill);
    p.strokePath(d, dropPen);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(24.7, 7.6), 0.4, 0.6);
  }
  if (marks & kZzz) {
    const QPainterPath z1 = fitPath(textPath(QStringLiteral("Z"), 40), QRectF(24.0, 4.6, 3.4, 3.6));
    const QPainterPath z2 = fitPath(textPath(QStringLiteral("Z"), 40), QRectF(27.6, 0.8, 2.8, 3.0));
    for (const QPainterPath& z : {z1, z2}) {
      p.strokePath(z, linePen(QColor(0x1a, 0x2a, 0x60), 1.1));
      p.fillPath(z, Qt::white);
    }
  }
  if (marks & kHeart) {
    const QPainterPath h = suitPath(Suit::Hearts, QRectF(24.4, 1.6, 5.6, 5.2));
    p.strokePath(h, linePen(Qt::white, 1.0));
    p.fillPath(h, QColor(0xe8, 0x1c, 0x40));
  }
  if (marks & kAnger) {
    // The cross-shaped "vein" of a cartoon temper.
    const QPointF c(25.8, 5.0);
    QPainterPath v;
    for (int q = 0; q < 4; ++q) {
      const double sx = (q == 0 || q == 3) ? 1 : -1;
      const double sy = (q < 2) ? 1 : -1;
      v.moveTo(c.x() + sx * 0.6, c.y() + sy * 2.2);
      v.quadTo(c.x() + sx * 0.6, c.y() + sy * 0.6, c.x() + sx * 2.2, c.y() + sy * 0.6);
    }
    p.strokePath(v, linePen(Qt::white, 1.8));
    p.strokePath(v, linePen(QColor(0xe0, 0x10, 0x20), 0.9));
  }
  if (marks & kSparkle) {
    paintSparkle(p, QPointF(26.6, 4.4), 2.8, QColor(0xff, 0xf4, 0xa0));
    paintSparkle(p, QPointF(23.6, 1.9), 1.4, QColor(0xff, 0xff, 0xff));
  }
  if (marks & kQuestion) {
    const QPainterPath q = fitPath(textPath(QStringLiteral("?"), 40), QRectF(25.0, 1.0, 4.0, 6.0));
    p.strokePath(q, linePen(QColor(0x1a, 0x2a, 0x60), 1.1));
    p.fillPath(q, Qt::white);
  }
  if (marks & kHandMouth) paintHand(p, QPointF(16.6, 21.4));
}

void paintZeva(QPainter& p, const Mood& m) {
  paintBackHair(p);
  paintBody(p);
  paintFaceShape(p);
  paintBlush(p, m.blush);
  paintEye(p, m.left, kEyeLX, kEyeY, -1, m.look);
  paintEye(p, m.right, kEyeRX, kEyeY, 1, m.look);
  paintBrow(p, m.browLeft, kEyeLX, -1);
  paintBrow(p, m.browRight, kEyeRX, 1);
  paintMouth(p, m.mouth);
  paintFrontHair(p);
  paintEarrings(p);
  paintFlower(p);
  paintMarks(p, m.marks);
}

// The picture of the credits: ZEVA with her sly look over a fan of cards on the felt.
void paintCredits(QPainter& p) {
  const QRectF felt(0.5, 0.5, 111, 147);
  QLinearGradient green(felt.topLeft(), felt.bottomLeft());
  green.setColorAt(0, QColor(0x22, 0x80, 0x10));
  green.setColorAt(1, QColor(0x12, 0x4C, 0x02));
  p.setPen(QPen(QColor(0xC8, 0xA0, 0x30), 1));
  p.setBrush(green);
  p.drawRoundedRect(felt, 6, 6);
  // Three backs fanned out behind her, one of each of three designs.
  for (int i = 0; i < 3; ++i) {
    p.save();
    p.translate(56, 140);
    p.rotate(-24 + 24 * i);
    p.scale(0.62, 0.62);
    paintCardBack(p, QRectF(-kCardW / 2.0, -kCardH - 20, kCardW, kCardH), 2 * i, false);
    p.restore();
  }
  p.save();
  p.translate(8, 2);
  p.scale(3, 3);
  paintZeva(p, kMoods[19]);
  p.restore();
  const QPainterPath name = fitPath(textPath(QStringLiteral("ZEVA"), 20), QRectF(20, 124, 72, 18));
  p.setPen(QPen(QColor(0x40, 0x20, 0x00), 1.5));
  p.setBrush(QColor(0xFF, 0xD8, 0x40));
  p.drawPath(name);
}

}  // namespace

void addFaces(ArtList& list) {
  for (int i = 0; i < 27; ++i) {
    const Mood mood = kMoods[i];
    list.push_back({QStringLiteral("faces/%1").arg(i + 1), QStringLiteral("faces (ZEVA's moods)"),
                    32, 32, [mood](QPainter& p) { paintZeva(p, mood); }});
  }
  list.push_back(
      {QStringLiteral("extras/Creditos"), QStringLiteral("credits"), 112, 148, paintCredits});
}

}  // namespace artgen
