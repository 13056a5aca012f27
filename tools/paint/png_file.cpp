#include "tools/paint/png_file.h"

#include <png.h>

#include <stdexcept>

namespace orvane::paint {
namespace {

png_image Header(const Image& image) {
  png_image header{};
  header.version = PNG_IMAGE_VERSION;
  header.width = static_cast<png_uint_32>(image.Width);
  header.height = static_cast<png_uint_32>(image.Height);
  header.format = PNG_FORMAT_RGB;
  return header;
}

}  // namespace

void WritePng(const Image& image, const std::string& file) {
  std::vector<uint8_t> bytes;
  bytes.reserve(image.Pixels.size() * 3);
  for (const uint32_t pixel : image.Pixels) {
    bytes.push_back(static_cast<uint8_t>(pixel >> 16));
    bytes.push_back(static_cast<uint8_t>(pixel >> 8));
    bytes.push_back(static_cast<uint8_t>(pixel));
  }
  png_image header = Header(image);
  if (png_image_write_to_file(&header, file.c_str(), 0, bytes.data(), 0, nullptr) == 0) {
    throw std::runtime_error(file + ": cannot write: " + header.message);
  }
}

Image ReadPng(const std::string& file) {
  png_image header{};
  header.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_file(&header, file.c_str()) == 0) {
    throw std::runtime_error(file + ": cannot read: " + header.message);
  }
  header.format = PNG_FORMAT_RGBA;
  std::vector<uint8_t> bytes(PNG_IMAGE_SIZE(header));
  if (png_image_finish_read(&header, nullptr, bytes.data(), 0, nullptr) == 0) {
    throw std::runtime_error(file + ": cannot read: " + header.message);
  }
  Image image(static_cast<int>(header.width), static_cast<int>(header.height));
  for (size_t i = 0; i < image.Pixels.size(); ++i) {
    image.Pixels[i] = static_cast<uint32_t>(bytes[i * 4]) << 16 |
                      static_cast<uint32_t>(bytes[i * 4 + 1]) << 8 | bytes[i * 4 + 2];
  }
  return image;
}

}  // namespace orvane::paint
