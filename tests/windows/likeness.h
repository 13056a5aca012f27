// What a window looks like in one size, held against what it looks like in the size that it is
// drawn for.
#pragma once

#include <QImage>
#include <QRect>

namespace orvane::test {

// How many dark pixels of `drawn`, which is as a window is drawn, have nothing dark in `found` at
// their place or beside it, and the other way round, when both are made as large as `drawn`. A text
// that is cut off, or laid out in another way, leaves dozens of them.
int PixelsWithoutTheirLike(const QImage& drawn, const QImage& found);

// How many pixels of that place of `found`, which is `half_steps` halves as large as `drawn`, are
// not what enlarging without smoothing makes of the place, given in even pixels of `drawn`: blocks
// of one colour, where that is no whole number of pixels with edges that have both colours in the
// right parts, and no more.
int PixelsNotCrisp(const QImage& drawn, const QImage& found, const QRect& place, int half_steps);

}  // namespace orvane::test
