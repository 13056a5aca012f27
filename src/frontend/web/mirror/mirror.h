// What a page shows of a program, so that it can be told what has changed.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "src/frontend/shared/surface_copy.h"
#include "src/frontend/shared/texts/translator.h"
#include "src/ui/stage.h"

namespace orvane {

// Screens and controls go by numbers: screens in the order of the stage, controls counted through
// all screens.
class Mirror {
 public:
  // The stage must outlive it.
  Mirror(const Stage& stage, const Translator& texts);

  Screen* ScreenOf(int number) const;
  Control* ControlOf(int number) const;
  int NumberOf(const Control* control) const;
  int NumberOf(const Screen* screen) const;

  // All screens with their controls, as JSON: what never changes.
  std::string Nature() const;

  // What has changed since the last time, as JSON; empty where nothing has. Pixels stay in place
  // until the next time; they are named by their address in memory.
  const std::string& Changes();

  // The page may show of the control what the program does not know.
  void Forget(const Control& control);

 private:
  struct ShownControl {
    Control* Model = nullptr;
    int Screen = 0;
    std::string Values{};
    SurfaceCopy Picture{};
    std::vector<uint32_t> Part{};  // what has changed of it, as a canvas takes it
    std::string Words{};           // what screen readers have been told is on it
  };
  struct ShownScreen {
    orvane::Screen* Model = nullptr;
    std::string Values{};
    bool Visible = false;
    SurfaceCopy Surface{};
    std::vector<uint32_t> Part{};
    std::string Words{};
  };

  bool IsBlocked(const Screen& screen) const;
  void FollowScreens(std::string& out);
  void FollowControls(std::string& out, std::string& pixels);
  void FollowBoxes(std::string& out);
  void FollowWords(std::string& out);
  std::string BoxesNow() const;

  const Stage& stage_;
  const Translator& texts_;
  std::vector<ShownScreen> screens_;
  std::vector<ShownControl> controls_;
  std::map<const Control*, int> numbers_;
  std::vector<bool> touched_;  // screens of which something has changed this time
  std::string boxes_ = "[]";
  std::string changes_;
};

}  // namespace orvane
