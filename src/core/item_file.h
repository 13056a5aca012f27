// The item file: fixed records of 32 bytes, counted from 1. It is opened once and stays open.
#pragma once

#include <memory>
#include <string>

#include "src/core/shared_state.h"
#include "src/platform/storage.h"

namespace orvane {

class ItemFile {
 public:
  static constexpr int RecordSize = 32;
  static constexpr int RecordCount = 50;  // records that every item file has

  // Opens the file. Throws RunError(File) unless it is there and holds the records 1 to 50.
  void Open(const Storage& files);

  // Reads a record into the buffer. A number below 1 or beyond the end of the file, and a file that
  // has not been opened, leave kind and value 0 and a blank name; this never fails.
  void Read(int number, ItemRecord& buffer) const;

 private:
  std::shared_ptr<const std::string> bytes_;
};

}  // namespace orvane
