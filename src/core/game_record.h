// All that a save file holds: the state of a game in progress.
#pragma once

#include "src/base/array.h"
#include "src/base/integer.h"
#include "src/base/text.h"

namespace orvane {

using HeroNameField = FixedText<8>;
using ItemNameField = FixedText<20>;

constexpr int kChestCount = 15;
constexpr int kBookChestCount = 4;

// Arrays with a per-hero meaning are indexed 0 for the man, 1 for the woman; slot 2 is never used.
// Booleans are -1 and 0.
struct GameRecord {
  Int16 Round;  // 1 to 4
  Int16 SaveX;  // position at save time in pixels; a tile number in a fresh game
  Int16 SaveY;
  Int16 Reserved1;
  Array<Int16, kChestCount + 1> TreasureLeft;  // chest i is still closed in this round
  Int16 TreasureNo;                            // the chest being opened
  Array<Int16, kBookChestCount + 1> BookLeft;  // book chest i is still closed in this round
  Int16 BookNo;                                // the book chest being opened
  Int16 SaveMapA;                              // MapA and MapB at save time
  Int16 SaveMapB;
  Array<HeroNameField, 3> HeroName;
  Array<Int16, 3> Level;
  Array<Int16, 3> HP;
  Array<Int16, 3> MP;
  Array<Int16, 3> MaxHP;
  Array<Int16, 3> MaxMP;
  Array<Int16, 3> WeaponAttack;   // attack bonus of the worn weapon
  Array<Int16, 3> ArmourDefence;  // defence bonus of the worn armour
  Array<Int16, 3> BookSkill;      // number from 1 of the skill that the worn book trains, or 0
  Array<Int16, 3> Attack;         // base and weapon together
  Array<Int16, 3> Defence;        // base and armour together
  Array<Int16, 3> BaseAttack;
  Array<Int16, 3> BaseDefence;
  Array<Int16, 3> Spirit;
  Array<Int16, 11> WazaKnown;   // technique i has been learned; 10 is spare
  Array<Int16, 11> MagicKnown;  // spell i has been learned; 10 is spare
  Array<Int16, 11> WazaUse;     // proficiency of technique i
  Array<Int16, 11> MagicUse;    // proficiency of spell i
  Array<Int16, 11> Reserved2;
  Array<ItemNameField, 3> WeaponName;  // "なし" when nothing is worn
  Array<ItemNameField, 3> ArmourName;
  Array<ItemNameField, 3> BookName;
  Int16 ItemCount;         // kept by every routine that changes the bag
  Array<Int16, 21> Items;  // item numbers, 99 for an empty slot; slot 20 is spare
  Array<Int32, 3> Exp;
  Int16 StoryNo;                     // how far the story has run
  Array<HeroNameField, 3> SaveName;  // copies for the load screen
  Array<Int16, 3> SaveLevel;
  Int16 SaveRound;
};

constexpr int kNoItem = 99;
constexpr int kBagSize = 20;

}  // namespace orvane
