#include "tools/maps/tile_map.h"

#include <charconv>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace orvane::maps {

std::string WriteDat(const TileMap& map) {
  std::string text;
  for (int column = 0; column < kColumns; ++column) {
    for (int row = 0; row < kRows; ++row) {
      if (row > 0) text += ',';
      text += std::to_string(map.At(column, row));
    }
    text += '\n';
  }
  return text;
}

TileMap ReadDat(std::string_view text) {
  TileMap map;
  size_t at = 0;
  for (int cell = 0; cell < kCells; ++cell) {
    at = text.find_first_not_of(", \t\r\n", at);
    if (at == std::string_view::npos) {
      throw std::runtime_error("the map ends after " + std::to_string(cell) + " of 480 numbers");
    }
    int code = 0;
    const auto [end, error] = std::from_chars(text.data() + at, text.data() + text.size(), code);
    if (error != std::errc()) {
      throw std::runtime_error("number " + std::to_string(cell + 1) +
                               " of the map is not a number");
    }
    map.Set(cell / kRows, cell % kRows, code);
    at = static_cast<size_t>(end - text.data());
  }
  return map;
}

std::string ReadFile(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error(file + ": cannot open");
  std::string text((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
  if (stream.bad()) throw std::runtime_error(file + ": cannot read");
  return text;
}

void WriteFile(const std::string& file, std::string_view text) {
  std::ofstream stream(file, std::ios::binary);
  stream.write(text.data(), static_cast<std::streamsize>(text.size()));
  stream.close();
  if (!stream) throw std::runtime_error(file + ": cannot write");
}

}  // namespace orvane::maps
