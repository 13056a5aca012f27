#include "src/frontend/shared/chance.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvane {
namespace {

std::vector<float> Draws(PlayersChance& chance) {
  std::vector<float> draws;
  for (int i = 0; i < 1000; ++i) draws.push_back(chance.Draw());
  return draws;
}

TEST(PlayersChance, DrawsFromZeroUpToButNotOne) {
  PlayersChance chance(1);
  float sum = 0;
  for (const float draw : Draws(chance)) {
    ASSERT_GE(draw, 0.0F);
    ASSERT_LT(draw, 1.0F);
    sum += draw;
  }
  EXPECT_NEAR(sum / 1000, 0.5, 0.05);
}

TEST(PlayersChance, WithASeedRepeatsItselfWhateverIsReseeded) {
  PlayersChance one(5);
  PlayersChance other(5);
  other.Reseed();
  EXPECT_EQ(Draws(one), Draws(other));
  PlayersChance third(6);
  PlayersChance first(5);
  EXPECT_NE(Draws(third), Draws(first));
}

TEST(PlayersChance, WithoutASeedIsNewEachTimeEvenWithinATickOfTheClock) {
  PlayersChance chance({});
  const auto before = Draws(chance);
  chance.Reseed();
  const auto after = Draws(chance);
  chance.Reseed();
  EXPECT_NE(before, after);
  EXPECT_NE(after, Draws(chance));
}

}  // namespace
}  // namespace orvane
