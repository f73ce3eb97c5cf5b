// One factor scales the whole table: every control, font and picture. The table keeps its shape
// in any window (the felt fills the margin) and opens at the largest size that sits comfortably on
// its screen.
#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>

namespace front {

// Below this the figures would be unreadable; the window won't shrink further.
inline constexpr double kMinScale = 0.5;
// Share of the screen's free area a table opens in at most.
inline constexpr double kComfort = 0.9;

// The factor at which a table of `base` (its size at scale 1) fits in `client`, shape kept.
double FitScale(QSize client, QSize base);

// The factor a table of `base` opens at on a screen whose free area is `available`, the window's
// frame (`frame`) included: the largest that fits within the comfortable share, at least
// kMinScale.
double OpeningScale(QSize base, QRect available, QMargins frame);

// Where a window whose frame has `size` goes: centred on `over`, then moved (and, if it has to
// be, shrunk) to lie inside `available`.
QRect PlaceWithin(QSize size, QRect over, QRect available);

// A span of twips at `scale` in the desktop's units, taken edge to edge so that neighbours meet.
struct Span {
  int start, length;
};
Span Scaled(int start_twips, int length_twips, double scale);

}  // namespace front
