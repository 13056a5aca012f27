// What a program and its widgets need in a test.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "src/frontend/desktop/windows/window_events.h"
#include "src/game/program.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"

namespace orvane {

// A program in the built game folder. An error of the game is one of the test.
struct TestServices {
  Services All() { return {Sound, Luck, Files}; }

  NoSound Sound;
  NoChance Luck;
  FolderStorage Files{ORVANE_GAME_FOLDER};
};

// Widgets report into the void.
class NoEvents : public WindowEvents {
 public:
  void Send(const std::function<void(Program&)>& /*event*/) override {}
};

// Widgets report to a program that a test has made; the test brings the windows up to date.
class ToProgram : public WindowEvents {
 public:
  explicit ToProgram(Program& program) : program_(program) {}
  void Send(const std::function<void(Program&)>& event) override { event(program_); }

 private:
  Program& program_;
};

}  // namespace orvane
