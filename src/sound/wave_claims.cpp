#include "src/sound/wave_claims.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string_view>

namespace orvane {
namespace {

constexpr std::string_view kRiff = "RIFF";
constexpr size_t kNameSize = 4;
// A name and a length.
constexpr size_t kHeaderSize = 8;
// The whole begins with a header and the word "WAVE".
constexpr size_t kFirstPart = kHeaderSize + kNameSize;

std::uint32_t LengthAt(const std::vector<std::uint8_t>& bytes, size_t at) {
  std::uint32_t length = 0;
  for (size_t i = 0; i < 4; ++i) length |= std::uint32_t{bytes[at + i]} << (8 * i);
  return length;
}

// Brings the length of the part at that place down to what is left behind its header. Returns it.
size_t ClipPart(std::vector<std::uint8_t>& bytes, size_t at) {
  const size_t left = bytes.size() - at - kHeaderSize;
  const size_t said = LengthAt(bytes, at + kNameSize);
  if (said <= left) return said;
  for (size_t i = 0; i < 4; ++i) {
    bytes[at + kNameSize + i] = static_cast<std::uint8_t>((left >> (8 * i)) & 0xffU);
  }
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
