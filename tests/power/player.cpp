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
  EXPECT_EQ(program_->Choose(FilesOf(screen), row), "");
}

std::vector<std::string> Player::OpenSaves() {
  Click("Main", "m11");
  return FilesOf("Load").Rows;
}

bool Player::GoesOn(const std::string& words) {
  if (!program_->Error()) return true;
  EXPECT_THAT(program_->TheStage().Boxes().back().Shown.Text, testing::HasSubstr(words));
  EXPECT_EQ(program_->Answer(BoxAnswer::Ok), "");
  EXPECT_TRUE(program_->HasEnded());
  return false;
}

std::optional<std::string> Player::Look(int row) {
  Choose("Load", row);
  return GoesOn(FilesOf("Load").FileName()) ? std::optional(Record()) : std::nullopt;
}

bool Player::Load() {
  Click("Load", "OKButton");
  if (!GoesOn(FilesOf("Load").FileName())) return false;
  EXPECT_FALSE(On("Load").IsVisible());
  EXPECT_TRUE(static_cast<const Timer&>(Of("Main", "Timer1")).Ticks());
  return true;
}

bool Player::Save(const std::string& slot) {
  Click("Main", "m12");
  const auto& names = FilesOf("Save").Rows;
  const auto row = std::find(names.begin(), names.end(), slot);
  Choose("Save", static_cast<int>(row - names.begin()));
  Click("Save", "OKButton");
  EXPECT_EQ(program_->Answer(BoxAnswer::Yes), "");
  if (!GoesOn(slot + ": ")) return false;
  EXPECT_FALSE(On("Save").IsVisible());
  EXPECT_TRUE(program_->TheStage().TimeRuns());
  return true;
}

std::string Player::Record() const {
  return PackRecord(program_->TheState());
}

}  // namespace orvane::power
