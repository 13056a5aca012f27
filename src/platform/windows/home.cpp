#include "src/platform/windows/home.h"

#include <system_error>

#include "src/platform/program_path.h"
#include "src/platform/windows/windows_api.h"

namespace orvane {
namespace {

// Whether a new file can be made in a folder: tried, as rights, discs and sharing all have a say.
bool CanWrite(const std::filesystem::path& folder) {
  const auto name = folder / L"writing.tmp";
  const HANDLE file = CreateFileW(name.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_SHARING_VIOLATION;
  CloseHandle(file);
  return true;
}

std::filesystem::path LocalData() {
  PWSTR path = nullptr;
  std::filesystem::path found;
  if (SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &path) == S_OK) found = path;
  CoTaskMemFree(path);
  return found;
}

}  // namespace

Home FindHome() {
  return FindHome(ProgramPath().parent_path(), LocalData());
}

Home FindHome(const std::filesystem::path& program, const std::filesystem::path& data) {
  const auto beside = program / L"game";
  std::error_code failed;
  if (!std::filesystem::is_directory(beside, failed) || CanWrite(beside)) return {beside, {}};
  return {data.empty() ? data : data / L"Orvane" / L"game", beside};
}

}  // namespace orvane
