#include "src/frontend/script/names/names.h"

#include "src/frontend/script/names/control_names.h"
#include "src/frontend/script/names/name_path.h"
#include "src/frontend/script/names/state_names.h"
#include "src/frontend/script/run/script_error.h"

namespace orvane {
namespace {

constexpr size_t kControlParts = 3;  // screen, control, property

[[noreturn]] void Unknown(const char* what, std::string_view name) {
  throw ScriptError(std::string("the name of ") + what, Quoted(name));
}

}  // namespace

const Accessor& Names::Find(std::string_view name) {
  const auto known = accessors_.find(name);
  if (known != accessors_.end()) return known->second;
  return accessors_.emplace(std::string(name), Resolve(name)).first->second;
}

Accessor Names::Resolve(std::string_view name) {
  const std::vector<NamePart> parts = SplitName(name);
  std::optional<Accessor> found;
  Screen* screen = parts[0].Indexes.empty() ? stage_.Find(parts[0].Word) : nullptr;
  if (screen != nullptr && parts.size() == 2) {
    found = FindProperty(*screen, parts[1]);
  } else if (screen != nullptr && parts.size() == kControlParts) {
    Control* control = screen->Find(WithParentheses(parts[1]));
    if (control == nullptr) Unknown("a control", name);
    found = FindProperty(*control, parts[2]);
  } else if (screen == nullptr && parts.size() == 1) {
    found = FindVariable(state_, parts[0].Word, parts[0].Indexes);
  } else if (screen == nullptr && parts.size() == 2 && parts[0].Indexes.empty()) {
    found = FindVariable(state_, parts[0].Word + "." + parts[1].Word, parts[1].Indexes);
  }
  if (!found) Unknown("a variable or property", name);
  return std::move(*found);
}

Control& Names::FindControl(std::string_view name) {
  const auto known = controls_.find(name);
  if (known != controls_.end()) return *known->second;
  const std::vector<NamePart> parts = SplitName(name);
  Screen* screen = parts.size() == 2 ? stage_.Find(WithParentheses(parts[0])) : nullptr;
  Control* control = screen == nullptr ? nullptr : screen->Find(WithParentheses(parts[1]));
  if (control == nullptr) Unknown("a control", name);
  controls_.emplace(std::string(name), control);
  return *control;
}

Screen& Names::FindScreen(std::string_view name) {
  Screen* screen = stage_.Find(std::string(name));
  if (screen == nullptr) Unknown("a screen", name);
  return *screen;
}

Control& Names::FindControl(std::string_view name, ControlKind kind, const char* what) {
  Control& control = FindControl(name);
  if (control.Kind() != kind) Unknown(what, name);
  return control;
}

Timer& Names::FindTimer(std::string_view name) {
  return static_cast<Timer&>(FindControl(name, ControlKind::Timer, "a timer"));
}

NamedPicture Names::FindPicture(std::string_view name) {
  if (Screen* screen = stage_.Find(std::string(name))) {
    if (screen->OwnSurface == nullptr) Unknown("a screen that is drawn on", name);
    return {screen->OwnSurface, nullptr};
  }
  auto& box =
      static_cast<PictureBox&>(FindControl(name, ControlKind::Picture, "a surface or sheet"));
  return {&box.Picture, &box};
}

}  // namespace orvane
