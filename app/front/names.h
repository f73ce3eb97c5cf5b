// What a screen reader says for a control: the name the game gives it, else its own text (buttons
// by their caption without the "&" of the accelerator, labels by their text, a window by its
// title). The front never makes a name up from a control's internals.
#pragma once

#include <QString>
#include <string>

#include "platform/forms.h"

namespace front {

// "&P A G O" -> "P A G O"; "&&" stays one "&".
QString WithoutAccelerator(const std::string& caption);

// The name of a control's widget (not for toolbar buttons, which their toolbar names).
QString AccessibleName(const vb::Control& control);

}  // namespace front
