#include "tools/texts/literals.h"

#include <algorithm>

#include "src/base/text.h"

namespace orvane::texts {
namespace {

// The character that an escape stands for; only those that the sources have.
char Unescaped(char sign) {
  return sign == 'n' ? '\n' : sign;
}

class Scanner {
 public:
  explicit Scanner(std::string_view source) : rest_(source) {}

  std::vector<std::string> Scan() {
    while (!rest_.empty()) {
      if (Skip("//", "\n") || Skip("/*", "*/")) continue;
      const char sign = rest_.front();
      if (sign == '"' || sign == '\'' || sign == '`') {
        TakeLiteral(sign);
        continue;
      }
      if (sign != ' ' && sign != '\n') Finish();
      rest_.remove_prefix(1);
    }
    Finish();
    return std::move(found_);
  }

 private:
  bool Skip(std::string_view begin, std::string_view end) {
    if (!rest_.starts_with(begin)) return false;
    const size_t at = rest_.find(end, begin.size());
    rest_.remove_prefix(
        std::min(rest_.size(), at == std::string_view::npos ? at : at + end.size()));
    return true;
  }

  void TakeLiteral(char quote) {
    for (rest_.remove_prefix(1); !rest_.empty() && rest_.front() != quote; rest_.remove_prefix(1)) {
      if (rest_.front() == '\\' && rest_.size() > 1) {
        rest_.remove_prefix(1);
        literal_ += Unescaped(rest_.front());
      } else if (quote == '`' && rest_.starts_with("${")) {
        Finish();
        rest_.remove_prefix(std::min(rest_.size() - 1, rest_.find('}')));
      } else {
        literal_ += rest_.front();
      }
    }
    rest_.remove_prefix(std::min<size_t>(rest_.size(), 1));
    if (quote != '"') Finish();
  }

  void Finish() {
    if (IsJapanese(literal_)) found_.push_back(literal_);
    literal_.clear();
  }

  std::string_view rest_;
  std::string literal_;
  std::vector<std::string> found_;
};

}  // namespace

bool IsJapanese(std::string_view text) {
  const auto characters = Characters(text);
  return std::any_of(characters.begin(), characters.end(), [](std::string_view each) {
    // U+3000 to U+9FFF, and U+FF00 to U+FFEF; their bytes are in the order of their numbers.
    return (each >= "\u3000" && each < "\uA000") || (each >= "\uFF00" && each < "\uFFF0");
  });
}

std::vector<std::string> Literals(std::string_view source) {
  return Scanner(source).Scan();
}

std::vector<std::string> PageTexts(std::string_view page) {
  std::vector<std::string> texts;
  while (!page.empty()) {
    const size_t end = std::min(page.find_first_of("\"<>\n"), page.size());
    if (IsJapanese(page.substr(0, end))) texts.emplace_back(page.substr(0, end));
    page.remove_prefix(std::min(page.size(), end + 1));
  }
  return texts;
}

}  // namespace orvane::texts
