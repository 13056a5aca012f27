// The way of events into the game.
#include "src/frontend/shared/events.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "src/game/play_event.h"
#include "tests/unit/game/program_test.h"

namespace orvane {
namespace {

class EventsTest : public testing::Test, public Events, public PlayWatcher {
 protected:
  EventsTest() {
    quiet_.Files = test::GameFiles();
    program_ = std::make_unique<Program>(quiet_.All());
    program_->SetWatcher(this);
  }

  void Send(const std::function<void(Program&)>& event) override { ActOn(*program_, event); }
  void Comes(const PlayEvent& event) override {
    if (event.What == PlayEvent::Kind::KeyDown) came_ += "v" + std::to_string(event.Number);
    if (event.What == PlayEvent::Kind::KeyUp) came_ += "^" + std::to_string(event.Number);
  }
  void Went() override {}
  void Meddled() override {}

  std::string came_;
  QuietServices quiet_;
  std::unique_ptr<Program> program_;
};

TEST_F(EventsTest, ArrowsArePressedAndLetGoInTheGame) {
  SendArrow(*this, Direction::Left, true);
  SendArrow(*this, Direction::Left, false);
  SendArrow(*this, Direction::Down, true);
  EXPECT_EQ(came_, "v0^0v3");
}

TEST_F(EventsTest, WhatNobodyCaughtEndsTheGameWithABox) {
  Send([](Program&) { throw std::runtime_error("no memory"); });
  ASSERT_FALSE(program_->TheStage().Boxes().empty());
  EXPECT_NE(program_->TheStage().Boxes().back().Shown.Text.find("no memory"), std::string::npos);
}

TEST_F(EventsTest, TextsAreTheGamesOwnUnlessTheFrontEndHasAnother) {
  EXPECT_TRUE(Texts().IsOwn());
  EXPECT_EQ(&Texts(), &Texts()) << "made once";
}

}  // namespace
}  // namespace orvane
