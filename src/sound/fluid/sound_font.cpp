#include "src/sound/fluid/sound_font.h"

#include <array>
#include <filesystem>
#include <string_view>

#include "src/platform/path_text.h"

namespace orvane {
namespace {

// Best first. The music is balanced with the first one; the others are any system's own choice.
constexpr std::array kFonts = {
    "FluidR3Mono_GM.sf3",    "TimGM6mb.sf2",   "FluidR3_GM.sf2",
    "MuseScore_General.sf3", "default-GM.sf3", "default-GM.sf2",
};

}  // namespace

std::string FindSoundFont() {
  return FindSoundFontIn(std::array<std::filesystem::path, 5>{
      "/usr/share/sounds/sf3",
      "/usr/share/sounds/sf2",
      "/usr/share/soundfonts",
      "/usr/local/share/soundfonts",
      "/usr/share/fluidr3mono-gm-soundfont",
  });
}

std::string FindSoundFontIn(std::span<const std::filesystem::path> folders) {
  for (const std::string_view font : kFonts) {
    for (const std::filesystem::path& folder : folders) {
      std::error_code error;
      const std::filesystem::path path = folder / PathOf(font);
      if (std::filesystem::is_regular_file(path, error)) return TextOf(path);
    }
  }
  return "";
}

}  // namespace orvane
