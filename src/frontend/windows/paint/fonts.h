// The faces that the game asks for, as this system has them.
#pragma once

#include <map>
#include <string>
#include <tuple>

#include "src/frontend/windows/system/windows_api.h"
#include "src/ui/control.h"

namespace orvane {

class Fonts {
 public:
  Fonts() = default;
  ~Fonts();
  Fonts(const Fonts&) = delete;
  Fonts& operator=(const Fonts&) = delete;

  // The font of a control's text, its letters `pixels` high and made narrower by `squeeze`, 1 or
  // less. It lasts as long as this.
  HFONT Get(const Font& font, int pixels, double squeeze = 1);

  // What to tell a player of the game in Japanese of this system's faces, or nothing.
  static std::string Hint();

 private:
  std::map<std::tuple<std::string, int, bool, int>, HFONT> made_;
};

}  // namespace orvane
