#include "src/frontend/shared/home.h"

#include <system_error>

#include "src/frontend/windows/app/local_folder.h"
#include "src/frontend/windows/system/windows_api.h"
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

}  // namespace

// The player's own lies among the local application data.
Home FindHome() {
  const auto beside = ProgramPath().parent_path() / L"game";
  std::error_code failed;
  if (!std::filesystem::is_directory(beside, failed) || CanBeWritten(beside)) {
    return {beside, {}, {}};
  }
  const auto data = LocalFolder();
  if (data.empty()) return {{}, beside, "LOCALAPPDATA names no folder"};
  return {data / L"game", beside, {}};
}

}  // namespace orvane
