// Plays inputs that are files to a target, where there is no fuzzer to do it.
//   orvane-fuzz-TARGET FILE_OR_FOLDER...
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "src/platform/path_text.h"
#include "src/platform/whole_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace {

std::vector<std::filesystem::path> FilesOf(const std::filesystem::path& path) {
  std::vector<std::filesystem::path> files;
  if (!std::filesystem::is_directory(path)) return {path};
  for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
    if (entry.is_regular_file()) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

int main(int count, char** words) {
  int played = 0;
  for (int i = 1; i < count; ++i) {
    for (const auto& file : FilesOf(orvane::PathOf(words[i]))) {
      std::printf("%s\n", orvane::TextOf(file).c_str());
      std::fflush(stdout);  // the last one that is named is the one that failed
      const auto bytes = orvane::ReadWholeFile(file);
      if (!bytes) return EXIT_FAILURE;
      const std::vector<std::uint8_t> input(bytes->begin(), bytes->end());
      LLVMFuzzerTestOneInput(input.data(), input.size());
      ++played;
    }
  }
  std::printf("%d inputs\n", played);
  return played > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
