#include "src/frontend/desktop/paint/text_paint.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPointF>
#include <QTextLayout>
#include <QTextOption>

#include "src/frontend/shared/text_fit.h"

namespace orvane {
namespace {

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
  const double squeeze = SqueezeInto(width, box.width());
  painter.translate(box.topLeft());
  painter.scale(squeeze, 1);
  painter.drawText(QRectF(0, 0, box.width() / squeeze, box.height()),
                   alignment | Qt::AlignTop | Qt::TextSingleLine | Qt::TextDontClip, text);
}

void PaintLines(QPainter& painter, const QRectF& box, const QString& text, int alignment) {
  const QFont font = painter.font();
  QTextLayout trial(WithLineSeparators(text), font);
  const Fit fit = FitLines([&trial](double width) { return Break(trial, width, 0); }, box.width(),
                           box.height(), QFontMetricsF(font).lineSpacing(), OwnLineHeight(font));
  QTextLayout layout(WithLineSeparators(text), font, painter.device());
  layout.setTextOption(QTextOption(static_cast<Qt::Alignment>(alignment)));
  Break(layout, box.width() / fit.Squeeze, fit.Pitch);
  painter.translate(box.topLeft());
  painter.scale(fit.Squeeze, 1);
  layout.draw(&painter, {});
}

}  // namespace

int OwnLineHeight(const QFont& font) {
  return OwnLineHeight(QFontInfo(font).pixelSize());
}

void PaintText(QPainter& painter, const QRectF& box, const QString& text, int alignment) {
  const int size = QFontInfo(painter.font()).pixelSize();
  const double rise = ExtraRise(size, QFontMetricsF(painter.font()).ascent());
  const QRectF place = box.translated(0, -rise);
  const bool one_line = IsOneLine(text.toStdString(), box.height(), size);
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
