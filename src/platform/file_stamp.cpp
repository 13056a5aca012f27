#include "src/platform/file_stamp.h"

#include <chrono>
#include <system_error>

#include "src/platform/path_text.h"

namespace orvane {
namespace {

// The coarsest clock of a file system that is still about.
constexpr std::chrono::seconds kCoarsest(2);

}  // namespace

std::optional<FileStamp> StampOf(const std::string& path) {
  const std::filesystem::path file = PathOf(path);
  std::error_code missing;
  FileStamp stamp{path, std::filesystem::file_size(file, missing), {}};
  if (missing) return std::nullopt;
  stamp.Changed = std::filesystem::last_write_time(file, missing);
  if (missing) return std::nullopt;
  return stamp;
}

bool IsSettled(const FileStamp& stamp) {
  const auto age = std::filesystem::file_time_type::clock::now() - stamp.Changed;
  return age > kCoarsest || age < -kCoarsest;
}

}  // namespace orvane
