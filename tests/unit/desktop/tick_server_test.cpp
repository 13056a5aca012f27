// The ticks in real time, hurried, and in their record.
#include "src/frontend/desktop/app/tick_server.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <fstream>
#include <functional>
#include <string>

#include "src/frontend/desktop/windows/events.h"
#include "src/ui/screen.h"
#include "src/ui/stage.h"
#include "src/ui/timer.h"
#include "tests/unit/desktop/test_services.h"

namespace orvane {
namespace {

class Clockwork : public Screen {
 public:
  explicit Clockwork(Stage& stage) : Screen(stage, "Clockwork", "Clockwork", 200, 100) {}

  Timer Slow{*this, "Slow", 2000};
  Timer Paced{*this, "Paced", 5, 60};

 protected:
  void OnLoad() override {}
};

// What a tick would do is the program's business; here it only counts.
class Counted : public Events {
 public:
  void Send(const std::function<void(Program&)>& /*event*/) override { ++Count; }

  int Count = 0;
};

class TickServerTest : public testing::Test {
 protected:
  TickServerTest() {
    qunsetenv("ORVANE_SPEED");
    qunsetenv("ORVANE_TICKS");
    stage_.KeepDesigns();
    stage_.Show(screen_);
  }
  ~TickServerTest() override {
    qunsetenv("ORVANE_SPEED");
    qunsetenv("ORVANE_TICKS");
  }

  // Serves until there have been so many ticks, for five seconds at most; returns the ms it took.
  qint64 ServeTicks(int count) {
    QElapsedTimer clock;
    clock.start();
    TickServer server(stage_, events_);
    server.Arm();
    while (events_.Count < count && clock.elapsed() < 5000) {
      const int before = events_.Count;
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
      if (events_.Count != before) server.Arm();
    }
    return clock.elapsed();
  }

  Stage stage_;
  Clockwork screen_{stage_};
  Counted events_;
};

TEST_F(TickServerTest, KeepsRealTimeAndThePace) {
  screen_.Paced.SetEnabled(true);
  EXPECT_GE(ServeTicks(2), 120);
  EXPECT_EQ(events_.Count, 2);
}

TEST_F(TickServerTest, HurriesAsManyTimesAsItIsAskedTo) {
  qputenv("ORVANE_SPEED", "100");
  screen_.Slow.SetEnabled(true);
  const qint64 took = ServeTicks(2);
  EXPECT_EQ(events_.Count, 2);
  EXPECT_GE(took, 40) << "2 times 2000 ms, a hundred times as fast";
  EXPECT_LT(took, 2000);
}

TEST_F(TickServerTest, LogsEachTickWithItsPeriodAndTimeOfTheGame) {
  const QTemporaryDir folder;
  const std::string name = folder.filePath("ticks.txt").toStdString();
  qputenv("ORVANE_TICKS", QByteArray::fromStdString(name));
  qputenv("ORVANE_SPEED", "100");
  screen_.Slow.SetEnabled(true);
  screen_.Paced.SetEnabled(true);
  ServeTicks(40);
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
  EXPECT_EQ(slow_count + paced_count, events_.Count);
  EXPECT_GE(slow_count, 1);
  EXPECT_GE(paced_count, 1);
}

TEST_F(TickServerTest, GoesOnWithoutALogThatCannotBeWritten) {
  qputenv("ORVANE_TICKS", "/nowhere/at/all/ticks.txt");
  screen_.Paced.SetEnabled(true);
  ServeTicks(1);
  EXPECT_EQ(events_.Count, 1);
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
