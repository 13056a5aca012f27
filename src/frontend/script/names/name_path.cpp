#include "src/frontend/script/names/name_path.h"

#include <cctype>
#include <charconv>

#include "src/frontend/script/names/value.h"
#include "src/frontend/script/run/script_error.h"

namespace orvane {
namespace {

class NameReader {
 public:
  explicit NameReader(std::string_view name) : name_(name) {}

  std::vector<NamePart> Read() {
    std::vector<NamePart> parts;
    do {
      parts.push_back(ReadPart());
    } while (Take('.'));
    if (at_ != name_.size()) Fail();
    return parts;
  }

 private:
  NamePart ReadPart() {
    const size_t start = at_;
    while (at_ < name_.size() && IsWordLetter(name_[at_])) ++at_;
    if (at_ == start) Fail();
    NamePart part{std::string(name_.substr(start, at_ - start)), {}};
    while (at_ < name_.size() && (name_[at_] == '(' || name_[at_] == '[')) ReadIndexes(part);
    return part;
  }

  // What stands in one pair of brackets: an index, or several with commas between them.
  void ReadIndexes(NamePart& part) {
    const char closing = name_[at_++] == '(' ? ')' : ']';
    do {
      part.Indexes.push_back(ReadNumber());
    } while (Take(','));
    if (!Take(closing)) Fail();
  }

  int ReadNumber() {
    while (Take(' ')) continue;
    int number = 0;
    const char* end = name_.data() + name_.size();
    const auto [stop, failed] = std::from_chars(name_.data() + at_, end, number);
    if (failed != std::errc()) Fail();
    at_ = static_cast<size_t>(stop - name_.data());
    while (Take(' ')) continue;
    return number;
  }

  bool Take(char letter) {
    if (at_ >= name_.size() || name_[at_] != letter) return false;
    ++at_;
    return true;
  }

  static bool IsWordLetter(char letter) {
    return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_';
  }

  [[noreturn]] void Fail() const { throw ScriptError("a name", Quoted(name_)); }

  std::string_view name_;
  size_t at_ = 0;
};

}  // namespace

std::vector<NamePart> SplitName(std::string_view name) {
  return NameReader(name).Read();
}

std::string WithParentheses(const NamePart& part) {
  std::string text = part.Word;
  for (const int index : part.Indexes) text.append("(").append(std::to_string(index)).append(")");
  return text;
}

}  // namespace orvane
