// Texts of which parts vary: "{enemy}({number})".
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// What may stand in a place, by the place's name without the digits at its end.
enum class PlaceKind {
  Number,  // {number}: digits, perhaps behind a minus
  Name,    // {hero}, {file}: what is never translated
  Text,    // any other: a text of the game, or one that it does not know
};

class TextPattern {
 public:
  // A text with at least one place, with what is shown for it. Throws std::runtime_error where a
  // brace is not closed, places follow one another without a letter between them, or the
  // translation has places that the text has not.
  TextPattern(std::string_view text, std::string_view translation);

  // Whether a text has places, and so makes a pattern.
  static bool IsOne(std::string_view text);

  // What is shown for a text that follows the pattern; `translate` gives that of a part.
  std::optional<std::string> Apply(
      std::string_view text, const std::function<std::string(std::string_view)>& translate) const;

  // How many bytes of a text are the pattern's own: the more, the better it fits.
  size_t Weight() const;

 private:
  struct Piece {
    std::string Words;  // its own, or the name of a place
    bool IsPlace = false;
    PlaceKind Kind = PlaceKind::Text;
  };
  using Found = std::map<std::string, std::string>;

  static std::vector<Piece> PiecesOf(std::string_view text);
  bool Match(std::string_view text, size_t piece, Found& found) const;

  std::vector<Piece> text_;
  std::vector<Piece> translation_;
};

}  // namespace orvane
