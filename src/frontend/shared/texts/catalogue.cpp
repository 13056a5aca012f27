#include "src/frontend/shared/texts/catalogue.h"

#include <stdexcept>

#include "src/base/little_endian.h"

namespace orvane {
namespace {

constexpr size_t kMagic = 0x950412DE;
constexpr size_t kWord = 4;

std::string_view PartAt(std::string_view bytes, size_t at, size_t size) {
  if (at > bytes.size() || bytes.size() - at < size) throw std::runtime_error("catalogue cut off");
  return bytes.substr(at, size);
}

size_t WordAt(std::string_view bytes, size_t at) {
  return static_cast<size_t>(FromLittleEndian(PartAt(bytes, at, kWord)));
}

// The text that an entry of a table of lengths and places tells.
std::string_view TextAt(std::string_view bytes, size_t entry) {
  const size_t length = WordAt(bytes, entry);
  return PartAt(bytes, WordAt(bytes, entry + kWord), length);
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
