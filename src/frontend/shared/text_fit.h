// Texts in boxes that are laid out for the game's own faces. Other faces are wider, or leave more
// room between lines; their letters must not be cut all the same.
#pragma once

#include <functional>
#include <string_view>

namespace orvane {

// Room above a text's box: some faces reach higher than the game's own, and their tops must not be
// cut.
constexpr int kHeadroom = 3;

// The height of a line in the game's own faces; `size` is that of the letters, both in pixels.
int OwnLineHeight(int size);

// How much further down its lines a face has its letters than the game's own faces have; 0 or more.
// `ascent` is what the face has above the line that letters stand on.
double ExtraRise(int size, double ascent);

// Whether a box holds one line, which is made narrower rather than broken: it has no room for two,
// and the text asks for none.
bool IsOneLine(std::string_view text, double height, int size);

// What the letters of a line's width are to be multiplied by so that it goes into `room`: 0.75
// to 1.
double SqueezeInto(double width, double room);

// A text that is broken at the width of its box.
struct Fit {
  double Squeeze = 1;  // its letters' width, 0.75 to 1
  double Pitch = 0;    // from line to line, in pixels
};

// How many lines a text takes when it is broken at this width. Blanks and the letters of Japanese
// words are where it breaks.
using CountLines = std::function<int(double width)>;

// The most comfortable way of setting a text so that it is no higher than the box; the tightest
// where none is. `comfortable` is the face's own pitch, `own` that of the game's faces.
Fit FitLines(const CountLines& count, double width, double height, double comfortable, double own);

}  // namespace orvane
