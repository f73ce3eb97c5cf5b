// Popup menus: the game's menu tree (entries with caption, check mark, enabled, visible, children,
// "-" for a separator) shown as a QMenu at the mouse (or where the keyboard asked for it), walked
// by mouse or keys. The chosen entry's Click runs before the call returns, as the old runtime's
// PopupMenu did.
#pragma once

#include <QPoint>
#include <optional>

#include "platform/forms.h"

namespace front {

void ShowPopupMenu(vb::Control& menu);

// Where the next menu opens instead of at the mouse (opened from the keyboard: at the focus).
void SetPopupPlace(std::optional<QPoint> global);

}  // namespace front
