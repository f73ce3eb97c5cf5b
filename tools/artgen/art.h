// Shared pieces of the artwork generator: the list of pictures to paint and the
// drawing helpers several pictures have in common (suit shapes, card outline,
// chip colours, text as paths).
#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>
#include <QString>
#include <functional>
#include <vector>

namespace artgen {

// One picture of the game. `name` is its path under assets/images without the
// ".png"; `draw` paints it in 1x pixel coordinates on a transparent canvas.
struct Art {
  QString name;
  QString section;  // heading used on the contact sheet
  int width = 0;
  int height = 0;
  std::function<void(QPainter&)> draw;
};

using ArtList = std::vector<Art>;

// Each file of the generator adds its family of pictures.
void addCardFaces(ArtList& list);
void addCardBacks(ArtList& list);
void addChipPiles(ArtList& list);
void addExtras(ArtList& list);
void addFaces(ArtList& list);
void addBalloon(ArtList& list);
void addShuffle(ArtList& list);

// The application icon, painted on a kIconSize x kIconSize canvas.
constexpr int kIconSize = 256;
void paintIcon(QPainter& p);

// ---- suits -----------------------------------------------------------------

enum class Suit { Hearts, Diamonds, Spades, Clubs };

// The suit symbol fitted into `box` (keeping its own proportions, centred).
QPainterPath suitPath(Suit suit, const QRectF& box);
bool isRed(Suit suit);
QColor suitColor(Suit suit);

// ---- cards -----------------------------------------------------------------

constexpr int kCardW = 71;
constexpr int kCardH = 96;

// Rounded outline of a card occupying `r` (the 1 px border sits on whole pixels).
QPainterPath cardOutline(const QRectF& r, double radius = 4.0);

// Paints the back of card design `design` (0..10); `partner` selects the darker
// variant with the marked centre. `r` is the card rectangle.
void paintCardBack(QPainter& p, const QRectF& r, int design, bool partner);

// ---- chips -----------------------------------------------------------------

struct ChipColors {
  QColor body;   // main colour of the chip
  QColor dark;   // shade of the side and the outline
  QColor spots;  // the edge inserts
};
ChipColors chipColors(int denomination);

// ---- text ------------------------------------------------------------------

// Text as a path, in "DejaVu Sans" (bold if asked) at `pixelSize`, with its
// baseline origin at (0,0).
QPainterPath textPath(const QString& text, int pixelSize, bool bold = true,
                      const QString& family = QStringLiteral("DejaVu Sans"));

// Scales `path` to fit `box` (keeping aspect unless `maxSqueeze` allows a
// narrower width) and centres it there.
QPainterPath fitPath(const QPainterPath& path, const QRectF& box, double maxSqueeze = 1.0);

// Small helpers.
QColor mix(const QColor& a, const QColor& b, double t);
QColor shade(const QColor& c, double factor);

}  // namespace artgen
