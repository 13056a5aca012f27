// What screen readers are told of windows whose kind and text do not say it.
#pragma once

#include <string>

#include "src/frontend/windows/system/windows_api.h"

namespace orvane {

// Readers ask a window by a message. What has been set here they get as the answer, all else from
// the system's own description of the window. While one of these lives, readers in other processes
// can ask.
class Speech {
 public:
  Speech();
  ~Speech();
  Speech(const Speech&) = delete;
  Speech& operator=(const Speech&) = delete;

  // What a window of this thread is called, or what is to be known about it besides; an empty text
  // leaves it to the system.
  static void SetName(HWND window, const std::string& name);
  static void SetDescription(HWND window, const std::string& description);

  enum class Role { Picture, Button, Group };
  static void SetRole(HWND window, Role role);

  // Whether a screen reader runs. Looked after once a second.
  bool IsHeard();
  // What is to be known about a window has changed, and should be read at once.
  static void Alert(HWND window);

 private:
  unsigned long long looked_ = 0;  // when, in ms of the system's clock
  bool heard_ = false;
};

}  // namespace orvane
