// Everything of a program that a script can name. A name is worked out once and found at once from
// then on.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "src/core/state.h"
#include "src/frontend/script/names/value.h"
#include "src/ui/controls.h"
#include "src/ui/stage.h"

namespace orvane {

// A surface or sheet; it may be a control's.
struct NamedPicture {
  Surface* Store = nullptr;
  PictureBox* Box = nullptr;  // null for a screen's own surface
};

// All lookups throw ScriptError for a name that they do not know.
class Names {
 public:
  Names(State& state, Stage& stage) : state_(state), stage_(stage) {}

  // A state variable, or a property of a control or a screen.
  const Accessor& Find(std::string_view name);

  Control& FindControl(std::string_view name);
  Screen& FindScreen(std::string_view name);

  // A control of one kind; `what` names the kind in the error.
  Control& FindControl(std::string_view name, ControlKind kind, const char* what);
  Timer& FindTimer(std::string_view name);
  NamedPicture FindPicture(std::string_view name);

 private:
  // Lets a map be searched with a view of its key.
  struct Hash {
    using is_transparent = void;
    size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };
  template <class T>
  using Known = std::unordered_map<std::string, T, Hash, std::equal_to<>>;

  Accessor Resolve(std::string_view name);

  State& state_;
  Stage& stage_;
  Known<Accessor> accessors_;
  Known<Control*> controls_;
};

}  // namespace orvane
