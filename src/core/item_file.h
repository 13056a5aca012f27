// The item file: fixed records of 32 bytes, counted from 1.
#pragma once

#include "src/core/shared_state.h"
#include "src/platform/game_folder.h"

namespace orvane {

class ItemFile {
 public:
  static constexpr int RecordSize = 32;
  static constexpr int RecordCount = 50;  // records that every item file has

  explicit ItemFile(const GameFolder& folder) : folder_(folder) {}

  // Throws RunError(File) unless the file is there and holds the records 1 to 50.
  void CheckComplete() const;

  // Reads a record into the buffer. A number below 1 or beyond the end of the file leaves kind and
  // value 0 and a blank name; this never fails.
  void Read(int number, ItemRecord& buffer) const;

 private:
  const GameFolder& folder_;
};

}  // namespace orvane
