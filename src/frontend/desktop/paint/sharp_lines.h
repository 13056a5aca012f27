// Lines of widgets that are equally thick everywhere, also in a scale that is no whole number.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

namespace orvane {

// Each line is one unit thick: as many pixels of the screen as the scale has, without its fraction.

// A frame inside of a box.
void DrawFrame(QPainter& painter, const QRect& box, const QColor& colour);

// The lowest line of a box.
void DrawUnderline(QPainter& painter, const QRect& box, const QColor& colour);

// A line down from a point.
void DrawMark(QPainter& painter, const QPoint& top, int height, const QColor& colour);

}  // namespace orvane
