// The picture sheets inside the program.
#pragma once

#include <string_view>

#include "src/ui/surface.h"

namespace orvane {

// A sheet by its name, "tiles" for example. Throws RunError(File) when the program holds none of
// that name. Its pixels are read when they are first looked at; copies share them until they are
// drawn on.
const Surface& Sheet(std::string_view name);

// Whether there is a sheet of that name.
bool HasSheet(std::string_view name);

}  // namespace orvane
