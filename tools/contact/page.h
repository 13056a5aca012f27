// A contact sheet: pictures with their names, set from left to right in rows.
#pragma once

#include <string>
#include <vector>

#include "src/ui/surface.h"

namespace orvane::contact {

// Reads a PNG; throws std::runtime_error when it cannot.
Surface ReadSheet(const std::string& file);

// Each pixel repeated `times` times in both directions; 1 or more.
Surface Enlarged(const Surface& picture, int times);

class Page {
 public:
  // Rows break at this width; a wider picture gets a row of its own.
  explicit Page(int width) : width_(width) {}

  // Appends a picture with its name above it.
  void Add(const std::string& name, const Surface& picture);
  // Appends a picture at 1x and at 3x, both in the same row where that is wide enough.
  void AddTwice(const std::string& name, const Surface& picture);

  // Sets everything on a plain grey that shows both white and black grounds, and writes a PNG;
  // throws std::runtime_error when it cannot be written.
  void Write(const std::string& file) const;

 private:
  void Break();  // begins a new row

  struct Item {
    std::string Name;
    Surface Picture;
    int X;
    int Y;
  };

  int width_;
  int x_ = 0;
  int y_ = 0;
  int row_height_ = 0;
  std::vector<Item> items_;
};

}  // namespace orvane::contact
