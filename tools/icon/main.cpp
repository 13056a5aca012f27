// orvane-icon OUT.ico PICTURE.png ...: puts square pictures of several sizes into one icon of
// Windows.
#include <cstdint>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "src/base/little_endian.h"
#include "tools/files.h"
#include "tools/paint/png_file.h"

namespace orvane {
namespace {

constexpr int kLargest = 256;  // kept as a PNG file, smaller ones as plain pixels

// A picture as pixels of 32 bits, rows from the bottom up, behind the header that says so; then a
// mask that leaves nothing out.
std::string Pixels(const paint::Image& image) {
  constexpr size_t header_size = 40;
  const auto width = static_cast<size_t>(image.Width);
  const auto height = static_cast<size_t>(image.Height);
  std::string bytes;
  AppendLittleEndian(bytes, header_size, 4);
  AppendLittleEndian(bytes, width, 4);
  AppendLittleEndian(bytes, 2 * height, 4);  // with the mask
  AppendLittleEndian(bytes, 1, 2);           // plane
  AppendLittleEndian(bytes, 32, 2);          // bits for each pixel
  AppendLittleEndian(bytes, 0, 24);          // no compression, and no more to say
  for (size_t row = height; row-- > 0;) {
    for (size_t column = 0; column < width; ++column) {
      AppendLittleEndian(bytes, 0xFF000000 | image.Pixels[row * width + column], 4);
    }
  }
  const size_t mask_row = (width + 31) / 32 * 4;
  bytes.append(mask_row * height, '\0');
  return bytes;
}

void Run(const std::string& target, const std::vector<std::string>& files) {
  constexpr size_t head_size = 6;
  constexpr size_t entry_size = 16;
  std::string head;
  std::string pictures;
  AppendLittleEndian(head, 0, 2);
  AppendLittleEndian(head, 1, 2);  // an icon
  AppendLittleEndian(head, files.size(), 2);
  for (const std::string& file : files) {
    const paint::Image image = paint::ReadPng(file);
    if (image.Width != image.Height || image.Width > kLargest) {
      throw std::runtime_error(file + ": not a square of up to 256 pixels");
    }
    const std::string bytes = image.Width == kLargest ? ReadFile(file) : Pixels(image);
    AppendLittleEndian(head, static_cast<size_t>(image.Width % kLargest), 1);
    AppendLittleEndian(head, static_cast<size_t>(image.Height % kLargest), 1);
    AppendLittleEndian(head, 0, 2);  // no palette
    AppendLittleEndian(head, 1, 2);  // plane
    AppendLittleEndian(head, 32, 2);
    AppendLittleEndian(head, bytes.size(), 4);
    AppendLittleEndian(head, head_size + files.size() * entry_size + pictures.size(), 4);
    pictures += bytes;
  }
  WriteFile(target, head + pictures);
}

}  // namespace
}  // namespace orvane

int main(int count, char** words) {
  try {
    if (count < 3) throw std::runtime_error("usage: orvane-icon OUT.ico PICTURE.png ...");
    orvane::Run(words[1], std::vector<std::string>(words + 2, words + count));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "orvane-icon: %s\n", error.what());
    return 1;
  }
  return 0;
}
