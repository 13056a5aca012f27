// A catalogue: the texts of another language for those of the game.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// A text of the game with what is shown for it.
struct CatalogueEntry {
  std::string_view Text;
  std::string_view Translation;
};

// A catalogue that the program carries.
struct CatalogueData {
  std::string_view Code;   // of the language, "en"
  std::string_view Bytes;  // as gettext's msgfmt makes them
};

// All catalogues of the program, in the order of their codes.
std::vector<CatalogueData> AllCatalogues();

// The entries of a catalogue as msgfmt makes it, without its header; the views are into `bytes`.
// Throws std::runtime_error for what is no such thing.
std::vector<CatalogueEntry> ReadCatalogue(std::string_view bytes);

// The game's own language: its code and its name, which is also the text under which a catalogue
// gives its own language's name.
constexpr const char* kOwnLanguage = "ja";
constexpr const char* kOwnLanguageName = "日本語";

}  // namespace orvane
