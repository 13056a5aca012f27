#include "src/frontend/shared/texts/catalogue.h"

#include <cstdint>
#include <stdexcept>

namespace orvane {
namespace {

constexpr uint32_t kMagic = 0x950412DE;
constexpr size_t kWord = 4;

// A little-endian number of four bytes.
uint32_t WordAt(std::string_view bytes, size_t at) {
  if (at > bytes.size() || bytes.size() - at < kWord) throw std::runtime_error("catalogue cut off");
  uint32_t word = 0;
  for (size_t i = 0; i < kWord; ++i) {
    word |= static_cast<uint32_t>(static_cast<unsigned char>(bytes[at + i])) << 8 * i;
  }
  return word;
}

// The text that an entry of a table of lengths and places tells.
std::string_view TextAt(std::string_view bytes, size_t entry) {
  const size_t length = WordAt(bytes, entry);
  const size_t at = WordAt(bytes, entry + kWord);
  if (at > bytes.size() || bytes.size() - at < length)
    throw std::runtime_error("catalogue cut off");
  return bytes.substr(at, length);
}

}  // namespace

std::vector<CatalogueEntry> ReadCatalogue(std::string_view bytes) {
  if (WordAt(bytes, 0) != kMagic) throw std::runtime_error("no catalogue");
  const size_t count = WordAt(bytes, 2 * kWord);
  const size_t texts = WordAt(bytes, 3 * kWord);
  const size_t translations = WordAt(bytes, 4 * kWord);
  std::vector<CatalogueEntry> entries;
  for (size_t i = 0; i < count; ++i) {
    const size_t step = 2 * kWord * i;
    const std::string_view text = TextAt(bytes, texts + step);
    if (!text.empty()) entries.push_back({text, TextAt(bytes, translations + step)});
  }
  return entries;
}

}  // namespace orvane
