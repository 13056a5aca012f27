#include "src/frontend/shared/texts/pattern.h"

#include <algorithm>
#include <stdexcept>

#include "src/base/text.h"

namespace orvane {
namespace {

bool IsDigit(char sign) {
  return sign >= '0' && sign <= '9';
}

PlaceKind KindOf(std::string_view name) {
  while (!name.empty() && IsDigit(name.back())) name.remove_suffix(1);
  if (name == "number") return PlaceKind::Number;
  return name == "hero" || name == "file" ? PlaceKind::Name : PlaceKind::Text;
}

bool IsNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  return !text.empty() && std::all_of(text.begin(), text.end(), IsDigit);
}

}  // namespace

bool TextPattern::IsOne(std::string_view text) {
  return text.find('{') != std::string_view::npos;
}

std::vector<TextPattern::Piece> TextPattern::PiecesOf(std::string_view text) {
  std::vector<Piece> pieces;
  while (!text.empty()) {
    if (text.front() != '{') {
      const size_t end = std::min(text.find('{'), text.size());
      pieces.push_back({std::string(text.substr(0, end))});
      text.remove_prefix(end);
      continue;
    }
    const size_t end = text.find('}');
    if (end == std::string_view::npos) throw std::runtime_error("a place that is not closed");
    const std::string_view name = text.substr(1, end - 1);
    pieces.push_back({std::string(name), true, KindOf(name)});
    text.remove_prefix(end + 1);
  }
  return pieces;
}

TextPattern::TextPattern(std::string_view text, std::string_view translation)
    : text_(PiecesOf(text)), translation_(PiecesOf(translation)) {
  for (size_t i = 1; i < text_.size(); ++i) {
    if (text_[i].IsPlace && text_[i - 1].IsPlace) throw std::runtime_error("places side by side");
  }
  for (const Piece& piece : translation_) {
    const bool is_known =
        !piece.IsPlace || std::any_of(text_.begin(), text_.end(), [&piece](const Piece& each) {
          return each.IsPlace && each.Words == piece.Words;
        });
    if (!is_known) throw std::runtime_error("no place " + piece.Words + " in the text");
  }
}

size_t TextPattern::Weight() const {
  size_t weight = 0;
  for (const Piece& piece : text_) weight += piece.IsPlace ? 0 : piece.Words.size();
  return weight;
}

bool TextPattern::Match(std::string_view text, size_t piece, Found& found) const {
  if (piece == text_.size()) return text.empty();
  const Piece& own = text_[piece];
  if (!own.IsPlace) {
    if (!text.starts_with(own.Words)) return false;
    text.remove_prefix(own.Words.size());
    return Match(text, piece + 1, found);
  }
  const bool is_last = piece + 1 == text_.size();
  // The shortest part that the rest follows.
  for (size_t length = 1; length <= text.size(); ++length) {
    if (is_last) length = text.size();
    const std::string_view part = text.substr(0, length);
    if (own.Kind == PlaceKind::Number && !IsNumber(part) && part != "-") return false;
    if (own.Kind == PlaceKind::Number && part == "-") continue;
    if (!Match(text.substr(length), piece + 1, found)) continue;
    found[own.Words] = Trim(part);  // the game pads names to a fixed width
    return true;
  }
  return false;
}

std::optional<std::string> TextPattern::Apply(
    std::string_view text, const std::function<std::string(std::string_view)>& translate) const {
  Found found;
  if (!Match(text, 0, found)) return std::nullopt;
  std::string shown;
  for (const Piece& piece : translation_) {
    if (!piece.IsPlace) {
      shown += piece.Words;
    } else if (piece.Kind == PlaceKind::Text) {
      shown += translate(found.at(piece.Words));
    } else {
      shown += found.at(piece.Words);
    }
  }
  return shown;
}

}  // namespace orvane
