#include "src/frontend/shared/texts/language_choice.h"

#include "src/base/text.h"

namespace orvane {

std::string BestLanguage(const Translator& texts, const std::vector<std::string>& wishes) {
  for (const std::string& wish : wishes) {
    std::string code = LowerCase(wish.substr(0, wish.find_first_of("-_.")));
    if (texts.Has(code)) return code;
  }
  return kOwnLanguage;
}

std::string LanguageProblem(const Translator& texts, const std::string& asked) {
  if (asked.empty() || texts.Has(asked)) return {};
  std::string codes;
  for (const std::string& code : texts.Languages()) codes += (codes.empty() ? "" : ", ") + code;
  return "--language needs one of: " + codes;
}

}  // namespace orvane
