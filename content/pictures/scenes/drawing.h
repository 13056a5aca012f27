// Vector drawing with paths written as text, for faces, letters, icons and silhouettes.
#pragma once

#include <cairo.h>

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "content/pictures/scenes/canvas.h"

namespace orvane::paint::scene {

// One colour stop of a gradient: its place, 0 to 1, and its colour 0xRRGGBB.
struct Stop {
  double At;
  uint32_t Colour;
};

// What fills a shape: one colour, or stops along the line from (x0, y0) to (x1, y1).
struct Fill {
  Fill(uint32_t colour) : Stops{{0, colour}} {}  // NOLINT(google-explicit-constructor)
  Fill(double from_x, double from_y, double to_x, double to_y, std::vector<Stop> colours)
      : X0(from_x), Y0(from_y), X1(to_x), Y1(to_y), Stops(std::move(colours)) {}

  double X0 = 0;
  double Y0 = 0;
  double X1 = 0;
  double Y1 = 0;
  std::vector<Stop> Stops;
};

// The cover of every pixel, 0 to 1.
struct Cover {
  Cover(int wide, int high)
      : Width(wide), Height(high), Values(static_cast<size_t>(wide) * static_cast<size_t>(high)) {}
  float& At(int x, int y) {
    return Values[static_cast<size_t>(y) * static_cast<size_t>(Width) + static_cast<size_t>(x)];
  }
  float At(int x, int y) const {
    return Values[static_cast<size_t>(y) * static_cast<size_t>(Width) + static_cast<size_t>(x)];
  }

  int Width;
  int Height;
  std::vector<float> Values;
};

// A transparent sheet to draw on in units that are pixels of the result; inside it is kept `fine`
// times larger. A path is text of the commands M L H V Q C Z with absolute numbers, as in vector
// files; anything else in it throws std::invalid_argument.
class Drawing {
 public:
  Drawing(int width, int height, int fine = 8);

  void Shape(std::string_view path, const Fill& fill, double opacity = 1);
  void Line(std::string_view path, uint32_t colour, double width, double opacity = 1);
  // A shape with a border of the given width around it, half of it inside.
  void Outlined(std::string_view path, const Fill& fill, uint32_t border, double width);
  void Ellipse(double x, double y, double across, double down, const Fill& fill,
               double opacity = 1);

  // Shapes drawn from now on show only inside the path, until Unclip.
  void Clip(std::string_view path);
  void Unclip();
  // Everything drawn from now on is moved, turned (radians) and scaled about its own origin.
  void Place(double x, double y, double scale_x, double scale_y, double turn = 0);
  void Replace();

  // Fill or stroke the path that the caller has laid in the context, and use it up.
  void FillTraced(const Fill& fill);
  void StrokeTraced(uint32_t colour, double width);

  // For what the calls above do not offer; the units are the drawing's.
  cairo_t* Context() { return context_.get(); }

  // Lays the drawing over the canvas with its upper left corner at (left, top).
  void LayOn(Canvas& canvas, int left = 0, int top = 0) const;
  // How much of each pixel is drawn on.
  Cover Coverage() const;

 private:
  struct Free {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_t* context) const { cairo_destroy(context); }
  };
  struct Mean {
    Colour colour;
    float Cover;
  };

  void Use(const Fill& fill, double opacity);
  Mean PixelMean(int x, int y) const;

  int width_;
  int height_;
  int fine_;
  std::unique_ptr<cairo_surface_t, Free> surface_;
  std::unique_ptr<cairo_t, Free> context_;
};

}  // namespace orvane::paint::scene
