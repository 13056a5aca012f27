#include "src/platform/program_path.h"

#include <string>

#include "src/platform/windows/windows_api.h"

namespace orvane {

std::filesystem::path ProgramPath() {
  constexpr size_t longest = 32768;  // that any path of the system can be
  std::wstring path(longest, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), longest));
  return path;
}

}  // namespace orvane
