#include "src/replay/sums.h"

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "src/base/byte_sum.h"
#include "src/core/state_table.h"
#include "src/game/program.h"
#include "src/ui/controls.h"
#include "src/ui/reach.h"

namespace orvane {
namespace {

class Sum {
 public:
  uint64_t Value() const { return sum_.Value(); }

  void Number(int64_t number) {
    const auto bits = static_cast<uint64_t>(number);
    for (int shift = 0; shift < 64; shift += 8)
      sum_.Add(static_cast<uint32_t>(bits >> shift & 0xFF));
  }
  // In one step, as there are many.
  void Pixel(Colour colour) { sum_.Add(colour); }
  // Its length too, so that one text cannot go over into the next.
  void Text(std::string_view text) {
    Number(static_cast<int64_t>(text.size()));
    sum_.Add(text);
  }

  // Fields of the state.
  void operator()(const char* /*name*/, const Int16& field) { Number(field); }
  void operator()(const char* /*name*/, const Int32& field) { Number(field); }
  void operator()(const char* /*name*/, const std::string& field) { Text(field); }
  template <int N>
  void operator()(const char* /*name*/, const FixedText<N>& field) {
    Text(field.Full());
  }
  template <class T, size_t N>
  void operator()(const char* name, const Array<T, N>& fields) {
    for (const T& field : fields) (*this)(name, field);
  }

 private:
  ByteSum sum_;
};

void AddRows(Sum& sum, const ListValues& list) {
  sum.Number(static_cast<int64_t>(list.Rows.size()));
  for (const std::string& row : list.Rows) sum.Text(row);
  sum.Number(list.ListIndex);
}

void AddValues(Sum& sum, const Control& control) {
  switch (control.Kind()) {
    case ControlKind::Label: {
      const auto& label = static_cast<const Label&>(control);
      sum.Text(label.Caption);
      return sum.Number(label.ForeColor);
    }
    case ControlKind::Button:
      return sum.Text(static_cast<const CommandButton&>(control).Caption);
    case ControlKind::Frame:
      return sum.Text(static_cast<const Frame&>(control).Caption);
    case ControlKind::Menu:
      return sum.Text(static_cast<const MenuItem&>(control).Caption);
    case ControlKind::List:
      return AddRows(sum, static_cast<const ListBox&>(control));
    case ControlKind::FileList:
      return AddRows(sum, static_cast<const FileListBox&>(control));
    case ControlKind::Field:
      return sum.Text(static_cast<const TextBox&>(control).Text);
    case ControlKind::Slider:
      return sum.Number(static_cast<const Slider&>(control).Value);
    case ControlKind::Tabs: {
      const auto& tabs = static_cast<const TabStrip&>(control);
      sum.Number(tabs.Tab());
      for (int tab = 0; tab < tabs.TabCount(); ++tab) {
        sum.Text(tabs.TabCaption(tab));
        sum.Number(tabs.TabEnabled(tab) ? 1 : 0);
      }
      return;
    }
    case ControlKind::Timer: {
      const auto& timer = static_cast<const Timer&>(control);
      sum.Number(timer.IsEnabled() ? 1 : 0);
      return sum.Number(timer.Interval());
    }
    case ControlKind::Picture:
      return;
  }
}

void AddControl(Sum& sum, const Control& control) {
  sum.Number((control.Visible ? 1 : 0) + (control.Enabled ? 2 : 0));
  for (const double edge : {control.At.Left, control.At.Top, control.At.Width, control.At.Height}) {
    sum.Number(std::llround(edge * kTwipsPerPixel));
  }
  AddValues(sum, control);
}

void AddStage(Sum& sum, const Stage& stage) {
  for (const Screen* screen : stage.Screens()) {
    sum.Number((screen->IsLoaded() ? 1 : 0) + (screen->IsVisible() ? 2 : 0) +
               (screen->IsModal() ? 4 : 0));
    if (!screen->IsLoaded()) continue;
    sum.Text(screen->Caption);
    for (const Control* control : screen->Controls()) AddControl(sum, *control);
    for (const auto& [name, number] : screen->Members) sum.Number(*number);
  }
  sum.Text(stage.Active() != nullptr ? stage.Active()->Name() : std::string());
  for (const StandingBox& box : stage.Boxes()) {
    sum.Text(box.Shown.Title);
    sum.Text(box.Shown.Text);
  }
  sum.Number(stage.HeldFor());
  sum.Number(stage.HasEnded() ? stage.ExitStatus() : -1);
}

void AddState(Sum& sum, Program& program) {
  VisitRecord(program.TheState(), sum);
  VisitRunning(program.TheState(), sum);
  AddStage(sum, program.TheStage());
  sum.Text(program.TextOfError());
}

void AddPixels(Sum& sum, const Surface& surface) {
  for (int y = 0; y < surface.Height(); ++y) {
    const Colour* row = surface.Row(y);
    for (int x = 0; x < surface.Width(); ++x) sum.Pixel(row[x]);
  }
  for (const Colour colour : surface.Shown()) sum.Pixel(colour);
}

}  // namespace

uint64_t SumOfState(Program& program) {
  Sum sum;
  AddState(sum, program);
  return sum.Value();
}

uint64_t SumOfAll(Program& program) {
  Sum sum;
  AddState(sum, program);
  for (const Screen* screen : program.TheStage().Screens()) {
    if (!screen->IsVisible()) continue;
    if (screen->OwnSurface != nullptr) AddPixels(sum, *screen->OwnSurface);
    for (const Control* control : screen->Controls()) {
      if (control->Kind() != ControlKind::Picture || !IsInView(*control)) continue;
      AddPixels(sum, static_cast<const PictureBox*>(control)->Picture);
    }
  }
  return sum.Value();
}

}  // namespace orvane
