// The one place that talks to the operating system about writing a file that lasts.
#pragma once

#include <filesystem>
#include <string>

namespace orvane {

// Writes `bytes` to a new file beside `path`, flushes it to the disk, gives it the name `path` and
// flushes the folder. A file that is replaced hands its mode on; one that may not be written is not
// replaced. Returns what the system says is in the way, or nothing once the bytes last; when a step
// fails the old file stands as it was, but where it is the last one, of which only the disk knows
// whether it has the old or the new one.
std::string ReplaceFileDurably(const std::filesystem::path& path, const std::string& bytes);

}  // namespace orvane
