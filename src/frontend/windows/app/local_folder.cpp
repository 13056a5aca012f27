#include "src/frontend/windows/app/local_folder.h"

#include <cstdlib>

namespace orvane {

std::filesystem::path LocalFolder() {
  const wchar_t* value = _wgetenv(L"LOCALAPPDATA");
  const std::filesystem::path path = value != nullptr ? value : L"";
  return path.is_absolute() ? path / L"Orvane" : std::filesystem::path();
}

}  // namespace orvane
