// The items that work in a battle. There they give what stands here, whatever the item file says;
// the content's own table is held to agree.
#pragma once

namespace orvane {

struct BattleItem {
  int Number;
  int HP;
  int MP;
};

// Items of lower numbers are refused at once. Those above the last are taken and do nothing.
constexpr int kFirstBattleItem = 47;
constexpr int kLastBattleItem = 49;

constexpr BattleItem kBattleItems[] = {
    {kFirstBattleItem, 200, 20}, {48, 500, 50}, {kLastBattleItem, 9999, 999}};

}  // namespace orvane
