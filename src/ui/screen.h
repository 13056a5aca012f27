// A window of the game as a model: its controls, and what happens when it loads, comes to the front
// and closes.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "src/base/integer.h"
#include "src/ui/control.h"

namespace orvane {

class CommandButton;
class Stage;

class Screen {
 public:
  // Width and Height are the client area in pixels, without a menu bar.
  Screen(Stage& stage, std::string name, std::string caption, int width, int height);
  virtual ~Screen() = default;
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  const std::string& Name() const { return name_; }
  bool IsVisible() const { return visible_; }
  bool IsLoaded() const { return loaded_; }
  // While a modal screen is up, no other screen takes input.
  bool IsModal() const { return modal_; }

  // All controls, each behind those that follow; a control follows what holds it.
  const std::vector<Control*>& Controls() const { return controls_; }
  // The control of that name, written with "(index)" for an array's element, or null.
  Control* Find(const std::string& name) const;

  std::string Caption;
  int Width;
  int Height;
  // A surface that the screen itself is drawn on, behind its controls; null where there is none.
  Surface* OwnSurface = nullptr;

  // A place of the game rather than a dialog: fills the whole display if the player wishes so.
  bool IsScene = false;

  // What Enter in a text field presses, and what Escape presses: the first of those that can be
  // clicked. Most screens have neither.
  CommandButton* EnterButton = nullptr;
  std::vector<CommandButton*> BackButtons;

  // Numbers of the screen's own that can be looked at by name, "CreditY(10)".
  std::vector<std::pair<std::string, Int16*>> Members;

  Stage& TheStage() const { return stage_; }

 protected:
  // The screen has come into being, its controls as designed.
  virtual void OnLoad() {}
  // It has become the active screen; `entered` tells whether it was hidden before.
  virtual void OnActivate(bool entered) { static_cast<void>(entered); }
  // It is about to go; it is still visible.
  virtual void OnUnload() {}
  // The player has used the window's own close control. Unloads the screen unless overridden.
  virtual void OnClose();
  // The mouse was pressed on the bare surface of the screen.
  virtual void OnPress() {}

 private:
  friend class Control;
  friend class Stage;

  void Join(Control& control) { controls_.push_back(&control); }

  Stage& stage_;
  std::string name_;
  std::vector<Control*> controls_;
  bool visible_ = false;
  bool loaded_ = false;
  bool modal_ = false;
};

}  // namespace orvane
