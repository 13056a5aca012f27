// Which piece is heard where.
#pragma once

#include <string_view>

namespace orvane {

// The channel of the field's piece in a round or, in no round of the three, in the last stage; null
// where no music plays.
const char* FieldMusic(int round, bool last_stage);

// The channel of a fight's piece: against a round's dragon, the last one, or any other enemy.
const char* FightMusic(bool dragon, bool last_dragon);

// The piece of the fight that most likely interrupts a field's piece, so that it can be made ready;
// null for what is no piece of the field.
const char* FightMusicAfter(std::string_view field_music);

}  // namespace orvane
