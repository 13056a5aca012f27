// Paints texts in boxes that are laid out for the game's own faces.
#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace orvane {

// The height of a line in the game's own faces.
int OwnLineHeight(const QFont& font);

// Paints a text with the painter's font and pen. Of `alignment` only the horizontal part counts; it
// starts at the top. A box that has no room for two lines holds one, which is made narrower rather
// than broken.
void PaintText(QPainter& painter, const QRectF& box, const QString& text, int alignment);

}  // namespace orvane
