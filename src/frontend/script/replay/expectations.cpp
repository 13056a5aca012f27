#include "src/frontend/script/replay/expectations.h"

#include <string_view>

#include "src/core/state_table.h"
#include "src/frontend/script/names/colour_text.h"
#include "src/frontend/script/replay/lua_text.h"
#include "src/game/program.h"
#include "src/ui/controls.h"
#include "src/ui/reach.h"

namespace orvane {
namespace {

constexpr int kGridColumns = 12;
constexpr int kGridRows = 8;

void Expect(std::string& text, const std::string& found, const std::string& wanted) {
  text += "expect(" + found + ", " + wanted + ")\n";
}

void ExpectValue(std::string& text, const std::string& name, const std::string& wanted) {
  Expect(text, "get(" + LuaText(name) + ")", wanted);
}

// Writes the fields of the state.
class StateText {
 public:
  StateText(std::string& text, bool with_status) : text_(text), with_status_(with_status) {}

  template <class Field>
  void operator()(const char* name, const Field& field) {
    if (with_status_ || std::string_view(name) != "MciStatus") Write(name, field);
  }

 private:
  template <class T>
  void Write(const std::string& name, const Checked<T>& field) {
    ExpectValue(text_, name, std::to_string(int{field}));
  }
  template <int N>
  void Write(const std::string& name, const FixedText<N>& field) {
    ExpectValue(text_, name, LuaText(field.Full()));
  }
  void Write(const std::string& name, const std::string& field) {
    ExpectValue(text_, name, LuaText(field));
  }
  template <class T, size_t N>
  void Write(const std::string& name, const Array<T, N>& fields) {
    for (int i = 0; i < fields.Size; ++i) Write(name + "[" + std::to_string(i) + "]", fields[i]);
  }

  std::string& text_;
  bool with_status_;
};

void ExpectPixels(std::string& text, const std::string& name, const Surface& surface) {
  for (int row = 0; row < kGridRows; ++row) {
    for (int column = 0; column < kGridColumns; ++column) {
      const int x = (2 * column + 1) * surface.Width() / (2 * kGridColumns);
      const int y = (2 * row + 1) * surface.Height() / (2 * kGridRows);
      if (!surface.Contains(x, y)) continue;
      Expect(text,
             "shown_pixel(" + LuaText(name) + ", " + std::to_string(x) + ", " + std::to_string(y) +
                 ")",
             LuaText(ColourText(surface.ShownAt(x, y))));
    }
  }
}

void ExpectScreen(std::string& text, const Screen& screen) {
  const std::string name = screen.Name();
  const auto flag = [](bool is) { return std::string(is ? "true" : "false"); };
  ExpectValue(text, name + ".Visible", flag(screen.IsVisible()));
  ExpectValue(text, name + ".Loaded", flag(screen.IsLoaded()));
  if (screen.IsVisible() && screen.OwnSurface != nullptr) {
    ExpectPixels(text, name, *screen.OwnSurface);
  }
  for (const Control* control : screen.Controls()) {
    const std::string path = name + "." + control->Name();
    if (control->Name().empty()) continue;
    if (control->Kind() == ControlKind::Timer) {
      ExpectValue(text, path + ".Enabled", flag(static_cast<const Timer*>(control)->IsEnabled()));
    }
    if (!screen.IsVisible() || !IsShown(*control)) continue;
    if (control->Kind() == ControlKind::Picture && IsInView(*control)) {
      ExpectPixels(text, path, static_cast<const PictureBox*>(control)->Picture);
    }
    if (control->Kind() == ControlKind::Label) {
      ExpectValue(text, path + ".Caption", LuaText(static_cast<const Label*>(control)->Caption));
    }
  }
}

}  // namespace

std::string ExpectationsOf(Program& program, bool with_status) {
  std::string text;
  StateText state(text, with_status);
  VisitRecord(program.TheState(), state);
  VisitRunning(program.TheState(), state);
  const Stage& stage = program.TheStage();
  if (stage.Active() != nullptr) Expect(text, "active()", LuaText(stage.Active()->Name()));
  for (const Screen* screen : stage.Screens()) ExpectScreen(text, *screen);
  const auto& error = program.Error();
  Expect(text, "error_kind()", error ? LuaText(ErrorKindName(error->Kind)) : "nil");
  return text;
}

}  // namespace orvane
