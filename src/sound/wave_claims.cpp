#include "src/sound/wave_claims.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "src/base/little_endian.h"

namespace orvane {
namespace {

constexpr std::string_view kRiff = "RIFF";
constexpr size_t kNameSize = 4;
// A name and a length.
constexpr size_t kHeaderSize = 8;
// The whole begins with a header and the word "WAVE".
constexpr size_t kFirstPart = kHeaderSize + kNameSize;

// Brings the length of the part at that place down to what is left behind its header. Returns it.
size_t ClipPart(std::vector<std::uint8_t>& bytes, size_t at) {
  const size_t left = bytes.size() - at - kHeaderSize;
  const std::span<std::uint8_t> length(bytes.data() + at + kNameSize, kHeaderSize - kNameSize);
  const auto said = static_cast<size_t>(FromLittleEndian(length));
  if (said <= left) return said;
  std::string shorter;
  AppendLittleEndian(shorter, left, length.size());
  std::copy(shorter.begin(), shorter.end(), length.begin());
  return left;
}

}  // namespace

std::vector<std::uint8_t> ClipWaveClaims(std::span<const std::uint8_t> file) {
  std::vector<std::uint8_t> bytes(file.begin(), file.end());
  if (bytes.size() < kFirstPart || bytes.size() > std::numeric_limits<std::uint32_t>::max() ||
      !std::equal(kRiff.begin(), kRiff.end(), bytes.begin())) {
    return {};
  }
  ClipPart(bytes, 0);
  for (size_t at = kFirstPart; bytes.size() - at >= kHeaderSize;) {
    const size_t length = ClipPart(bytes, at);
    // Parts begin at even places.
    at = std::min(at + kHeaderSize + length + length % 2, bytes.size());
  }
  return bytes;
}

}  // namespace orvane
