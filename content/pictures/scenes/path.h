// Paths written as text.
#pragma once

#include <cairo.h>

#include <string_view>

namespace orvane::paint::scene {

// Makes the path the context's current one. Its text is made of the commands M L H V Q C Z with
// absolute numbers, as in vector files; anything else throws std::invalid_argument.
void TracePath(cairo_t* c, std::string_view path);

}  // namespace orvane::paint::scene
