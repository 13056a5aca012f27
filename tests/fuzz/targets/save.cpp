// The record of a save file: any bytes make a record, and what a record packs comes back the same.
#include "src/core/save_file.h"
#include "tests/fuzz/harness.h"

namespace orvane::fuzz {

void Try(Input& input) {
  GameRecord record;
  UnpackRecord(input.Rest(), record);
  const std::string packed = PackRecord(record);
  Require(packed.size() == kSaveFileSize, "a record packs into 540 bytes");
  GameRecord again;
  UnpackRecord(packed, again);
  Require(PackRecord(again) == packed, "what was packed is read as it was");
}

}  // namespace orvane::fuzz
