// Which language is shown at first.
#pragma once

#include <string>
#include <vector>

#include "src/frontend/shared/texts/translator.h"

namespace orvane {

// Of wishes, the most urgent first, the code of the first language that there is, or of the game's
// own where there is none. What follows a language's code, as in "en-GB" and "en_GB.UTF-8", does
// not count; empty wishes are none.
std::string BestLanguage(const Translator& texts, const std::vector<std::string>& wishes);

// What is wrong with a language that the command line asks for; nothing when there is such a one.
std::string LanguageProblem(const Translator& texts, const std::string& asked);

}  // namespace orvane
