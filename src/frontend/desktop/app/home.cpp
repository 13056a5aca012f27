#include "src/frontend/shared/home.h"

#include <cstdlib>
#include <system_error>

#include "src/platform/path_text.h"
#include "src/platform/program_path.h"

namespace orvane {
namespace {

// An absolute path from the environment, or nothing; relative ones do not count.
std::filesystem::path FromEnvironment(const char* name) {
  const char* value = std::getenv(name);
  const std::filesystem::path path = PathOf(value != nullptr ? value : "");
  return path.is_absolute() ? path : std::filesystem::path();
}

std::filesystem::path DataFolder() {
  auto data = FromEnvironment("XDG_DATA_HOME");
  if (!data.empty()) return data;
  auto home = FromEnvironment("HOME");
  return home.empty() ? home : home / ".local" / "share";
}

}  // namespace

// Installed for all, the player's own is $XDG_DATA_HOME/orvane/game.
Home FindHome() {
  std::error_code failed;
  const auto program = ProgramPath().parent_path();
  const auto beside = program / "game";
  const auto installed = program.parent_path() / "share" / "orvane" / "game";
  if (program.empty() || std::filesystem::exists(beside, failed) ||
      !std::filesystem::is_directory(installed, failed)) {
    return {beside, {}, {}};
  }
  const auto data = DataFolder();
  if (data.empty()) return {{}, installed, "neither XDG_DATA_HOME nor HOME names a folder"};
  return {data / "orvane" / "game", installed, {}};
}

}  // namespace orvane
