// The scores and recipes as they stand in the source tree.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

namespace orvane::tests {

// The text of a file below content/; fails the test where there is none.
inline std::string ContentText(const std::string& path) {
  std::ifstream in(std::string(ORVANE_SOURCE_FOLDER) + "/content/" + path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  EXPECT_TRUE(in.good()) << path;
  return text.str();
}

}  // namespace orvane::tests
