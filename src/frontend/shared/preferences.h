// What the player has chosen of the front end itself; nothing of it is in the saves. Each front end
// keeps it where its system has such things.
#pragma once

#include <string>

namespace orvane {

// The code of the language that has been chosen, or nothing.
std::string PreferredLanguage();
// Keeps it. Where that fails the choice holds for now only.
void PreferLanguage(const std::string& code);

}  // namespace orvane
