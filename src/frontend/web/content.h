// The files of the game folder, in a source file that the build makes from it.
#pragma once

#include <cstddef>
#include <vector>

namespace orvane {

struct ContentFile {
  const char* Name;  // with "/" between folders
  const char* Bytes;
  size_t Size;
};

std::vector<ContentFile> AllContentFiles();

}  // namespace orvane
