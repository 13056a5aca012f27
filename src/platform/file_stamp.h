// Which state of a file it was that was read.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace orvane {

struct FileStamp {
  std::string Path;
  std::uintmax_t Size = 0;  // in bytes
  std::filesystem::file_time_type Changed{};
  bool operator==(const FileStamp&) const = default;
};

// The state that a file is in; nothing if it is missing.
std::optional<FileStamp> StampOf(const std::string& path);

// Whether a change of the file from now on would be seen in its stamp: a clock that counts coarsely
// gives two changes soon after another the same time.
bool IsSettled(const FileStamp& stamp);

}  // namespace orvane
