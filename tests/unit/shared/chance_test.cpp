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

TEST(PlayersChance, draws_from_zero_up_to_but_not_one) {
  PlayersChance chance(1);
  float sum = 0;
  for (const float draw : Draws(chance)) {
    ASSERT_GE(draw, 0.0F);
    ASSERT_LT(draw, 1.0F);
    sum += draw;
  }
  EXPECT_NEAR(sum / 1000, 0.5, 0.05);
}

TEST(PlayersChance, with_a_seed_repeats_itself_whatever_is_reseeded) {
  PlayersChance one(5);
  PlayersChance other(5);
  other.Reseed();
  EXPECT_EQ(Draws(one), Draws(other));
  PlayersChance third(6);
  PlayersChance first(5);
  EXPECT_NE(Draws(third), Draws(first));
}

TEST(PlayersChance, without_a_seed_is_new_each_time_even_within_a_tick_of_the_clock) {
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
