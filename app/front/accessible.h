// The game's controls as a screen reader meets them: roles by the kind of control, names from the
// game (read when asked, so that a card is named by what it shows now), the table's window as a
// frame and a dialog as a dialog, and what the game hides from readers left out of the tree, a
// hidden container handing its controls on to its own container.
#pragma once

#include <QObject>
#include <functional>

#include "platform/forms.h"

namespace front {

// Installs the factory once; `control_of` finds the control a widget stands for (nullptr when it
// is not one of the game's).
void InstallAccessibility(std::function<vb::Control*(const QObject*)> control_of);

}  // namespace front
