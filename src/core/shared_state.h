// The state of the running program that no save file holds.
#pragma once

#include <string>

#include "src/base/array.h"
#include "src/base/integer.h"
#include "src/base/text.h"
#include "src/core/item_kind.h"
#include "src/core/map.h"

namespace orvane {

// A record of the item file, as it stands in the program's one buffer for it.
struct ItemRecord {
  FixedText<20> Name;
  Int32 Kind;
  Int32 Value;

  bool Is(ItemKind kind) const { return Kind == static_cast<int>(kind); }
};

// What the field, the story and the screens share. Booleans are -1 and 0.
struct SharedState {
  Int16 MapA;  // column and row of the map on screen in the world's grid
  Int16 MapB;
  MapTiles MapTile;  // the map on screen
  Int16 HeroX;       // the party's feet on the map, in pixels
  Int16 HeroY;
  Int16 HeroSpriteY;  // row of the hero sheet: 0 up, 32 right, 64 down, 96 left
  Int16 TileHere, TileUp, TileDown, TileLeft, TileRight;
  Int16 KeyUp, KeyDown, KeyLeft, KeyRight;  // the one direction that drives the hero
  Int16 KeyUpWaiting, KeyDownWaiting, KeyLeftWaiting, KeyRightWaiting;  // held, but displaced
  Int16 LastKey;      // newest displaced direction: 1 up, 2 down, 3 left, 4 right
  Int16 InBook;       // in a room behind a door
  Int16 BookReturnX;  // where the door leads back to
  Int16 BookReturnY;
  Int16 GameStarted;    // the title is over
  Int16 OpeningDone;    // the opening scene is over
  Int16 BossFight;      // a round's dragon is fought, or its closing scene plays
  Int16 LastBossFight;  // the last stage
  Int16 LastBossDown;
  Int16 RecoveryShown;  // the recovery message waits for a click
  Int16 OnRecovery;     // the recovery tile has fired and has not been left
  Int16 OnChest;        // the full-bag warning has come and the chest has not been left
  Int32 FieldFrame, MessageFrame, StoryFrame;  // tick counters of Main's three timers
  Int16 EncounterRoll;
  FixedText<256> MciStatus;  // the last reply to a sound status query
  Array<std::string, 47> StoryText;
  Array<std::string, 2> HeroNameText;
  ItemRecord ItemRec;
};

}  // namespace orvane
