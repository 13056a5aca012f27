#include "tools/texts/template.h"

#include <algorithm>
#include <cctype>

#include "src/base/text.h"

namespace orvane::texts {
namespace {

constexpr size_t kMostRemarks = 3;

bool HasLetters(const std::string& text) {
  constexpr std::string_view marks[] = {"×", "★", "↓"};
  const auto characters = Characters(text);
  return std::any_of(characters.begin(), characters.end(), [&marks](std::string_view each) {
    if (each.size() == 1) return std::isalpha(static_cast<unsigned char>(each[0])) != 0;
    return std::find(std::begin(marks), std::end(marks), each) == std::end(marks);
  });
}

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char sign : text) {
    if (sign == '"' || sign == '\\') quoted += '\\';
    if (sign == '\n') {
      quoted += "\\n";
    } else {
      quoted += sign;
    }
  }
  return quoted + '"';
}

}  // namespace

void Template::Add(const std::string& text, const std::string& remark) {
  const std::string bare = Trim(text);
  if (!HasLetters(bare)) return;
  auto& remarks = remarks_[bare];
  if (remarks.empty()) order_.push_back(bare);
  if (remarks.size() < kMostRemarks &&
      std::find(remarks.begin(), remarks.end(), remark) == remarks.end()) {
    remarks.push_back(remark);
  }
}

bool Template::Has(const std::string& text) const {
  return remarks_.contains(Trim(text));
}

std::string Template::Written() const {
  std::string written =
      "msgid \"\"\nmsgstr \"\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
      "\"Content-Transfer-Encoding: 8bit\\n\"\n";
  for (const std::string& text : order_) {
    written += '\n';
    for (const std::string& remark : remarks_.at(text)) written += "#. " + remark + '\n';
    written += "msgid " + Quoted(text) + "\nmsgstr \"\"\n";
  }
  return written;
}

}  // namespace orvane::texts
