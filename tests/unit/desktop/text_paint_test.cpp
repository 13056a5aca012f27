// Texts in boxes that are too small for the face at hand.
#include "src/frontend/desktop/paint/text_paint.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <string>

namespace orvane {
namespace {

// Letters of whatever face there is, 20 pixels high.
QFont Letters() {
  QFont font;
  font.setPixelSize(20);
  return font;
}

// The rows and columns of an image that are not white.
QRect Ink(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != 0xFFFFFFFF) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

QImage Painted(const QRectF& box, const QString& text) {
  QImage image(400, 200, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setFont(Letters());
  painter.setPen(Qt::black);
  PaintText(painter, box, text, Qt::AlignLeft);
  return image;
}

TEST(TextPaint, AWideLineIsMadeNarrower) {
  const QString text = "MMMMMMMMMMMM";
  const double width = QFontMetricsF(Letters()).horizontalAdvance(text);
  EXPECT_GT(Ink(Painted({20, 60, width + 1, 24}, text)).width(), width * 0.9);
  const QRect narrow = Ink(Painted({20, 60, width * 0.8, 24}, text));
  EXPECT_LE(narrow.right(), 20 + width * 0.8 + 1);
  EXPECT_GT(narrow.width(), width * 0.7);
}

TEST(TextPaint, ALinesLettersBeginAtTheTopOfTheBoxWhateverTheFace) {
  const QRect ink = Ink(Painted({20, 60, 300, 24}, "MM"));
  EXPECT_GE(ink.top(), 60);
  EXPECT_LT(ink.bottom(), 60 + 18) << "letters without tails stand on the line of the game's faces";
}

// Words in a face that rises higher than the game's own are broken by this program itself.
TEST(TextPaint, LinesDrawTogetherWhereTheBoxIsLow) {
  const double line = OwnLineHeight(Letters());
  const QRect low = Ink(Painted({20, 60, 300, 2 * line}, "MM\nMM"));
  EXPECT_GE(low.top(), 58);
  EXPECT_LE(low.bottom(), 60 + 2 * line);
  const QRect high = Ink(Painted({20, 60, 300, 120}, "MM\nMM"));
  EXPECT_GE(high.height(), low.height());
}

}  // namespace
}  // namespace orvane
