// The texts that stand on pictures, as screen readers tell them.
#pragma once

#include <string>

#include "src/frontend/shared/texts/translator.h"
#include "src/ui/controls.h"

namespace orvane {

// All that is written on a picture at this moment, a line for each text; a number comes with what
// it belongs to. Nothing while the picture cannot be seen. Pictures that stand on it speak for
// themselves.
std::string SpokenText(const PictureBox& picture, const Translator& texts);

// The same for a screen that is drawn on as a whole, with what is drawn there as a picture.
std::string SpokenText(const Screen& screen, const Translator& texts);

// What stands before a number as its caption, "HP ：", in the game's own language; nothing where
// nothing does.
std::string CaptionBeside(const Control& control);

// Whose or what the number is that a label shows: a text is its own name, but does not say that.
// Nothing for other controls. Finding out takes longer than to
// find out what else has changed of a control.
std::string SpokenMeaning(const Control& control);

}  // namespace orvane
