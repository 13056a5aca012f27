// State variables by name.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "src/core/state.h"
#include "src/frontend/script/names/value.h"

namespace orvane {

// Access to a variable, an array's element with its indexes; nothing when there is no variable of
// this name. Indexes that are missing, too many or out of bounds throw ScriptError. The constant
// tables come without a way to write them.
std::optional<Accessor> FindVariable(State& state, const std::string& name,
                                     const std::vector<int>& indexes);

}  // namespace orvane
