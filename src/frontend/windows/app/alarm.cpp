#include "src/frontend/windows/app/alarm.h"

// clang-format off
#include <mmsystem.h>
// clang-format on

#include <algorithm>

namespace orvane {
namespace {

// A timer that is exact by itself; systems before it have one that follows the system's period.
HANDLE MakeTimer() {
  constexpr DWORD high_resolution = 2;
  HANDLE timer = CreateWaitableTimerExW(nullptr, nullptr, high_resolution, TIMER_ALL_ACCESS);
  return timer != nullptr ? timer : CreateWaitableTimerExW(nullptr, nullptr, 0, TIMER_ALL_ACCESS);
}

constexpr UINT kPeriodMs = 1;

}  // namespace

Alarm::Alarm(HWND window, UINT message)
    : window_(window),
      message_(message),
      timer_(MakeTimer()),
      end_(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
  timeBeginPeriod(kPeriodMs);
  thread_ = std::thread([this] { Watch(); });
}

Alarm::~Alarm() {
  SetEvent(end_);
  thread_.join();
  timeEndPeriod(kPeriodMs);
  CloseHandle(timer_);
  CloseHandle(end_);
}

void Alarm::Set(int milliseconds) {
  constexpr LONGLONG units_per_ms = 10000;
  // What is due at once waits a moment all the same, so that input and painting have their turn.
  LARGE_INTEGER wait;
  wait.QuadPart = -std::max(1, milliseconds) * units_per_ms;
  SetWaitableTimer(timer_, &wait, 0, nullptr, nullptr, FALSE);
}

void Alarm::Stop() {
  CancelWaitableTimer(timer_);
}

void Alarm::Watch() {
  SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_TIME_CRITICAL);
  const HANDLE handles[] = {end_, timer_};
  while (WaitForMultipleObjects(2, handles, FALSE, INFINITE) == WAIT_OBJECT_0 + 1) {
    if (!posted_.exchange(true)) PostMessageW(window_, message_, 0, 0);
  }
}

}  // namespace orvane
