// What the player has chosen of the front end itself; nothing of it is in the saves.
#pragma once

#include <string>

namespace orvane {

// The code of the language that has been chosen, or nothing.
std::string PreferredLanguage();
// Keeps it, in the local application data. Where that fails the choice holds for now only.
void PreferLanguage(const std::string& code);

}  // namespace orvane
