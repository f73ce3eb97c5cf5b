// What a screen reader says for a control: buttons by their caption without the "&" of the
// accelerator, labels by their text, pictures and toolbar buttons by what they show ("Ficha de
// 5" for a chip place, the card code for a card, "12 fichas de 5" for a pile of chips).
#pragma once

#include <QString>
#include <string>

#include "platform/forms.h"

namespace front {

// "&P A G O" -> "P A G O"; "&&" stays one "&".
QString WithoutAccelerator(const std::string& caption);

// The name of a control's widget (not for toolbar buttons).
QString AccessibleName(const vb::Control& control);

// The name of a toolbar button, from the image it shows.
QString ButtonName(vb::Control& toolbar, const vb::ToolbarButton& button);

}  // namespace front
