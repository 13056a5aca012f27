#include "src/core/sheets.h"

#include <array>
#include <map>
#include <string>

#include "src/base/error.h"
#include "src/core/sheet_data.h"

namespace orvane {
namespace {

// Reads the compact form that the build gives a sheet: width, height and number of colours in 16
// bits each, the colours, then a byte for every pixel; with 0 colours, three bytes for every pixel
// instead.
class SheetReader {
 public:
  explicit SheetReader(const SheetData& data)
      : at_(data.Bytes), width_(Number16()), height_(Number16()), colours_(Number16()) {}

  // The sheet, whose pixels are read when they are first looked at.
  Surface Read() const {
    return {width_, height_, [reader = *this]() mutable { return reader.ReadPixels(); }};
  }

 private:
  Surface::Pixels ReadPixels() {
    std::array<Colour, 256> palette{};
    for (int i = 0; i < colours_; ++i) palette.at(static_cast<size_t>(i)) = Number24();
    Surface::Pixels pixels(static_cast<size_t>(width_) * static_cast<size_t>(height_));
    if (colours_ == 0) {
      for (Colour& pixel : pixels) pixel = Number24();
    } else {
      for (Colour& pixel : pixels) pixel = palette[Byte()];
    }
    return pixels;
  }

  unsigned char Byte() { return static_cast<unsigned char>(*at_++); }
  int Number16() {
    const int low = Byte();
    return low | Byte() << 8;
  }
  Colour Number24() {
    const Colour red = Byte();
    const Colour green = Byte();
    return red << 16 | green << 8 | Byte();
  }

  const char* at_;
  int width_;
  int height_;
  int colours_;
};

std::map<std::string, Surface, std::less<>> FindAll() {
  std::map<std::string, Surface, std::less<>> sheets;
  for (const SheetData& data : AllSheetData()) {
    sheets.emplace(data.Name, SheetReader(data).Read());
  }
  return sheets;
}

const std::map<std::string, Surface, std::less<>>& Sheets() {
  static const std::map<std::string, Surface, std::less<>> sheets = FindAll();
  return sheets;
}

}  // namespace

const Surface& Sheet(std::string_view name) {
  const auto found = Sheets().find(name);
  if (found == Sheets().end()) throw RunError(ErrorKind::File, std::string(name));
  return found->second;
}

bool HasSheet(std::string_view name) {
  return Sheets().contains(name);
}

}  // namespace orvane
