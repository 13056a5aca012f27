// Panels with their texts, and the ending, as the game itself lays them out.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "src/ui/surface.h"
#include "tools/contact/scenes.h"

namespace orvane::contact {

struct Shown {
  std::string Name;
  Surface Picture;
};

// The game's own screens, with the sheets given in place of those built in. They are laid out and
// drawn, and never play.
class Windows {
 public:
  explicit Windows(const Sheets& sheets);
  ~Windows();
  Windows(const Windows&) = delete;
  Windows& operator=(const Windows&) = delete;

  // The title as it is seen: stretched, with its texts but without the button.
  Shown TheTitle();
  // The status panel, and the message window with what is told, found and healed.
  std::vector<Shown> OfTheField();
  // Battle scenes with both name panels, and with the victory panel.
  std::vector<Shown> OfTheBattle();
  // The ending at moments of its credits, and its last card.
  std::vector<Shown> OfTheEnding();

 private:
  struct Screens;

  const Sheets& sheets_;
  std::unique_ptr<Screens> screens_;
};

// A face as the status panel shows it, and enlarged for the window of the heroes' data.
std::vector<Shown> Faces(const Sheets& sheets);

}  // namespace orvane::contact
