// Paints texts in boxes that are laid out for the game's own faces.
#pragma once

#include <string>

#include "src/frontend/windows/paint/fonts.h"
#include "src/frontend/windows/system/windows_api.h"
#include "src/ui/controls.h"

namespace orvane {

// How wide a text is in the font of a device context.
int TextWidth(HDC context, const std::wstring& text);

// The colour as the system has it.
COLORREF SystemColour(Colour colour);

// The height of a font's letters in pixels of the screen.
int LetterPixels(const Font& font, double scale);

// Paints a label's text from the top of the box on. A box that has no room for two lines holds one,
// which is made narrower rather than broken.
void PaintText(HDC context, Fonts& fonts, const RECT& box, const LabelValues& text, double scale);

// Selects the font of the text in this size, made narrower so far as it does not fit into `room`.
void SelectFitting(HDC context, Fonts& fonts, const Font& font, int pixels,
                   const std::wstring& text, int room);

}  // namespace orvane
