// The alarm behind the game's ticks.
#include "src/frontend/windows/app/alarm.h"

#include <gtest/gtest.h>

#include "src/frontend/windows/app/message_window.h"

namespace orvane {
namespace {

constexpr UINT kRing = WM_APP + 7;

class AlarmTest : public testing::Test {
 protected:
  // How often it rings in so many ms.
  int RingsWithin(DWORD milliseconds) {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    rings_ = 0;
    for (ULONGLONG now = GetTickCount64(); now < end; now = GetTickCount64()) {
      MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
      MSG message;
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) DispatchMessageW(&message);
    }
    return rings_;
  }

  int rings_ = 0;
  bool takes_ = true;
  MessageWindow window_{L"alarm test", [this](UINT message) {
                          if (message == kRing) ++rings_;
                          if (takes_) alarm_.Taken();
                        }};
  Alarm alarm_{window_.Handle(), kRing};
};

TEST_F(AlarmTest, RingsOnceAndNotBefore) {
  alarm_.Set(120);
  EXPECT_EQ(RingsWithin(40), 0);
  EXPECT_EQ(RingsWithin(400), 1);
}

TEST_F(AlarmTest, StopsAndIsSetAnew) {
  alarm_.Set(60);
  alarm_.Stop();
  EXPECT_EQ(RingsWithin(200), 0);
  alarm_.Set(300);
  alarm_.Set(10);
  EXPECT_EQ(RingsWithin(250), 1);
}

TEST_F(AlarmTest, RingsDoNotPileUp) {
  takes_ = false;
  for (int i = 0; i < 5; ++i) {
    alarm_.Set(1);
    Sleep(30);
  }
  EXPECT_EQ(RingsWithin(100), 1);
}

}  // namespace
}  // namespace orvane
