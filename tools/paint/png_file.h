// Sheets as PNG files.
#pragma once

#include <string>

#include "tools/paint/recipe.h"

namespace orvane::paint {

// Writes the picture as an 8-bit RGB PNG; throws std::runtime_error when the file cannot be
// written.
void WritePng(const Image& image, const std::string& file);

// Reads any PNG as RGB (alpha is dropped); throws std::runtime_error when it cannot be read.
Image ReadPng(const std::string& file);

}  // namespace orvane::paint
