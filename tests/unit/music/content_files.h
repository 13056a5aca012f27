// The scores and recipes as they stand in the source tree.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "src/platform/whole_file.h"

namespace orvane::tests {

// The text of a file below content/; fails the test where there is none.
inline std::string ContentText(const std::string& path) {
  const auto text = ReadWholeFile(std::string(ORVANE_SOURCE_FOLDER) + "/content/" + path);
  EXPECT_TRUE(text.has_value()) << path;
  return text.value_or("");
}

}  // namespace orvane::tests
