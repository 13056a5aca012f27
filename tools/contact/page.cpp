#include "tools/contact/page.h"

#include <algorithm>

#include "tools/contact/label.h"
#include "tools/paint/png_file.h"

namespace orvane::contact {
namespace {

constexpr int kGap = 8;
constexpr Colour kGround = 0x585460;

int WidthOf(const std::string& name, const Surface& picture) {
  return std::max(picture.Width(), LabelWidth(name));
}

}  // namespace

Surface ReadSheet(const std::string& file) {
  paint::Image image = paint::ReadPng(file);
  return {image.Width, image.Height, std::move(image.Pixels)};
}

Surface Enlarged(const Surface& picture, int times) {
  Surface result(picture.Width() * times, picture.Height() * times);
  StretchBlt(result, {0, 0, result.Width(), result.Height()}, picture,
             {0, 0, picture.Width(), picture.Height()}, Blit::Copy);
  return result;
}

void Page::Add(const std::string& name, const Surface& picture) {
  const int width = WidthOf(name, picture);
  if (x_ > 0 && x_ + kGap + width + kGap > width_) Break();
  items_.push_back({name, picture, x_ + kGap, y_ + kGap});
  x_ += kGap + width;
  row_height_ = std::max(row_height_, kGap + kLabelHeight + picture.Height());
}

void Page::AddTwice(const std::string& name, const Surface& picture) {
  const Surface large = Enlarged(picture, 3);
  const std::string large_name = name + " 3x";
  const int width = kGap + WidthOf(name, picture) + kGap + WidthOf(large_name, large);
  if (x_ > 0 && x_ + width + kGap > width_) Break();
  Add(name, picture);
  Add(large_name, large);
}

void Page::Break() {
  y_ += row_height_;
  x_ = 0;
  row_height_ = 0;
}

void Page::Write(const std::string& file) const {
  int width = width_;
  for (const Item& item : items_) width = std::max(width, item.X + item.Picture.Width() + kGap);
  Surface sheet(width, y_ + row_height_ + kGap, kGround);
  for (const Item& item : items_) {
    DrawLabel(sheet, item.X, item.Y, item.Name);
    BitBlt(sheet, item.X, item.Y + kLabelHeight, item.Picture.Width(), item.Picture.Height(),
           item.Picture, 0, 0, Blit::Copy);
  }
  paint::Image image(sheet.Width(), sheet.Height());
  for (int y = 0; y < sheet.Height(); ++y) {
    for (int x = 0; x < sheet.Width(); ++x) image.At(x, y) = sheet.Row(y)[x];
  }
  paint::WritePng(image, file);
}

}  // namespace orvane::contact
