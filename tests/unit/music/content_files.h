// The scores and recipes as they stand in the source tree.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace orvane::tests {

// The text of a file below content/; fails the test where there is none.
inline std::string ContentText(const std::string& path) {
  const auto root = std::filesystem::path(__FILE__).parent_path() / "../../..";
  std::ifstream in(root / "content" / path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  EXPECT_TRUE(in.good()) << path;
  return text.str();
}

}  // namespace orvane::tests
