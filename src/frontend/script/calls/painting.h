// Sheets and surfaces as a script changes and saves them.
#pragma once

#include <string>

#include "src/frontend/script/names/names.h"
#include "src/ui/surface.h"

namespace orvane {

// Fills a rectangle of a picture, which must lie inside it. A control keeps the change when its
// screen is loaded afresh.
void Paint(const NamedPicture& picture, const Rect& area, Colour colour);

// Writes the backing store as a PNG file; throws ScriptError when it cannot be written.
void SavePng(const Surface& surface, const std::string& file);

}  // namespace orvane
