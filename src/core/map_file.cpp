#include "src/core/map_file.h"

#include <algorithm>
#include <optional>

#include "src/base/decimal.h"
#include "src/base/error.h"

namespace orvane {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

// Reads numbers off a text one by one. A comma ends a number, and so do blanks and line ends;
// nothing between two commas counts as 0.
class NumberReader {
 public:
  NumberReader(std::string_view text, std::string file) : rest_(text), file_(std::move(file)) {}

  Int16 Next() {
    SkipBlanks();
    if (rest_.empty()) throw RunError(ErrorKind::File, file_);
    const size_t end = std::min(rest_.find_first_of(", \t\r\n"), rest_.size());
    const std::string_view word = rest_.substr(0, end);
    rest_.remove_prefix(end);
    SkipBlanks();
    if (!rest_.empty() && rest_.front() == ',') rest_.remove_prefix(1);
    return word.empty() ? Int16(0) : Number(word);
  }

 private:
  void SkipBlanks() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
  }

  Int16 Number(std::string_view word) const {
    // A plus sign may stand before a number, but not before a second sign.
    const bool plus = word.starts_with('+') && !word.starts_with("+-");
    const std::optional<double> value = ReadDecimal(plus ? word.substr(1) : word);
    if (!value) throw RunError(ErrorKind::Type, file_);
    return RoundToInt16(*value);
  }

  std::string_view rest_;
  std::string file_;
};

}  // namespace

void ReadMapText(std::string_view text, const std::string& file, MapTiles& tiles) {
  NumberReader reader(text, file);
  for (int column = 0; column < kMapColumns; ++column) {
    for (int row = 0; row < kMapRows; ++row) tiles[column][row] = reader.Next();
  }
}

void ReadMapFile(const Storage& files, const MapId& map, MapTiles& tiles) {
  const std::string file = MapFile(map);
  const auto text = files.Read(file);
  if (!text) throw RunError(ErrorKind::File, file);
  ReadMapText(*text, file, tiles);
}

}  // namespace orvane
