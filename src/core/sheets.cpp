#include "src/core/sheets.h"

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
  explicit SheetReader(std::string_view bytes) : bytes_(bytes) {}

  Surface Read() {
    const int width = Number16();
    const int height = Number16();
    const int colours = Number16();
    Surface::Pixels palette;
    for (int i = 0; i < colours; ++i) palette.push_back(Number24());
    Surface::Pixels pixels(static_cast<size_t>(width) * static_cast<size_t>(height));
    if (colours == 0) {
      for (Colour& pixel : pixels) pixel = Number24();
    } else {
      for (Colour& pixel : pixels) pixel = palette.at(Byte());
    }
    return {width, height, std::move(pixels)};
  }

 private:
  unsigned Byte() { return static_cast<unsigned char>(bytes_[at_++]); }
  int Number16() {
    const unsigned low = Byte();
    return static_cast<int>(low | Byte() << 8);
  }
  Colour Number24() {
    const unsigned red = Byte();
    const unsigned green = Byte();
    return red << 16 | green << 8 | Byte();
  }

  std::string_view bytes_;
  size_t at_ = 0;
};

std::map<std::string, Surface, std::less<>> ReadAll() {
  std::map<std::string, Surface, std::less<>> sheets;
  for (const SheetData& data : AllSheetData()) {
    sheets.emplace(data.Name, SheetReader({data.Bytes, data.Size}).Read());
  }
  return sheets;
}

}  // namespace

const Surface& Sheet(std::string_view name) {
  static const std::map<std::string, Surface, std::less<>> sheets = ReadAll();
  const auto found = sheets.find(name);
  if (found == sheets.end()) throw RunError(ErrorKind::File, std::string(name));
  return found->second;
}

}  // namespace orvane
