// The ticks by the real clock.
#include "src/frontend/desktop/app/tick_server.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <functional>

#include "src/frontend/shared/events.h"
#include "src/ui/screen.h"
#include "src/ui/stage.h"
#include "src/ui/timer.h"
#include "tests/unit/desktop/test_services.h"

namespace orvane {
namespace {

class Clockwork : public Screen {
 public:
  explicit Clockwork(Stage& stage) : Screen(stage, "Clockwork", "Clockwork", 200, 100) {}

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
    stage_.KeepDesigns();
    stage_.Show(screen_);
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

}  // namespace
}  // namespace orvane
