// Texts in boxes that are too small for the face at hand.
#include "src/frontend/desktop/paint/text_fit.h"

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

TEST(TextFit, AWideLineIsMadeNarrower) {
  const QString text = "MMMMMMMMMMMM";
  const double width = QFontMetricsF(Letters()).horizontalAdvance(text);
  EXPECT_GT(Ink(Painted({20, 60, width + 1, 24}, text)).width(), width * 0.9);
  const QRect narrow = Ink(Painted({20, 60, width * 0.8, 24}, text));
  EXPECT_LE(narrow.right(), 20 + width * 0.8 + 1);
  EXPECT_GT(narrow.width(), width * 0.7);
}

TEST(TextFit, ALinesLettersBeginAtTheTopOfTheBoxWhateverTheFace) {
  const QRect ink = Ink(Painted({20, 60, 300, 24}, "MM"));
  EXPECT_GE(ink.top(), 60);
  EXPECT_LT(ink.bottom(), 60 + 18) << "letters without tails stand on the line of the game's faces";
}

TEST(TextFit, LinesWithRoomEnoughKeepTheFacesOwnDistance) {
  const Fit fit = FitLines(Letters(), "one\ntwo", 300, 200);
  EXPECT_EQ(fit.Squeeze, 1);
  EXPECT_GE(fit.Pitch, QFontMetricsF(Letters()).lineSpacing());
}

TEST(TextFit, LinesDrawTogetherWhereTheBoxIsLow) {
  const Fit fit = FitLines(Letters(), "one\ntwo", 300, 2 * OwnLineHeight(Letters()));
  EXPECT_EQ(fit.Squeeze, 1);
  EXPECT_EQ(fit.Pitch, OwnLineHeight(Letters()));
}

TEST(TextFit, LinesAreMadeNarrowerWhereThatSavesOne) {
  const QString words = "mmmmm mmmmm";
  const double width = QFontMetricsF(Letters()).horizontalAdvance(words);
  const double line = OwnLineHeight(Letters());
  EXPECT_EQ(FitLines(Letters(), words, width + 1, line).Squeeze, 1);
  const Fit fit = FitLines(Letters(), words, width * 0.86, line);
  EXPECT_LT(fit.Squeeze, 1);
  EXPECT_GE(width * 0.86 / fit.Squeeze, width - 1) << "all in one line";
}

TEST(TextFit, NothingIsMadeNarrowerThanCanBeRead) {
  const Fit fit = FitLines(Letters(), QString(200, 'm'), 100, 20);
  EXPECT_EQ(fit.Squeeze, 0.75);
  EXPECT_EQ(fit.Pitch, OwnLineHeight(Letters()));
}

}  // namespace
}  // namespace orvane
