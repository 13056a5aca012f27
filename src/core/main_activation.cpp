#include "src/core/main_activation.h"

#include <string>

#include "src/core/game.h"
#include "src/core/hero_numbers.h"
#include "src/core/map_file.h"

namespace orvane {
namespace {

void EnableMenus(MainScreen& main, bool enabled) {
  main.FileMenu.Enabled = enabled;
  main.ItemMenu.Enabled = enabled;
  main.InfoMenu.Enabled = enabled;
}

void StartClosingStory(MainScreen& main) {
  EnableMenus(main, false);
  main.WalkTimer.SetEnabled(false);
  main.StoryTimer.SetEnabled(true);
}

void LeaveTitle(MainScreen& main) {
  for (Label* label : {&main.TitleLabel, &main.Copyright, &main.TitleReading, &main.TitleShadow})
    label->Visible = false;
  main.LoadItem.Enabled = false;
  main.SaveItem.Enabled = true;
  main.ItemMenu.Enabled = true;
  main.InfoMenu.Enabled = true;
  main.StatusPanel.Visible = true;
}

}  // namespace

void ActivateMain(Game& game) {
  const State& state = game.state;
  MainScreen& main = game.Main;
  if (state.GameStarted == kFalse) return;
  const bool could_save = main.SaveItem.Enabled;
  LeaveTitle(main);
  ShowStatus(game);
  if (state.InBook == kFalse) {
    ReadMapFile(game.services.Files, {state.MapA, state.MapB}, game.state.MapTile);
  }
  if (state.OpeningDone == kFalse) {
    EnableMenus(main, false);
    main.StoryTimer.SetEnabled(true);
  } else if (state.OpeningDone == kTrue) {
    main.WalkTimer.SetEnabled(true);
  }
  if (state.BossFight == kTrue) {
    StartClosingStory(main);
  } else if (state.LastBossFight == kTrue) {
    if (state.LastBossDown == kFalse) main.SaveItem.Enabled = false;
    if (state.LastBossDown == kTrue) StartClosingStory(main);
  }
  if (state.LastBossFight == kFalse && !main.StoryTimer.IsEnabled()) {
    // The door that led into a room has decided about saving there, and nothing changes it on the
    // inside.
    main.SaveItem.Enabled = state.InBook == kFalse || could_save;
  } else if (main.StoryTimer.IsEnabled()) {
    main.SaveItem.Enabled = false;
  }
}

void ShowStatus(Game& game) {
  const State& state = game.state;
  for (int hero = 0; hero < 2; ++hero) {
    game.Main.StatusValues[hero * 2].Caption = "HP ：" + Gauge(state.HP[hero], state.MaxHP[hero]);
    game.Main.StatusValues[hero * 2 + 1].Caption =
        "MP ：" + Gauge(state.MP[hero], state.MaxMP[hero]);
  }
}

void StopWalking(Game& game) {
  ClearDirections(game);
  game.state.LastKey = 0;
}

void ClearDirections(Game& game) {
  State& state = game.state;
  state.KeyUp = state.KeyDown = state.KeyLeft = state.KeyRight = kFalse;
}

}  // namespace orvane
