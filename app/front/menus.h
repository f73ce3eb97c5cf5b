// Popup menus: the game's menu tree (entries with caption, check mark, enabled, visible, children,
// "-" for a separator) shown as a QMenu at the mouse. The chosen entry's Click runs before the
// call returns, as the old runtime's PopupMenu did.
#pragma once

#include "platform/forms.h"

namespace front {

void ShowPopupMenu(vb::Control& menu);

}  // namespace front
