#include "src/platform/program_path.h"

#include <system_error>

namespace orvane {

std::filesystem::path ProgramPath() {
  std::error_code failed;
  const auto path = std::filesystem::read_symlink("/proc/self/exe", failed);
  return failed ? std::filesystem::path() : path;
}

}  // namespace orvane
