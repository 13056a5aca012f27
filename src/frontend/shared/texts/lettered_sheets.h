// Pictures with letters, of which there may be one for the language that is shown.
#pragma once

#include "src/frontend/shared/texts/translator.h"
#include "src/ui/stage.h"

namespace orvane {

// Gives the loaded screens that draw with such a picture the one for the language that is shown,
// "credits_en", or the game's own where there is none. Called after each event: a screen that has
// been loaded has the game's own again.
void LetterSheets(const Stage& stage, const Translator& texts);

}  // namespace orvane
