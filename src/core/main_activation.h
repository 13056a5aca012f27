// What Main becomes each time it is in front again, and the ways to stop and to go on.
#pragma once

namespace orvane {

struct Game;

// Decides from the state what Main now is - title, field or story - and starts the timer of that
// mode.
void ActivateMain(Game& game);

// Sets the four labels of the status panel.
void ShowStatus(Game& game);

// Takes the party off its way, as opening a menu does; what is held down waits for the next press.
void StopWalking(Game& game);

// Clears the direction that drives the hero.
void ClearDirections(Game& game);

}  // namespace orvane
