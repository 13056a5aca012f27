#include "src/field/story.h"

#include "src/core/game.h"
#include "src/core/new_game.h"
#include "src/field/field_frame.h"
#include "src/field/map_travel.h"
#include "src/field/message.h"

namespace orvane {
namespace {

constexpr int kFaceSize = 48;

// Values of StoryNo at which a scene ends.
constexpr int kOpeningEnd = 20;
constexpr int kFirstDragonEnd = 23;
constexpr int kSecondDragonEnd = 27;
constexpr int kThirdDragonEnd = 31;
constexpr int kStoryEnd = 45;

// Leaves a scene; the field goes on.
void EndStory(Game& game) {
  MainScreen& main = game.Main;
  main.StoryTimer.SetEnabled(false);
  for (MenuItem* menu : {&main.FileMenu, &main.ItemMenu, &main.InfoMenu, &main.SaveItem})
    menu->Enabled = true;
  main.MessageLines[0].Visible = true;
  main.MessageLines[1].Visible = true;
  main.SpeakerFace.Visible = false;
  main.StoryLine.Visible = false;
  main.MessageWindow.Visible = false;
  main.WalkTimer.SetEnabled(true);
}

void StartNextRound(Game& game) {
  State& state = game.state;
  state.StoryNo += 1;
  state.FieldFrame = state.MessageFrame = state.StoryFrame = state.ActionState = 0;
  state.BossFight = kFalse;
  state.Round += 1;
  PutParty(state, kRoundStart);
  CloseChests(state);
  ReadMap(game);
  EndStory(game);
}

void StartLastStage(Game& game) {
  State& state = game.state;
  state.Round = 4;
  game.Main.SaveItem.Enabled = false;
  state.StoryNo = kThirdDragonEnd + 1;
  PutParty(state, kLastStageStart);
  state.BossFight = kFalse;
  state.LastBossFight = kTrue;
  ReadMap(game);
  EndStory(game);
}

void StartEnding(Game& game) {
  game.Main.StoryTimer.SetEnabled(false);
  game.links.ShowEnding();
  game.stage.Unload(game.Main);
}

void StepClosingScene(Game& game) {
  game.state.StoryNo += 1;
  switch (game.state.StoryNo) {
    case kFirstDragonEnd:
    case kSecondDragonEnd:
      return StartNextRound(game);
    case kThirdDragonEnd:
      return StartLastStage(game);
    case kStoryEnd:
      return StartEnding(game);
    default:
      return;
  }
}

void StepOpening(Game& game) {
  State& state = game.state;
  state.StoryNo += 1;
  if (state.StoryNo != kOpeningEnd) return;
  state.StoryNo = kOpeningEnd + 1;
  state.OpeningDone = kTrue;
  EndStory(game);
}

}  // namespace

void StoryTick(Game& game) {
  State& state = game.state;
  MainScreen& main = game.Main;
  state.StoryFrame += 2;
  main.MessageWindow.Visible = true;
  main.GoOnMark.Visible = state.StoryFrame % 10 >= 5;
  main.MessageLines[0].Visible = false;
  main.MessageLines[1].Visible = false;
  main.SpeakerFace.Visible = true;
  main.StoryLine.Visible = true;
  main.StoryLine.Caption = state.StoryText[state.StoryNo];
  const Surface& speaker = state.StoryNo % 2 == 0 ? main.ManFace.Picture : main.WomanFace.Picture;
  BitBlt(main.SpeakerFace.Picture, 0, 0, kFaceSize, kFaceSize, speaker, 0, 0, Blit::Copy);
  main.SpeakerFace.Picture.Refresh();
  DrawMap(game);
  main.FieldPicture.Picture.Refresh();
}

void FieldClick(Game& game) {
  const State& state = game.state;
  const bool message_waits = state.RecoveryShown == kTrue ||
                             (state.RecoveryShown == kFalse && state.LastBossDown == kFalse);
  if (state.OpeningDone == kTrue && state.BossFight == kFalse && message_waits) {
    CloseMessage(game);
  } else if (state.OpeningDone == kTrue &&
             (state.BossFight == kTrue || state.LastBossDown == kTrue)) {
    StepClosingScene(game);
  } else if (state.OpeningDone == kFalse) {
    StepOpening(game);
  }
}

}  // namespace orvane
