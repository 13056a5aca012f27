// Texts in boxes that are laid out for the game's own faces. Other faces are wider, or leave more
// room between lines; their letters must not be cut all the same.
#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace orvane {

// The height of a line in the game's own faces.
int OwnLineHeight(const QFont& font);

// How much further down its lines a font has its letters than the game's own faces have; 0 or more.
double ExtraRise(const QFont& font);

// A text that is broken at the width of its box.
struct Fit {
  double Squeeze = 1;  // its letters' width, 0.75 to 1
  double Pitch = 0;    // from line to line, in pixels
};

// The most comfortable way of setting the text so that it is no higher than the box; the tightest
// where none is. Blanks and the letters of Japanese words are where it breaks.
Fit FitLines(const QFont& font, const QString& text, double width, double height);

// Paints a text with the painter's font and pen. Of `alignment` only the horizontal part counts; it
// starts at the top. A box that has no room for two lines holds one, which is made narrower rather
// than broken.
void PaintText(QPainter& painter, const QRectF& box, const QString& text, int alignment);

}  // namespace orvane
