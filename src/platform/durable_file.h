// The one place that talks to the operating system beyond the standard library.
#pragma once

#include <string>

namespace orvane {

// Writes `bytes` to a new file beside `path`, flushes it to the disk, gives it the name `path` and
// flushes the folder. Returns false when any step fails; then the old file stands as it was.
bool ReplaceFileDurably(const std::string& path, const std::string& bytes);

}  // namespace orvane
