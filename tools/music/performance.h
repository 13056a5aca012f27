// Plays a sheet: gives it the timing, touch and breath of players and makes it a MIDI file.
#pragma once

#include "tools/music/midi_file.h"
#include "tools/music/sheet.h"

namespace orvane::music {

// Track 0 holds tempo, meter, key and a marker for each section; then a track for each part. The
// freedom of the players is computed and not drawn: the same sheet gives the same file.
MidiFile Perform(const Sheet& sheet);

}  // namespace orvane::music
