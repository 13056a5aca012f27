// The desktop's classes that the tests in windows work with, put together as the game's own main
// puts them together, but without sound.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "src/frontend/desktop/access/spoken.h"
#include "src/frontend/desktop/app/desktop.h"
#include "src/frontend/desktop/paint/look.h"
#include "src/frontend/desktop/windows/toolkit_scale.h"
#include "src/frontend/shared/chance.h"
#include "src/frontend/shared/zoom.h"
#include "src/game/program.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"
#include "src/ui/reach.h"

namespace orvane::test {

// The scale that games are opened with unless a test is about scales, 1 unless set. The toolkit
// draws letters a shade differently once a process has had another scale, so that one process keeps
// to one.
double UsualScale();
void SetUsualScale(double scale);

// The language that games are opened in, the game's own unless set, and what it shows for a text.
const std::string& UsualLanguage();
void SetUsualLanguage(const std::string& code);
std::string Shown(const std::string& text);

// How a game is opened.
struct Opening {
  std::filesystem::path Folder = ORVANE_GAME_FOLDER;
  // Pixels of the screen to one of the game; what suits the screen where there is none.
  std::optional<double> Scale = UsualScale();
  uint32_t Seed = 5;
};

// What the screen is. The first call comes before the first game is opened.
const ScreenFacts& TheScreen();

class FrontEnd {
 public:
  // Opens the game's first window.
  explicit FrontEnd(const Opening& opening);
  FrontEnd(const FrontEnd&) = delete;
  FrontEnd& operator=(const FrontEnd&) = delete;

  Program& Running() { return program_; }
  // An event that brings the windows up to date afterwards.
  void Send(const std::function<void(Program&)>& event) { desktop_.Send(event); }
  // The game's front end itself.
  Desktop& TheDesktop() { return desktop_; }

 private:
  NoSound sound_;
  PlayersChance chance_;
  FolderStorage files_;
  Program program_;
  Translator texts_;
  Desktop desktop_;
};

}  // namespace orvane::test
