// Whether a file that a player brings along is a save of this game.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// Why these bytes cannot be taken for a save, as a sentence for the player; nothing if they can.
std::string SaveProblem(std::string_view bytes);

// What a save is of, for a list of slots: its round, and both heroes with their levels. Nothing for
// what is no save.
std::string SaveSummary(std::string_view bytes);

}  // namespace orvane
