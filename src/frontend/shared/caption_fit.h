// Captions on buttons that are lower or narrower than their text.
#pragma once

#include <string>

namespace orvane {

// The size of a caption's letters, of `size` where a button of this height has room for them; all
// in pixels.
int CaptionSize(int size, int height);

// A caption that is too wide for one line, with a line end in place of its last blank; as it is
// where it has none within.
std::string InTwoLines(const std::string& caption);

}  // namespace orvane
