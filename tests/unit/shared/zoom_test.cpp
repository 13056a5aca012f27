#include "src/frontend/shared/zoom.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

const std::vector<Extent> kWindows = {{496, 303}, {454, 396}, {403, 444}};

ScreenFacts Screen(double width, double height) {
  return {{width, height}, {width, height}, 1, 1};
}

Span Dialog(double width, double height) {
  return {{width, height}, kTitleHeight};
}

TEST(ChooseScale, takes_the_largest_whole_factor_that_leaves_a_tenth_free) {
  EXPECT_EQ(ChooseScale({1280, 1024}, kWindows), 2);
  EXPECT_EQ(ChooseScale({1920, 1080}, kWindows), 2);
  EXPECT_EQ(ChooseScale({2560, 1440}, kWindows), 3);
}

TEST(ChooseScale, counts_title_bar_and_menu) {
  const std::vector<Extent> windows = {{100, 100}, {100, 200}};
  EXPECT_EQ(ChooseScale({1000, 430}, windows), 2);
  EXPECT_EQ(ChooseScale({1000, 429}, windows), 1);
}

TEST(ChooseScale, stays_within_its_range) {
  EXPECT_EQ(ChooseScale({320, 200}, kWindows), 1);
  EXPECT_EQ(ChooseScale({20000, 20000}, kWindows), kLargestScale);
  EXPECT_EQ(ChooseScale({1920, 1080}, {}), 1);
}

TEST(ChooseStartScale, is_the_best_whole_one_where_that_is_large_enough) {
  for (const Extent& screen : {Extent{1280, 1024}, {1680, 1050}, {1920, 1080}, {2560, 1440}}) {
    EXPECT_EQ(ChooseStartScale(screen, kWindows), ChooseScale(screen, kWindows)) << screen.Width;
  }
}

TEST(ChooseStartScale, is_a_half_step_above_on_screens_that_leave_much_bare) {
  EXPECT_EQ(ChooseStartScale({1366, 768}, kWindows), 1.5);
  EXPECT_EQ(ChooseStartScale({1366, 728}, kWindows), 1.5) << "less a panel";
  EXPECT_EQ(ChooseStartScale({1600, 900}, kWindows), 1.5);
  EXPECT_EQ(ChooseStartScale({1920, 1200}, kWindows), 2.5);
}

TEST(ChooseStartScale, is_never_more_than_fits) {
  EXPECT_EQ(ChooseStartScale({1366, 690}, kWindows), 1) << "a dialog of 444 lines";
  EXPECT_EQ(ChooseStartScale({320, 200}, kWindows), 1);
  EXPECT_EQ(ChooseStartScale({1366, 768}, {}), 1);
}

TEST(FittingScale, is_that_of_the_window_that_fits_least) {
  EXPECT_DOUBLE_EQ(FittingScale({1000, 1000}, {{{500, 100}, 0}, {{100, 400}, 0}}), 2);
  EXPECT_DOUBLE_EQ(FittingScale({1000, 1000}, {{{500, 500}, 0}, {{100, 400}, 0}}), 2);
  EXPECT_DOUBLE_EQ(FittingScale({1000, 1000}, {{{500, 800}, 0}}), 1.25);
}

TEST(FittingScale, leaves_the_title_bar_its_height) {
  EXPECT_DOUBLE_EQ(FittingScale({1000, 1000 + kTitleHeight}, {Dialog(100, 400)}), 2.5);
}

TEST(FittingScale, never_shrinks_a_window) {
  EXPECT_DOUBLE_EQ(FittingScale({100, 100}, {Dialog(200, 200)}), 1);
}

TEST(Zoom, starts_with_the_best_scale_or_the_one_given) {
  EXPECT_DOUBLE_EQ(Zoom(Screen(1920, 1080), {}, kWindows).ScaleFor({}), 2);
  EXPECT_DOUBLE_EQ(Zoom(Screen(1366, 768), {}, kWindows).ScaleFor({}), 1.5);
  EXPECT_DOUBLE_EQ(Zoom(Screen(1920, 1080), 1.25, kWindows).ScaleFor({}), 1.25);
}

TEST(Zoom, goes_in_halves_and_back_to_the_best) {
  Zoom zoom(Screen(1920, 1080), 1.25, kWindows);
  zoom.Enlarge();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({}), 1.5);
  zoom.Enlarge();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({}), 2);
  zoom.Reduce();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({}), 1.5);
  zoom.Reset();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({}), 2);
}

TEST(Zoom, stops_where_the_first_window_would_not_fit_and_at_its_drawn_size) {
  Zoom zoom(Screen(1920, 1080), {}, kWindows);
  for (int i = 0; i < 10; ++i) zoom.Enlarge();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({}), 3);
  for (int i = 0; i < 10; ++i) zoom.Reduce();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({}), 1);
}

TEST(Zoom, gives_way_to_a_window_that_is_too_high_for_it) {
  Zoom zoom(Screen(1920, 1080), {}, kWindows);
  zoom.Enlarge();
  zoom.Enlarge();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({Dialog(496, 303)}), 3);
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({Dialog(496, 303), Dialog(420, 420)}), 2.5);
}

TEST(Zoom, does_not_fall_below_what_the_player_asked_for_at_the_start) {
  EXPECT_DOUBLE_EQ(Zoom(Screen(640, 480), 2, kWindows).ScaleFor({Dialog(403, 444)}), 2);
}

TEST(Zoom, fills_what_a_window_has_been_given_and_no_more_than_lets_the_others_fit) {
  const Zoom zoom(Screen(1366, 768), {}, kWindows);
  const Span tile = {{496, 321}, kTitleHeight, Extent{1362, 744}};
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({tile}), 744.0 / 321);
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({{tile.Inside, kTitleHeight, Extent{680, 744}}}), 680.0 / 496);
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({{tile.Inside, kTitleHeight, Extent{300, 744}}}), 1);
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({tile, Dialog(403, 444)}), (768.0 - kTitleHeight) / 444);
}

TEST(Zoom, fills_the_full_screen_whatever_the_scale_of_windows) {
  Zoom zoom(Screen(1920, 1080), 1, kWindows);
  zoom.SetFullScreen(true);
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({{{480, 270}, 0}}), 4);
  zoom.SetFullScreen(false);
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({{{480, 270}, 0}}), 1);
}

}  // namespace
}  // namespace orvane
