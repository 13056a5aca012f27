#include "src/frontend/script/calls/painting.h"

#include <png.h>

#include <vector>

#include "src/frontend/script/names/value.h"
#include "src/frontend/script/run/script_error.h"

namespace orvane {
namespace {

void Fill(Surface& surface, const Rect& area, Colour colour) {
  FillBox(surface, area.X, area.Y, area.X + area.Width - 1, area.Y + area.Height - 1, colour);
}

// Changes the picture that the control was designed with, and nothing else of it.
void FillDesign(PictureBox& box, const Rect& area, Colour colour) {
  const CommonValues common = box;
  const PictureValues picture = box;
  box.RestoreDesign();
  Fill(box.Picture, area, colour);
  box.KeepDesign();
  static_cast<CommonValues&>(box) = common;
  static_cast<PictureValues&>(box) = picture;
}

}  // namespace

void Paint(const NamedPicture& picture, const Rect& area, Colour colour) {
  if (picture.Box != nullptr) FillDesign(*picture.Box, area, colour);
  Fill(*picture.Store, area, colour);
}

void SavePng(const Surface& surface, const std::string& file) {
  constexpr int channels = 3;  // red, green, blue
  std::vector<png_byte> samples;
  samples.reserve(static_cast<size_t>(surface.Width()) * static_cast<size_t>(surface.Height()) *
                  channels);
  for (int y = 0; y < surface.Height(); ++y) {
    for (int x = 0; x < surface.Width(); ++x) {
      const Colour colour = surface.Row(y)[x];
      for (const int shift : {16, 8, 0}) samples.push_back(static_cast<png_byte>(colour >> shift));
    }
  }
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(surface.Width());
  image.height = static_cast<png_uint_32>(surface.Height());
  image.format = PNG_FORMAT_RGB;
  if (png_image_write_to_file(&image, file.c_str(), 0, samples.data(), 0, nullptr) == 0) {
    throw ScriptError("a picture file that can be written", Quoted(file) + ": " + image.message);
  }
}

}  // namespace orvane
