// The kinds of control that the game's screens are made of.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "src/base/array.h"
#include "src/ui/control.h"
#include "src/ui/timer.h"

namespace orvane {

enum class Align { Left, Centre, Right };

struct LabelValues {
  std::string Caption;
  Colour ForeColor = 0x000000;
  Font Face{};
  Align Alignment = Align::Left;
};

// Text without a ground of its own, wrapped to its width. A click on it goes nowhere, a press to
// the screen that it stands on.
class Label : public ControlOf<LabelValues, ControlKind::Label> {
 public:
  using ControlOf::ControlOf;
};

struct ButtonValues {
  std::string Caption;
};

// A push button.
class CommandButton : public ControlOf<ButtonValues, ControlKind::Button> {
 public:
  using ControlOf::ControlOf;
  Handler OnClick;
};

struct FrameValues {
  std::string Caption;
};

// A titled frame around other controls.
class Frame : public ControlOf<FrameValues, ControlKind::Frame> {
 public:
  using ControlOf::ControlOf;
};

struct PictureValues {
  Surface Picture;  // the surface, with the sheet it starts with
  int Edge = 0;     // width of the border in pixels
};

// A picture: a surface that is drawn on or a sheet that is only read, on the screen where it is
// visible.
class PictureBox : public ControlOf<PictureValues, ControlKind::Picture> {
 public:
  using ControlOf::ControlOf;
  int Border() const override { return Edge; }
  Handler OnClick;
};

struct TextValues {
  std::string Text;
};

// A field for a line of text.
class TextBox : public ControlOf<TextValues, ControlKind::Field> {
 public:
  using ControlOf::ControlOf;
};

struct SliderValues {
  int Min = 0;
  int Max = 10;
  int Value = 0;
  int SmallChange = 1;
  int LargeChange = 5;
};

// A horizontal slider.
class Slider : public ControlOf<SliderValues, ControlKind::Slider> {
 public:
  using ControlOf::ControlOf;
};

struct ListValues {
  std::vector<std::string> Rows;
  int ListIndex = -1;  // the selected row from 0, or -1
  int BackRow = -1;    // the row that Escape chooses, or -1
};

// A list of rows, of which one may be selected.
class ListBox : public ControlOf<ListValues, ControlKind::List> {
 public:
  using ControlOf::ControlOf;

  int ListCount() const { return static_cast<int>(Rows.size()); }
  // The text of a row; throws RunError(Subscript) where there is none.
  const std::string& List(int row) const;
  // The text of the selected row, or nothing.
  std::string Text() const { return ListIndex >= 0 ? List(ListIndex) : std::string(); }
  void AddItem(std::string text) { Rows.push_back(std::move(text)); }
  // Puts a text in place of a row; the row after the last adds one. Throws beyond that.
  void SetRow(int row, std::string text);
  // Takes all rows and the selection away.
  void Clear();

  Handler OnClick;
};

struct FileListValues : ListValues {
  std::string Pattern = "*";
};

// A list of the files of the game folder whose names match the pattern, sorted.
class FileListBox : public ControlOf<FileListValues, ControlKind::FileList> {
 public:
  using ControlOf::ControlOf;
  // The selected name, or nothing.
  std::string FileName() const;
  Handler OnClick;
};

struct TabValues {
  std::vector<std::string> Captions;
  std::vector<bool> PanesEnabled;
  int OpenTab = 0;
};

// A row of tabs, each with a pane of controls.
class TabStrip : public ControlOf<TabValues, ControlKind::Tabs> {
 public:
  using ControlOf::ControlOf;

  int TabCount() const { return static_cast<int>(Captions.size()); }
  int Tab() const { return OpenTab; }
  // Opens a pane and runs OnClick, unless it is the open one. Throws RunError(Subscript) without
  // such a tab.
  void SetTab(int tab);
  const std::string& TabCaption(int tab) const;
  void SetTabCaption(int tab, std::string caption);
  bool TabEnabled(int tab) const;
  void SetTabEnabled(int tab, bool enabled);

  Handler OnClick;
};

// A pane of a tab control, as a holder.
inline Holder PaneOf(TabStrip& tabs, int pane) {
  return Holder(tabs, pane);
}

struct MenuValues {
  std::string Caption;  // "-" for a separator
};

// A menu of the menu bar, or an item in a menu.
class MenuItem : public ControlOf<MenuValues, ControlKind::Menu> {
 public:
  MenuItem(const Holder& holder, std::string name, const std::string& caption)
      : ControlOf(holder, std::move(name), {}, {caption}) {}
  bool IsSeparator() const { return Caption == "-"; }
  Handler OnClick;
};

// Controls of one name that differ by an index: Label15(0), Label15(1), ... The indexes may have
// gaps.
template <class Kind>
class ControlArray {
 public:
  explicit ControlArray(std::string name) : name_(std::move(name)) {}

  // Makes the element `index`.
  template <class... Arguments>
  Kind& Add(int index, const Holder& holder, Arguments&&... arguments) {
    auto made = std::make_unique<Kind>(holder, name_ + "(" + std::to_string(index) + ")",
                                       std::forward<Arguments>(arguments)...);
    return *(elements_[index] = std::move(made));
  }
  // The element `index`; throws RunError(Subscript) where there is none.
  Kind& operator[](int index) { return Find(index); }
  const Kind& operator[](int index) const { return Find(index); }

 private:
  Kind& Find(int index) const {
    const auto found = elements_.find(index);
    if (found == elements_.end()) {
      throw RunError(ErrorKind::Subscript, name_ + "(" + std::to_string(index) + ")");
    }
    return *found->second;
  }

  std::string name_;
  std::map<int, std::unique_ptr<Kind>> elements_;
};

}  // namespace orvane
