// Properties of controls and screens by name.
#pragma once

#include <optional>

#include "src/frontend/script/names/name_path.h"
#include "src/frontend/script/names/value.h"
#include "src/ui/controls.h"
#include "src/ui/stage.h"

namespace orvane {

// Access to a property of a control, with its index where it has one; nothing when its kind has no
// such property. Writing runs no handler, but for the tab that a tab control opens.
std::optional<Accessor> FindProperty(Control& control, const NamePart& property);

// Access to a property of a screen, or to a number of its own.
std::optional<Accessor> FindProperty(Screen& screen, const NamePart& property);

}  // namespace orvane
