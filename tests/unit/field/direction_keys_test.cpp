#include "src/field/direction_keys.h"

#include <gtest/gtest.h>

#include "src/core/shared_state.h"
#include "src/field/tiles.h"

namespace orvane {
namespace {

// The driving directions as letters, then the waiting ones in small letters, then LastKey.
std::string Keys(const SharedState& state) {
  std::string keys;
  if (state.KeyUp == kTrue) keys += 'U';
  if (state.KeyDown == kTrue) keys += 'D';
  if (state.KeyLeft == kTrue) keys += 'L';
  if (state.KeyRight == kTrue) keys += 'R';
  if (state.KeyUpWaiting == kTrue) keys += 'u';
  if (state.KeyDownWaiting == kTrue) keys += 'd';
  if (state.KeyLeftWaiting == kTrue) keys += 'l';
  if (state.KeyRightWaiting == kTrue) keys += 'r';
  return keys + std::to_string(state.LastKey);
}

// Plays presses (capitals) and releases (small letters) and returns the state after the last.
std::string After(const char* events, SharedState& state) {
  for (const char* event = events; *event != 0; ++event) {
    switch (*event) {
      case 'U':
        DirectionDown(state, Direction::Up);
        break;
      case 'D':
        DirectionDown(state, Direction::Down);
        break;
      case 'L':
        DirectionDown(state, Direction::Left);
        break;
      case 'R':
        DirectionDown(state, Direction::Right);
        break;
      case 'u':
        DirectionUp(state, Direction::Up);
        break;
      case 'd':
        DirectionUp(state, Direction::Down);
        break;
      case 'l':
        DirectionUp(state, Direction::Left);
        break;
      case 'r':
        DirectionUp(state, Direction::Right);
        break;
    }
  }
  return Keys(state);
}

std::string After(const char* events) {
  SharedState state;
  return After(events, state);
}

TEST(DirectionKeys, TheNewestKeyDrives) {
  EXPECT_EQ(After("U"), "U0");
  EXPECT_EQ(After("UR"), "Ru1");
  EXPECT_EQ(After("URD"), "Dur4");
}

TEST(DirectionKeys, ReleasingItReturnsToTheLastDisplaced) {
  EXPECT_EQ(After("URr"), "U1");
  EXPECT_EQ(After("URDd"), "Ru1");
  EXPECT_EQ(After("URDdr"), "U1");
  EXPECT_EQ(After("URDdru"), "0");
}

TEST(DirectionKeys, ReleasingAWaitingKeyForgetsIt) {
  EXPECT_EQ(After("URu"), "R0");
  EXPECT_EQ(After("URDr"), "Du1") << "the first other that waits";
  EXPECT_EQ(After("URDu"), "Dr4");
}

TEST(DirectionKeys, ARepeatedPressChangesNothing) {
  EXPECT_EQ(After("UU"), "U0");
  EXPECT_EQ(After("URR"), "Ru1");
}

TEST(DirectionKeys, APressClearsItsOwnWaitingFlag) {
  SharedState state;
  state.KeyUpWaiting = kTrue;
  EXPECT_EQ(After("U", state), "U0");
}

TEST(DirectionKeys, ThreeKeysDisplaceOneAnotherInTheirOrder) {
  EXPECT_EQ(After("DLR"), "Rdl3");
  EXPECT_EQ(After("RLD"), "Dlr3");
  EXPECT_EQ(After("LUR"), "Rul1");
  EXPECT_EQ(After("RUL"), "Lur1");
}

TEST(DirectionKeys, OfFourKeysTheLastDisplacedComesBackAndThenTheOthersFromUpToRight) {
  EXPECT_EQ(After("UDLR"), "Rudl3");
  EXPECT_EQ(After("UDLRr"), "Lud1");
  EXPECT_EQ(After("UDLRrl"), "Ud2");
  EXPECT_EQ(After("UDLRrlu"), "D2") << "none waits: the number stays";
  EXPECT_EQ(After("UDLRrlud"), "0");
  EXPECT_EQ(After("DLRU"), "Udlr4");
  EXPECT_EQ(After("DLRUu"), "Rdl2");
  EXPECT_EQ(After("DLRUur"), "Dl3");
  EXPECT_EQ(After("DLRUurd"), "L3");
  EXPECT_EQ(After("DLRUurdl"), "0");
  EXPECT_EQ(After("RLUD"), "Dulr1");
  EXPECT_EQ(After("RLUDd"), "Ulr3");
  EXPECT_EQ(After("RLUDdu"), "Lr4");
  EXPECT_EQ(After("RLUDdul"), "R4");
  EXPECT_EQ(After("RUDL"), "Ludr2");
  EXPECT_EQ(After("RUDLl"), "Dur1");
  EXPECT_EQ(After("RUDLld"), "Ur4");
}

TEST(DirectionKeys, ReleasingTheLastDisplacedOfFourPassesItsPlaceOn) {
  EXPECT_EQ(After("UDLRl"), "Rud1");
  EXPECT_EQ(After("UDLRlu"), "Rd2");
  EXPECT_EQ(After("UDLRlud"), "R0");
  EXPECT_EQ(After("DLRUr"), "Udl2");
  EXPECT_EQ(After("DLRUrd"), "Ul3");
  EXPECT_EQ(After("ULRDr"), "Dul1");
  EXPECT_EQ(After("ULRDru"), "Dl3");
  EXPECT_EQ(After("RLDUd"), "Ulr3");
  EXPECT_EQ(After("RLDUdl"), "Ur4");
}

TEST(DirectionKeys, ReleasingAnotherOfFourLeavesTheLastDisplaced) {
  EXPECT_EQ(After("UDLRu"), "Rdl3");
  EXPECT_EQ(After("UDLRd"), "Rul3");
  EXPECT_EQ(After("UDLRud"), "Rl3");
  EXPECT_EQ(After("UDLRudr"), "L3");
  EXPECT_EQ(After("LDRUl"), "Udr4");
  EXPECT_EQ(After("LDRUld"), "Ur4");
  EXPECT_EQ(After("LDRUldu"), "R4");
}

TEST(DirectionKeys, AKeyPressedAgainIsTheNewest) {
  EXPECT_EQ(After("UDLRrR"), "Rudl3");
  EXPECT_EQ(After("UDLRuU"), "Udlr4");
  EXPECT_EQ(After("URDrR"), "Rud2");
  EXPECT_EQ(After("UDLRlLl"), "Rud1");
}

TEST(DirectionKeys, AStoppedHeroWaitsForTheNextPress) {
  SharedState state;
  After("UR", state);
  state.KeyRight = kFalse;  // as opening a menu does, and LastKey with it
  state.LastKey = 0;
  EXPECT_EQ(After("r", state), "u0");
  EXPECT_EQ(After("u", state), "0");
}

TEST(DirectionKeys, AKeyThatWaitsSinceTheHeroStoppedComesBackAfterANewOne) {
  SharedState state;
  After("ULR", state);
  state.KeyRight = kFalse;
  state.LastKey = 0;
  EXPECT_EQ(After("D", state), "Dul0") << "no key drove that it could displace";
  EXPECT_EQ(After("d", state), "ul0") << "and so none comes back";
  EXPECT_EQ(After("UD", state), "Dul1");
  EXPECT_EQ(After("d", state), "Ul3");
}

TEST(DirectionKeys, TheSpriteFollows) {
  SharedState state;
  After("U", state);
  EXPECT_EQ(int{state.HeroSpriteY}, 0);
  After("R", state);
  EXPECT_EQ(int{state.HeroSpriteY}, 32);
  After("D", state);
  EXPECT_EQ(int{state.HeroSpriteY}, 64);
  After("L", state);
  EXPECT_EQ(int{state.HeroSpriteY}, 96);
  After("l", state);
  EXPECT_EQ(int{state.HeroSpriteY}, 64);
  After("dr", state);
  EXPECT_EQ(int{state.HeroSpriteY}, 0);
}

TEST(DirectionKeys, OneDirectionDrives) {
  for (const auto& [press, direction] :
       {std::pair{"U", Direction::Up}, std::pair{"D", Direction::Down},
        std::pair{"L", Direction::Left}, std::pair{"R", Direction::Right}}) {
    SharedState state;
    EXPECT_EQ(DrivingDirection(state), std::nullopt);
    After(press, state);
    EXPECT_EQ(DrivingDirection(state), direction) << press;
  }
}

TEST(Walkable, CountsTheCodesAtTheEdgesOfTheRanges) {
  for (const int code :
       {7,   14,  19,  21,  25,  33,  35,  36,  43,  44,  47,  52,  54,  62,  64,  81,  94,  111,
        113, 116, 124, 141, 146, 160, 162, 170, 175, 180, 190, 192, 206, 210, 220, 222, 234, 240}) {
    EXPECT_TRUE(IsWalkable(code)) << code;
  }
  for (const int code : {0,   1,   6,   15,  18,  22,  24,  34,  37,  42,  45,  46,  48,  51,
                         55,  61,  63,  82,  93,  112, 114, 115, 117, 123, 142, 145, 147, 159,
                         163, 169, 171, 174, 181, 189, 193, 205, 211, 219, 223, 233, 241, -1}) {
    EXPECT_FALSE(IsWalkable(code)) << code;
  }
  int walkable = 0;
  for (int code = 0; code <= 300; ++code) walkable += IsWalkable(code) ? 1 : 0;
  EXPECT_EQ(walkable, 114);
}

TEST(DirectionKeys, AKeyThatWasStoppedDoesNotComeBackAfterItself) {
  SharedState state;
  After("UR", state);
  state.KeyRight = kFalse;  // as the warning of a full bag does; LastKey stays
  EXPECT_EQ(After("U", state), "U1");
  EXPECT_EQ(After("u", state), "0") << "it was the one displaced last, and does not drive again";
}

TEST(DirectionKeys, ALastKeyThatIsNoneIsNotFollowed) {
  for (const int last : {-1, 5}) {
    SharedState state;
    After("U", state);
    state.LastKey = last;
    EXPECT_EQ(After("u", state), "0");
  }
}

}  // namespace
}  // namespace orvane
