// What every control of a screen has in common. A screen is a model of its controls: the logic
// reads and writes their properties, a front end shows them and reports what the player does.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "src/ui/surface.h"

namespace orvane {

class Screen;
class Control;

enum class ControlKind {
  Label,
  Button,
  Picture,
  List,
  FileList,
  Tabs,
  Field,
  Slider,
  Frame,
  Menu,
  Timer,
};

constexpr const char* kGothic = "ＭＳ Ｐゴシック";
constexpr const char* kMincho = "ＭＳ Ｐ明朝";

// A face: its name, its size in points of 1/72 inch at 96 pixels to the inch, and whether it is
// bold.
struct Font {
  std::string Name = kGothic;
  double Size = 9;
  bool Bold = false;
};

// A control's place in pixels, counted from the inside of what holds it. Moves in twips, 15 to the
// pixel, can leave fractions.
struct Place {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;
};

// Where pictures stand that are only drawn from: below the edge of every screen.
constexpr Place kOutOfSight{0, 600, 16, 16};

constexpr double kTwipsPerPixel = 15;

// What holds a control: a screen, another control, or one pane of a tab control.
struct Holder {
  Holder(Screen& screen);    // NOLINT: a screen or a control is meant to serve as it is
  Holder(Control& control);  // NOLINT
  Holder(Control& tabs, int pane);

  Screen* Owner;
  Control* Parent = nullptr;
  int Pane = -1;
};

// The properties that all kinds share.
struct CommonValues {
  Place At;
  bool Visible = true;
  bool Enabled = true;
};

class Control : public CommonValues {
 public:
  // Joins the screen, in front of the controls that joined before.
  Control(const Holder& holder, std::string name, const Place& place);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  virtual ControlKind Kind() const = 0;

  // As the logic calls it, an array's element with its index, "Label15(2)"; empty for fixed
  // captions.
  const std::string& Name() const { return name_; }
  Screen& Owner() const { return *holder_.Owner; }
  Control* Parent() const { return holder_.Parent; }
  // The pane of the tab control that holds it, or -1.
  int Pane() const { return holder_.Pane; }

  double Left() const { return At.Left; }
  double Top() const { return At.Top; }

  // Width of the border on every side, in pixels; children and drawing start inside it.
  virtual int Border() const { return 0; }

  // Keeps the present properties as the design, and goes back to it, as a freshly loaded screen
  // does.
  virtual void KeepDesign() { common_design_ = *this; }
  virtual void RestoreDesign() { static_cast<CommonValues&>(*this) = common_design_; }

 private:
  Holder holder_;
  std::string name_;
  CommonValues common_design_;
};

// A control of which the properties of its own kind are `Values`.
template <class Values, ControlKind kind>
class ControlOf : public Control, public Values {
 public:
  ControlOf(const Holder& holder, std::string name, const Place& place, Values values = {})
      : Control(holder, std::move(name), place), Values(std::move(values)) {}

  ControlKind Kind() const override { return kind; }
  void KeepDesign() override {
    Control::KeepDesign();
    design_ = *this;
  }
  void RestoreDesign() override {
    Control::RestoreDesign();
    static_cast<Values&>(*this) = design_;
  }

 private:
  Values design_;
};

// What a click, a choice or a tick runs; empty where the program does nothing.
using Handler = std::function<void()>;

}  // namespace orvane
