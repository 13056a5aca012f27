// What is shown for the texts of the game, in the language that the player has chosen. The game
// itself knows only its own texts; whatever shows one asks here.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "src/frontend/shared/texts/catalogue.h"
#include "src/frontend/shared/texts/pattern.h"
#include "src/ui/box.h"
#include "src/ui/control.h"

namespace orvane {

class Translator {
 public:
  // Shows the texts of these catalogues, of which the bytes outlive it; at first the game's own.
  explicit Translator(const std::vector<CatalogueData>& catalogues = AllCatalogues());

  // The codes of the languages to choose from, the game's own first.
  const std::vector<std::string>& Languages() const { return languages_; }
  bool Has(std::string_view code) const;
  // What a language calls itself; its code where its catalogue does not say.
  std::string NameOf(std::string_view code) const;

  // The code of the language that is shown. Choosing one that is not there does nothing.
  const std::string& Language() const { return language_; }
  void Choose(std::string_view code);
  bool IsOwn() const { return language_ == kOwnLanguage; }

  // What is shown for a text of the game: the catalogue's, that of a pattern which the text
  // follows, or else the text as it is. Blanks around a text that has another do not count.
  std::string Of(std::string_view text) const;
  // The same for a text of a control: one that the player has given a hero stays as it is.
  std::string Of(const Control& control, std::string_view text) const;
  // A box with its texts as they are shown.
  Box Of(const Box& box) const;
  // The texts of the catalogue that the translation is made of: the one that gives it, and those
  // that give its parts; nothing where none does.
  std::vector<std::string> SourcesOf(std::string_view text) const;

 private:
  void Read(std::string_view bytes);
  std::string Find(std::string_view text) const;

  std::vector<CatalogueData> catalogues_;
  std::vector<std::string> languages_;
  std::string language_ = kOwnLanguage;
  std::unordered_map<std::string_view, std::string_view> texts_;
  struct Pattern {
    std::string_view Source;
    TextPattern Form;
  };
  std::vector<Pattern> patterns_;                               // the best fitting first
  mutable std::unordered_map<std::string, std::string> known_;  // what has been asked for
};

// Whether a control's texts are the names of the heroes, but for those of the game's own that stand
// among them.
bool HoldsNames(const Control& control);

}  // namespace orvane
