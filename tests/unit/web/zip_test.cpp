// Archives that players bring and take along.
#include "src/frontend/web/services/zip.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

std::string FromHex(std::string_view hex) {
  std::string bytes;
  for (size_t i = 0; i < hex.size(); i += 2) {
    bytes += static_cast<char>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16));
  }
  return bytes;
}

// As another program has packed it: a file of 80 letters, deflated, and its folder.
const std::string kForeign = FromHex(
    "504b030414000000080000002100600c0150070000005000000007000000612f622e7478744b4c4aa42a0400504b03"
    "041400000000000000210000000000000000000000000002000000612f504b01021403140000000800000021006"
    "00c01500700000050000000070000000000000000000000800100000000612f622e747874504b01021403140000"
    "0000000000210000000000000000000000000002000000000000000000000080012c000000612f504b0506000000"
    "0002000200650000004c0000000000");

TEST(ZipTest, ReadsWhatItWrites) {
  const NamedFiles files{{"Save01.sav", std::string("\0\1\xff", 3)}, {"二.sav", ""}};
  const std::string archive = WriteZip(files);
  EXPECT_TRUE(LooksLikeZip(archive));
  EXPECT_EQ(ReadZip(archive), files);
  EXPECT_EQ(ReadZip(WriteZip({})), NamedFiles());
}

TEST(ZipTest, ReadsWhatOthersHavePacked) {
  std::string letters;
  for (int i = 0; i < 40; ++i) letters += "ab";
  EXPECT_EQ(ReadZip(kForeign), (NamedFiles{{"a/b.txt", letters}}));
  EXPECT_EQ(ReadZip(kForeign + "and a comment"), (NamedFiles{{"a/b.txt", letters}}));
}

TEST(ZipTest, RefusesWhatIsNotWhole) {
  const std::string own = WriteZip({{"Save01.sav", std::string(540, 'x')}});
  for (const std::string& archive : {own, kForeign}) {
    for (size_t size = 0; size < archive.size(); ++size) {
      EXPECT_FALSE(ReadZip(std::string_view(archive).substr(0, size))) << size;
    }
  }
}

// Wherever a byte is another one, the archive is refused or its files are what they were.
TEST(ZipTest, GivesNoOtherBytesForABrokenOne) {
  const NamedFiles whole = *ReadZip(kForeign);
  for (size_t at = 0; at < kForeign.size(); ++at) {
    for (const int flip : {0x01, 0x80, 0xFF}) {
      std::string broken = kForeign;
      broken[at] = static_cast<char>(broken[at] ^ flip);
      const auto files = ReadZip(broken);
      if (!files || files->empty()) continue;
      EXPECT_EQ(files->front().second, whole[0].second) << at;
    }
  }
}

TEST(ZipTest, RefusesAFileThatSaysThatItIsHuge) {
  std::string huge = kForeign;
  const size_t entry = huge.find("PK\1\2");
  huge[entry + 27] = '\x7f';
  EXPECT_FALSE(ReadZip(huge));
}

}  // namespace
}  // namespace orvane
