#include "tests/power/player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "src/core/save_file.h"

namespace orvane::power {

Player::Player(Storage& files, const std::filesystem::path& after_error)
    : play_({silence_, luck_, files}, {}, after_error),
      program_(std::make_unique<Program>(play_.TheServices())) {
  play_.Watch(*program_);
  EXPECT_FALSE(program_->Error()) << program_->TextOfError();
}

void Player::Click(const char* screen, const char* control) {
  EXPECT_EQ(program_->Click(Of(screen, control)), "");
}

void Player::Choose(const char* screen, int row) {
  EXPECT_EQ(program_->Choose(Of(screen, "File1"), row), "");
}

std::vector<std::string> Player::OpenSaves() {
  Click("Main", "m11");
  return static_cast<const FileListBox&>(Of("Load", "File1")).Rows;
}

std::string Player::Look(int row) {
  Choose("Load", row);
  return Record();
}

void Player::Load() {
  Click("Load", "OKButton");
  EXPECT_FALSE(On("Load").IsVisible());
  EXPECT_TRUE(static_cast<const Timer&>(Of("Main", "Timer1")).Ticks());
}

bool Player::Save(const std::string& slot) {
  Click("Main", "m12");
  const auto& names = static_cast<const FileListBox&>(Of("Save", "File1")).Rows;
  const auto row = std::find(names.begin(), names.end(), slot);
  Choose("Save", static_cast<int>(row - names.begin()));
  Click("Save", "OKButton");
  EXPECT_EQ(program_->Answer(BoxAnswer::Yes), "");
  if (!program_->Error()) {
    EXPECT_FALSE(On("Save").IsVisible());
    EXPECT_TRUE(program_->TheStage().TimeRuns());
    return true;
  }
  EXPECT_THAT(program_->TheStage().Boxes().back().Shown.Text, testing::HasSubstr(slot + ": "));
  EXPECT_EQ(program_->Answer(BoxAnswer::Ok), "");
  EXPECT_TRUE(program_->HasEnded());
  return false;
}

std::string Player::Record() const {
  return PackRecord(program_->TheState());
}

}  // namespace orvane::power
