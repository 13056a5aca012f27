// The message that tells what was picked up: the field stands still until it is clicked away.
#pragma once

namespace orvane {

struct Game;

// Lets the message that Main's MessageLines hold appear with the next tick.
void StartMessage(Game& game);

// One tick of Main's MessageTimer, while a message waits for a click.
void MessageTick(Game& game);

// Takes a message away; the field goes on.
void CloseMessage(Game& game);

}  // namespace orvane
