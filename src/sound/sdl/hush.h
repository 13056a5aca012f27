// Keeps the libraries beneath SDL from talking.
#pragma once

namespace orvane {

// A machine without a sound card is no reason to write to the player's terminal.
void HushSound();

}  // namespace orvane
