// The ticks on a clock that the test sets: when they are due, hurried, and in their record.
#include "src/frontend/shared/tick_times.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "src/platform/path_text.h"
#include "src/ui/screen.h"
#include "src/ui/stage.h"
#include "src/ui/timer.h"
#include "tests/unit/environment.h"

namespace orvane {
namespace {

class Clockwork : public Screen {
 public:
  explicit Clockwork(Stage& stage) : Screen(stage, "Clockwork", "Clockwork", 200, 100) {}

  Timer Slow{*this, "Slow", 2000};
  Timer Paced{*this, "Paced", 5, 60};
};

class TickTimesTest : public testing::Test {
 protected:
  TickTimesTest() {
    ClearEnvironment();
    stage_.KeepDesigns();
    stage_.Show(screen_);
  }
  ~TickTimesTest() override { ClearEnvironment(); }

  static void ClearEnvironment() {
    test::SetVariable("ORVANE_SPEED", "");
    test::SetVariable("ORVANE_TICKS", "");
  }

  // Serves so many ticks, each as soon as it is due; returns the real ms that they take.
  double Serve(int count) {
    TickTimes times(stage_);
    double now = 0;
    for (int served = 0; served < count;) {
      const auto wait = times.Wait(now);
      if (!wait) return -1;
      now += *wait;
      if (times.Take(now) != nullptr) ++served;
    }
    return now;
  }

  Stage stage_;
  Clockwork screen_{stage_};
};

TEST_F(TickTimesTest, WhileNoTimerIsOnNothingIsDue) {
  TickTimes times(stage_);
  EXPECT_FALSE(times.Wait(0).has_value());
  EXPECT_EQ(times.Take(100000), nullptr);
}

TEST_F(TickTimesTest, KeepsThePaceWhereItIsLongerThanTheInterval) {
  screen_.Paced.SetEnabled(true);
  EXPECT_EQ(Serve(2), 120);
}

TEST_F(TickTimesTest, ATickThatIsLateComesAtOnceAndOnce) {
  screen_.Paced.SetEnabled(true);
  TickTimes times(stage_);
  ASSERT_EQ(times.Wait(0), 60);
  EXPECT_EQ(times.Take(59), nullptr);
  EXPECT_EQ(times.Wait(1000), 0);
  EXPECT_EQ(times.Take(1000), &screen_.Paced);
  EXPECT_EQ(times.Take(1000), nullptr);
  EXPECT_EQ(times.Wait(1000), 60);
}

TEST_F(TickTimesTest, HurriesAsManyTimesAsItIsAskedTo) {
  test::SetVariable("ORVANE_SPEED", "100");
  screen_.Slow.SetEnabled(true);
  EXPECT_EQ(Serve(2), 40);
}

TEST_F(TickTimesTest, LogsEachTickWithItsPeriodAndTimeOfTheGame) {
  const auto name = std::filesystem::path(testing::TempDir()) / "orvane_ticks.txt";
  test::SetVariable("ORVANE_TICKS", TextOf(name));
  test::SetVariable("ORVANE_SPEED", "100");
  screen_.Slow.SetEnabled(true);
  screen_.Paced.SetEnabled(true);
  Serve(40);
  std::ifstream log(name);
  std::string timer;
  int period = 0;
  double time = 0;
  double paced_before = 0;
  int slow_count = 0;
  int paced_count = 0;
  while (log >> timer >> period >> time) {
    if (timer == "Slow") {
      ++slow_count;
      EXPECT_EQ(period, 2000);
      EXPECT_GE(time, 2000);
    } else {
      ASSERT_EQ(timer, "Paced");
      ++paced_count;
      EXPECT_EQ(period, 60) << "the pace, where it is longer than the interval";
      EXPECT_GT(time, paced_before);
      paced_before = time;
    }
  }
  log.close();
  std::filesystem::remove(name);
  EXPECT_EQ(slow_count + paced_count, 40);
  EXPECT_GE(slow_count, 1);
  EXPECT_GE(paced_count, 20);
}

TEST_F(TickTimesTest, GoesOnWithoutALogThatCannotBeWritten) {
  test::SetVariable("ORVANE_TICKS", "/nowhere/at/all/ticks.txt");
  screen_.Paced.SetEnabled(true);
  EXPECT_EQ(Serve(1), 60);
}

TEST(GameSpeed, IsOneUnlessANumberFromOneToAThousandSaysMore) {
  EXPECT_EQ(GameSpeed(nullptr), 1);
  EXPECT_EQ(GameSpeed(""), 1);
  EXPECT_EQ(GameSpeed("quick"), 1);
  EXPECT_EQ(GameSpeed("0.5"), 1) << "nothing slows the game down";
  EXPECT_EQ(GameSpeed("-3"), 1);
  EXPECT_EQ(GameSpeed("nan"), 1);
  EXPECT_EQ(GameSpeed("2.5"), 2.5);
  EXPECT_EQ(GameSpeed("1000"), 1000);
  EXPECT_EQ(GameSpeed("1e9"), 1000);
  EXPECT_EQ(GameSpeed("inf"), 1000);
}

}  // namespace
}  // namespace orvane
