// The items that work in a battle. There they give what stands here, whatever the item file says;
// the content's own table is held to agree.
#pragma once

namespace orvane {

struct BattleItem {
  int Number;
  int HP;
  int MP;
};

constexpr BattleItem kBattleItems[] = {{47, 200, 20}, {48, 500, 50}, {49, 9999, 999}};

// Items of lower numbers are refused at once. Those above the last are taken and do nothing.
constexpr int kFirstBattleItem = kBattleItems[0].Number;

}  // namespace orvane
