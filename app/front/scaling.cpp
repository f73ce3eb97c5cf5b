#include "front/scaling.h"

#include <algorithm>
#include <cmath>

namespace front {

double FitScale(QSize client, QSize base) {
  if (base.isEmpty()) return 1.0;
  const double s =
      std::min(double(client.width()) / base.width(), double(client.height()) / base.height());
  return std::max(kMinScale, s);
}

double OpeningScale(QSize base, QRect available, QMargins frame) {
  if (base.isEmpty() || available.isEmpty()) return 1.0;
  const QSize room(static_cast<int>(available.width() * kComfort) - frame.left() - frame.right(),
                   static_cast<int>(available.height() * kComfort) - frame.top() - frame.bottom());
  return FitScale(room, base);
}

QRect PlaceWithin(QSize size, QRect over, QRect available) {
  QRect r(QPoint(0, 0), size.boundedTo(available.size()));
  r.moveCenter(over.center());
  if (r.right() > available.right()) r.moveRight(available.right());
  if (r.bottom() > available.bottom()) r.moveBottom(available.bottom());
  if (r.left() < available.left()) r.moveLeft(available.left());
  if (r.top() < available.top()) r.moveTop(available.top());
  return r;
}

Span Scaled(int start_twips, int length_twips, double scale) {
  const auto px = [scale](int twips) {
    return static_cast<int>(std::lround(twips * scale / 15.0));
  };
  const int start = px(start_twips);
  return {start, px(start_twips + length_twips) - start};
}

}  // namespace front
