// A program over files in memory, for the tests of this folder.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "src/game/program.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"

namespace orvane::test {

// The files that every start reads, and a slot.
inline MemoryStorage GameFiles() {
  const FolderStorage built(ORVANE_GAME_FOLDER);
  MemoryStorage files;
  for (const char* name : {"Item.dat", "Mapdata/map3-3.dat"}) {
    files.Files[name] = built.Read(name).value_or("");
  }
  files.Files["Save01.sav"] = "";
  return files;
}

class ProgramTest : public testing::Test {
 protected:
  ProgramTest() { quiet_.Files = GameFiles(); }

  void Start() { program_ = std::make_unique<Program>(quiet_.All()); }
  // From the title to the field.
  void Begin() {
    Start();
    EXPECT_EQ(program_->Click(On("Main", "Command1")), "");
    EXPECT_EQ(program_->EnterText(static_cast<TextBox&>(On("InputName", "Text1(0)")), "カイ"), "");
    EXPECT_EQ(program_->EnterText(static_cast<TextBox&>(On("InputName", "Text1(1)")), "リナ"), "");
    EXPECT_EQ(program_->Confirm(ScreenOf("InputName")), "");
    for (int line = 0; line < 20; ++line) program_->Click(On("Main", "Picture1"));
  }
  // Up to the question whether to save.
  void AskToSave() {
    Begin();
    EXPECT_EQ(program_->Click(On("Main", "m12")), "");
    EXPECT_EQ(program_->Choose(On("Save", "File1"), 0), "");
    EXPECT_EQ(program_->Click(On("Save", "OKButton")), "");
  }

  Stage& TheStage() { return program_->TheStage(); }
  Screen& ScreenOf(const char* name) { return *TheStage().Find(name); }
  Control& On(const char* screen, const char* name) { return *ScreenOf(screen).Find(name); }
  Timer& Walk() { return static_cast<Timer&>(On("Main", "Timer1")); }

  QuietServices quiet_;
  std::unique_ptr<Program> program_;
};

}  // namespace orvane::test
