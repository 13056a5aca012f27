// The sheets' bytes, in a source file that the build makes from the pictures.
#pragma once

#include <vector>

namespace orvane {

struct SheetData {
  const char* Name;
  const char* Bytes;
};

std::vector<SheetData> AllSheetData();

}  // namespace orvane
