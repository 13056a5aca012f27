// Which of several boxes an arrow key leads to.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "src/game/program.h"
#include "src/ui/surface.h"

namespace orvane {

// The index of the box that lies next to `from` in that direction: near rather than far, and beside
// it rather than off its way. Nothing where no box lies that way.
std::optional<size_t> Nearest(const Rect& from, const std::vector<Rect>& boxes,
                              Direction direction);

}  // namespace orvane
