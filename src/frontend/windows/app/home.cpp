#include "src/frontend/windows/app/home.h"

#include <cstdlib>

#include "src/frontend/windows/system/windows_api.h"
#include "src/platform/player_folder.h"
#include "src/platform/program_path.h"

namespace orvane {
namespace {

// Only trying tells: rights come from lists, and a disk may be locked as a whole.
bool CanBeWritten(const std::filesystem::path& folder) {
  const std::wstring trial = (folder / L"trial.tmp").wstring();
  const HANDLE file = CreateFileW(trial.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  CloseHandle(file);
  return true;
}

std::filesystem::path LocalData() {
  const wchar_t* value = _wgetenv(L"LOCALAPPDATA");
  const std::filesystem::path path = value != nullptr ? value : L"";
  return path.is_absolute() ? path : std::filesystem::path();
}

}  // namespace

Home FindHome() {
  const auto beside = ProgramPath().parent_path() / L"game";
  std::error_code failed;
  if (!std::filesystem::is_directory(beside, failed) || CanBeWritten(beside)) return {beside, {}};
  const auto data = LocalData();
  return {data.empty() ? data : data / L"Orvane" / L"game", beside};
}

std::string MakeReady(const Home& home) {
  if (home.Folder.empty()) return "LOCALAPPDATA names no folder";
  return home.Installed.empty() ? std::string() : PreparePlayerFolder(home.Installed, home.Folder);
}

}  // namespace orvane
