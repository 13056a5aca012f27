// The languages to choose from, in the system's own menus.
#pragma once

#include <string>

#include "src/frontend/shared/texts/translator.h"
#include "src/frontend/windows/system/windows_api.h"

namespace orvane {

// Adds the languages to a window's system menu, behind a line, by their own names. The one that is
// shown is marked.
void AddLanguages(HMENU menu, const Translator& texts);

// Marks the one that is shown, in a menu that they have been added to.
void MarkLanguage(HMENU menu, const Translator& texts);

// The code of the language that a command of the system menu means; nothing for other commands.
std::string LanguageOf(WPARAM command, const Translator& texts);

// Offers the languages in a menu of their own at a point of the screen, in a loop of the system's,
// and returns the code of the one that the player chooses, or nothing.
std::string AskLanguage(HWND window, POINT at, const Translator& texts);

}  // namespace orvane
