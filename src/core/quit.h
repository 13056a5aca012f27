// The ways out of the program.
#pragma once

namespace orvane {

struct Game;

// The menu's quit: asks, and ends the program on OK. On Cancel the field goes on, whatever stood
// before.
void AskToQuit(Game& game);

// Main's own close control: the same question; on Cancel the timers stay as they were.
void AskToCloseMain(Game& game);

// Closes the channels bgm1 to bgm<last_music> and snd1 to snd10, in that order.
void CloseAllSound(Game& game, int last_music);

}  // namespace orvane
