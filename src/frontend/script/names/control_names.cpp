#include "src/frontend/script/names/control_names.h"

#include <limits>

#include "src/frontend/script/names/colour_text.h"
#include "src/frontend/script/names/list_names.h"
#include "src/frontend/script/run/script_error.h"

namespace orvane {
namespace {

using Found = std::optional<Accessor>;

constexpr int64_t kLeast = std::numeric_limits<int32_t>::min();
constexpr int64_t kGreatest = std::numeric_limits<int32_t>::max();

Accessor Floating(double& field) {
  return {[&field] { return Value(field); },
          [&field](const Value& value) { field = AsNumber(value); }};
}

Accessor Flag(bool& field) {
  return {[&field] { return Value(field); },
          [&field](const Value& value) { field = AsFlag(value); }};
}

Accessor Text(std::string& field) {
  return {[&field] { return Value(field); },
          [&field](const Value& value) { field = AsText(value); }};
}

Accessor Whole(int& field) {
  return {[&field] { return Value(int64_t{field}); },
          [&field](const Value& value) { field = AsInteger(value, kLeast, kGreatest); }};
}

Accessor ColourOf(Colour& field) {
  return {[&field] { return Value(ColourText(field)); },
          [&field](const Value& value) { field = ParseColour(AsText(value)); }};
}

Found LabelProperty(LabelValues& label, const std::string& name) {
  if (name == "Caption") return Text(label.Caption);
  if (name == "ForeColor") return ColourOf(label.ForeColor);
  if (name == "FontName") return Text(label.Face.Name);
  if (name == "FontSize") return Floating(label.Face.Size);
  if (name == "FontBold") return Flag(label.Face.Bold);
  return {};
}

Found SliderProperty(SliderValues& slider, const std::string& name) {
  if (name == "Value") {
    return Accessor{
        [&slider] { return Value(int64_t{slider.Value}); },
        [&slider](const Value& value) { slider.Value = AsInteger(value, slider.Min, slider.Max); }};
  }
  if (name == "Min") return Whole(slider.Min);
  if (name == "Max") return Whole(slider.Max);
  if (name == "SmallChange") return Whole(slider.SmallChange);
  if (name == "LargeChange") return Whole(slider.LargeChange);
  return {};
}

Found TimerProperty(Timer& timer, const std::string& name) {
  if (name == "Enabled") {
    return Accessor{[&timer] { return Value(timer.IsEnabled()); },
                    [&timer](const Value& value) { timer.SetEnabled(AsFlag(value)); }};
  }
  if (name == "Interval") {
    return Accessor{
        [&timer] { return Value(int64_t{timer.Interval()}); },
        [&timer](const Value& value) { timer.SetInterval(AsInteger(value, 0, kGreatest)); }};
  }
  return {};
}

Found CommonProperty(Control& control, const std::string& name) {
  if (name == "Left") return Floating(control.At.Left);
  if (name == "Top") return Floating(control.At.Top);
  if (name == "Width") return Floating(control.At.Width);
  if (name == "Height") return Floating(control.At.Height);
  if (name == "Visible") return Flag(control.Visible);
  if (name == "Enabled") return Flag(control.Enabled);
  return {};
}

// The properties of a control's own kind that have no index.
Found OwnProperty(Control& control, const std::string& name) {
  const bool is_caption = name == "Caption";
  switch (control.Kind()) {
    case ControlKind::Label:
      return LabelProperty(static_cast<Label&>(control), name);
    case ControlKind::Button:
      return is_caption ? Found(Text(static_cast<CommandButton&>(control).Caption)) : Found();
    case ControlKind::Frame:
      return is_caption ? Found(Text(static_cast<Frame&>(control).Caption)) : Found();
    case ControlKind::Menu:
      return is_caption ? Found(Text(static_cast<MenuItem&>(control).Caption)) : Found();
    case ControlKind::Field:
      return name == "Text" ? Found(Text(static_cast<TextBox&>(control).Text)) : Found();
    case ControlKind::Slider:
      return SliderProperty(static_cast<Slider&>(control), name);
    case ControlKind::Timer:
      return TimerProperty(static_cast<Timer&>(control), name);
    case ControlKind::List:
      return ListProperty(static_cast<ListBox&>(control), name);
    case ControlKind::FileList:
      return FileListProperty(static_cast<FileListBox&>(control), name);
    case ControlKind::Tabs:
      return TabProperty(static_cast<TabStrip&>(control), name);
    case ControlKind::Picture:
      return {};
  }
  return {};
}

Found IndexedProperty(Control& control, const std::string& name, int index) {
  switch (control.Kind()) {
    case ControlKind::List:
      return RowProperty(static_cast<ListBox&>(control), name, index);
    case ControlKind::FileList:
      return RowProperty(static_cast<FileListBox&>(control), name, index);
    case ControlKind::Tabs:
      return TabProperty(static_cast<TabStrip&>(control), name, index);
    default:
      return {};
  }
}

}  // namespace

std::optional<Accessor> FindProperty(Control& control, const NamePart& property) {
  if (property.Indexes.size() == 1) {
    return IndexedProperty(control, property.Word, property.Indexes[0]);
  }
  if (!property.Indexes.empty()) return {};
  if (Found own = OwnProperty(control, property.Word)) return own;
  return CommonProperty(control, property.Word);
}

std::optional<Accessor> FindProperty(Screen& screen, const NamePart& property) {
  const std::string name = WithParentheses(property);
  if (name == "Visible") return Accessor{[&screen] { return Value(screen.IsVisible()); }, {}};
  if (name == "Loaded") return Accessor{[&screen] { return Value(screen.IsLoaded()); }, {}};
  if (name == "Caption") return Text(screen.Caption);
  if (name == "Width") return Accessor{[&screen] { return Value(int64_t{screen.Width}); }, {}};
  if (name == "Height") return Accessor{[&screen] { return Value(int64_t{screen.Height}); }, {}};
  for (const auto& [member, number] : screen.Members) {
    if (member != name) continue;
    Int16& field = *number;
    return Accessor{[&field] { return Value(int64_t{int{field}}); },
                    [&field](const Value& value) { field = AsInteger(value, -32768, 32767); }};
  }
  return {};
}

}  // namespace orvane
