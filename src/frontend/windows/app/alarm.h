// An alarm that rings to the millisecond, also while the system runs a loop of its own: under an
// open menu, or while a window is dragged.
#pragma once

#include <atomic>
#include <thread>

#include "src/frontend/windows/system/windows_api.h"

namespace orvane {

class Alarm {
 public:
  // It rings by a posted message; no second one is posted before the first has been taken, so none
  // pile up.
  Alarm(HWND window, UINT message);
  ~Alarm();
  Alarm(const Alarm&) = delete;
  Alarm& operator=(const Alarm&) = delete;

  // Rings once, in so many milliseconds; what was set before counts no more. A ring that was on its
  // way may still come.
  void Set(int milliseconds);
  void Stop();
  // The message has come.
  void Taken() { posted_ = false; }

 private:
  void Watch();

  HWND window_;
  UINT message_;
  HANDLE timer_;
  HANDLE end_;
  std::atomic<bool> posted_ = false;
  std::thread thread_;
};

}  // namespace orvane
