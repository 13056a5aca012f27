#include "src/frontend/desktop/paint/text_fit.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPointF>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

constexpr double Narrowest = 0.75;

// How many lines a text takes; leaves it broken into them, `pitch` apart.
int Break(QTextLayout& layout, double width, double pitch) {
  int count = 0;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    line.setPosition({0, pitch * count++});
  }
  layout.endLayout();
  return count;
}

QString WithLineSeparators(QString text) {
  return text.replace('\n', QChar::LineSeparator);
}

void PaintLine(QPainter& painter, const QRectF& box, const QString& text, int alignment) {
  const double width = QFontMetricsF(painter.font()).horizontalAdvance(text.trimmed());
  const double squeeze = width > box.width() ? std::max(Narrowest, box.width() / width) : 1.0;
  painter.translate(box.topLeft());
  painter.scale(squeeze, 1);
  painter.drawText(QRectF(0, 0, box.width() / squeeze, box.height()),
                   alignment | Qt::AlignTop | Qt::TextSingleLine | Qt::TextDontClip, text);
}

void PaintLines(QPainter& painter, const QRectF& box, const QString& text, int alignment) {
  const Fit fit = FitLines(painter.font(), text, box.width(), box.height());
  QTextLayout layout(WithLineSeparators(text), painter.font(), painter.device());
  layout.setTextOption(QTextOption(static_cast<Qt::Alignment>(alignment)));
  Break(layout, box.width() / fit.Squeeze, fit.Pitch);
  painter.translate(box.topLeft());
  painter.scale(fit.Squeeze, 1);
  layout.draw(&painter, {});
}

}  // namespace

int OwnLineHeight(const QFont& font) {
  constexpr int gap = 1;
  return QFontInfo(font).pixelSize() + gap;
}

double ExtraRise(const QFont& font) {
  constexpr double own_ascent = 0.88;  // of the letters' size
  const double own = std::ceil(own_ascent * QFontInfo(font).pixelSize());
  return std::max(0.0, QFontMetricsF(font).ascent() - own);
}

Fit FitLines(const QFont& font, const QString& text, double width, double height) {
  constexpr double step = 0.05;
  const double own = OwnLineHeight(font);
  const double comfortable = std::max(own, QFontMetricsF(font).lineSpacing());
  QTextLayout layout(WithLineSeparators(text), font);
  Fit fit = {1, comfortable};
  if (Break(layout, width, fit.Pitch) * fit.Pitch <= height) return fit;
  fit.Pitch = own;
  while (Break(layout, width / fit.Squeeze, own) * own > height && fit.Squeeze > Narrowest) {
    fit.Squeeze = std::max(Narrowest, fit.Squeeze - step);
  }
  return fit;
}

void PaintText(QPainter& painter, const QRectF& box, const QString& text, int alignment) {
  const double rise = ExtraRise(painter.font());
  const QRectF place = box.translated(0, -rise);
  const bool one_line = box.height() < 2 * OwnLineHeight(painter.font()) && !text.contains('\n');
  painter.save();
  if (one_line) {
    PaintLine(painter, place, text, alignment);
  } else if (rise > 0) {
    PaintLines(painter, place, text, alignment);
  } else {
    painter.drawText(box, alignment | Qt::AlignTop | Qt::TextWordWrap | Qt::TextDontClip, text);
  }
  painter.restore();
}

}  // namespace orvane
