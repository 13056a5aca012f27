#include "src/frontend/shared/home.h"

#include "src/platform/player_folder.h"

namespace orvane {

std::string MakeReady(const Home& home) {
  if (home.Folder.empty()) return home.Problem;
  return home.Installed.empty() ? std::string() : PreparePlayerFolder(home.Installed, home.Folder);
}

}  // namespace orvane
