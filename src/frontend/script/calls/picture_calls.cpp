#include "src/frontend/script/calls/call.h"
#include "src/frontend/script/calls/calls.h"
#include "src/frontend/script/calls/painting.h"
#include "src/frontend/script/names/colour_text.h"
#include "src/frontend/script/run/script_error.h"
#include "src/frontend/script/run/session.h"

namespace orvane {
namespace {

constexpr const char* kCoordinate = "a whole number of pixels";

NamedPicture PictureOf(const Call& call) {
  return call.TheSession().TheNames().FindPicture(call.Text(1, "a picture's name"));
}

[[noreturn]] void FailOutside(const Surface& surface, const std::string& found) {
  throw ScriptError("pixels inside the " + std::to_string(surface.Width()) + " x " +
                        std::to_string(surface.Height()) + " of the picture",
                    found);
}

// The pixel that the arguments 2 and 3 name.
struct Spot {
  int X;
  int Y;
};

Spot SpotOf(const Call& call, const Surface& surface) {
  const Spot spot{call.Whole(2, kCoordinate), call.Whole(3, kCoordinate)};
  if (!surface.Contains(spot.X, spot.Y)) {
    FailOutside(surface, call.Shown(2) + ", " + call.Shown(3));
  }
  return spot;
}

// pixel(picture, x, y)
int Pixel(Call& call) {
  const Surface& surface = *PictureOf(call).Store;
  const Spot spot = SpotOf(call, surface);
  return call.Return(ColourText(surface.At(spot.X, spot.Y)));
}

// shown_pixel(picture, x, y)
int ShownPixel(Call& call) {
  const Surface& surface = *PictureOf(call).Store;
  const Spot spot = SpotOf(call, surface);
  return call.Return(ColourText(surface.ShownAt(spot.X, spot.Y)));
}

// The rectangle that the arguments 3 to 6 name; the whole picture without them.
Rect AreaOf(const Call& call, const Surface& surface) {
  if (call.Count() < 3) return {0, 0, surface.Width(), surface.Height()};
  const Rect area{call.Whole(3, kCoordinate), call.Whole(4, kCoordinate),
                  call.Whole(5, kCoordinate), call.Whole(6, kCoordinate)};
  const bool inside = area.X >= 0 && area.Y >= 0 && area.Width > 0 && area.Height > 0 &&
                      area.Width <= surface.Width() - area.X &&
                      area.Height <= surface.Height() - area.Y;
  if (!inside) {
    FailOutside(surface, call.Shown(5) + " x " + call.Shown(6) + " at " + call.Shown(3) + ", " +
                             call.Shown(4));
  }
  return area;
}

// paint(picture, colour [, x, y, width, height])
int PaintIt(Call& call) {
  const NamedPicture picture = PictureOf(call);
  const Colour colour = ParseColour(call.Text(2, "a colour, \"RRGGBB\""));
  Paint(picture, AreaOf(call, *picture.Store), colour);
  return 0;
}

// save_picture(picture, file)
int SavePicture(Call& call) {
  SavePng(*PictureOf(call).Store, std::string(call.Text(2, "a file's name")));
  return 0;
}

// picture_size(picture)
int PictureSize(Call& call) {
  const Surface& surface = *PictureOf(call).Store;
  return call.Return(surface.Width()) + call.Return(surface.Height());
}

}  // namespace

void RegisterPictureCalls(lua_State* lua) {
  Register<&Pixel>(lua, "pixel");
  Register<&ShownPixel>(lua, "shown_pixel");
  Register<&PaintIt>(lua, "paint");
  Register<&SavePicture>(lua, "save_picture");
  Register<&PictureSize>(lua, "picture_size");
}

}  // namespace orvane
