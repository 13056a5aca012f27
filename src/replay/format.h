// How a replay is laid out.
//
// A line of text tells what it is, the next one which version of the game made it; then come steps.
// A step is a byte that says what, with what belongs to it, then notes: what the program was given
// by its services on the way, as far as that cannot be foreseen. Names are written out where they
// come first and are numbers from then on. The notes before the first event are those of the start.
//
//   1tttcccc  ticks: of the timer t of those that were named, c + 1 of them in a row
//   01dddddd  note: the generator is seeded as before but d ms later, and drawn from once
//   00xxxxxx  one of Mark
#pragma once

#include <string_view>

#include "src/game/play_event.h"

namespace orvane {

constexpr std::string_view kReplayHead = "orvane replay 1\n";

constexpr unsigned kTicks = 0x80;
constexpr unsigned kTimerShift = 4;
constexpr unsigned kMostTimers = 8;
constexpr unsigned kMostTicks = 16;

constexpr unsigned kNextSeed = 0x40;
constexpr unsigned kMostDelay = 63;

// What a byte below kNextSeed stands for.
enum class Mark : unsigned {
  // Events, as PlayEvent has them.
  Timer,    // names the next timer
  KeyDown,  // a direction
  KeyUp,
  Click,  // a screen's name, a control's name
  ClickItem,
  ClickAt,    // the same, x and y
  Choose,     // the same, a row
  SelectTab,  // the same, a tab
  EnterText,  // the same, a text
  Slide,      // the same, a value
  Press,      // a screen's name
  Close,
  Confirm,
  GoBack,
  Activate,
  Answer,  // a button
  EndHold,
  End,   // an exit status
  Kept,  // a replacement is over: which of those that wait, and what failed

  // Notes.
  Draws,      // so many draws come from the generator before the next note of chance
  Seed,       // the words of a seed, and how often the generator was drawn from since
  Draw,       // a draw that comes from elsewhere
  Reply,      // which command of this event, from 0, and the reply: another than the last time
  NoFile,     // a file that is read is missing
  File,       // its length and sum
  FileBytes,  // its bytes
  Names,      // a pattern and the files that match
  KeptNow,    // a replacement is over within the call; what failed

  // Neither.
  StateSum,  // the low 32 bits of the sum of the state, after the event before
  WholeSum,  // the last: the sum of all
  Contents,  // the bytes of a file that was read, for where the game folder has another one
};

// What belongs to an event, behind the names of its screen and control.
enum class Payload { None, Number, Point, Text };

constexpr Payload PayloadOf(PlayEvent::Kind kind) {
  switch (kind) {
    case PlayEvent::Kind::KeyDown:
    case PlayEvent::Kind::KeyUp:
    case PlayEvent::Kind::Choose:
    case PlayEvent::Kind::SelectTab:
    case PlayEvent::Kind::Slide:
    case PlayEvent::Kind::Answer:
    case PlayEvent::Kind::End:
      return Payload::Number;
    case PlayEvent::Kind::ClickAt:
      return Payload::Point;
    case PlayEvent::Kind::EnterText:
      return Payload::Text;
    default:
      return Payload::None;
  }
}

// Names of screens and controls, and texts of replies, are numbered as they come.

}  // namespace orvane
