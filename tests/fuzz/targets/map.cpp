// A map file: 480 numbers, or a run-time error that names the file.
#include "src/core/map_file.h"
#include "tests/fuzz/harness.h"

namespace orvane::fuzz {

void Try(Input& input) {
  const std::string text = input.Rest();
  MapTiles tiles;
  try {
    ReadMapText(text, "map", tiles);
    Require(text.size() >= size_t{kMapColumns * kMapRows}, "480 numbers take 480 characters");
  } catch (const RunError& error) {
    Require(error.Kind != ErrorKind::Subscript, "no tile is read beyond the map");
    Require(error.Kind == ErrorKind::Overflow || error.Subject == "map",
            "the error names the file");
  }
}

}  // namespace orvane::fuzz
