// What screen readers are told of windows whose text does not say it.
#pragma once

#include <string>

#include "src/frontend/windows/system/windows_api.h"

struct IAccPropServices;  // the system's

namespace orvane {

// Tells by the system's own annotations; where it takes none, nothing happens.
class Speech {
 public:
  Speech();
  ~Speech();
  Speech(const Speech&) = delete;
  Speech& operator=(const Speech&) = delete;

  // What a window is called, or what is to be known about it besides; nothing for an empty text.
  void SetName(HWND window, const std::string& name) const;
  void SetDescription(HWND window, const std::string& description) const;

  enum class Role { Picture, Button, Group };
  void SetRole(HWND window, Role role) const;

  // Whether a screen reader runs. Looked after once a second.
  bool IsHeard();
  // What is to be known about a window has changed, and should be read at once.
  static void Alert(HWND window);

 private:
  IAccPropServices* services_ = nullptr;
  unsigned long long looked_ = 0;  // when, in ms of the system's clock
  bool heard_ = false;
};

}  // namespace orvane
