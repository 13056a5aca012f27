#include "src/battle/battle_screen.h"

#include <array>
#include <memory>
#include <string>

#include "src/battle/flow/battle_setup.h"
#include "src/battle/flow/command_input.h"
#include "src/battle/flow/turn_engine.h"
#include "src/battle/flow/victory.h"
#include "src/core/sheets.h"

namespace orvane {
namespace {

constexpr Colour kWhite = Rgb(255, 255, 255);
constexpr Place kOutOfSight{0, 600, 16, 16};

// A new screen's timer is as fast as timers go; the settings and a new game say otherwise. A real
// clock serves it every 10 ms at the most, so that an action can be seen.
constexpr int kActionInterval = 1;
constexpr int kActionPace = 10;
constexpr int kMusicInterval = 100;

const Font kNumberFont{Gothic, 9.75, true};
const Font kNameFont{Gothic, 12, true};
const Font kPanelFont{Gothic, 11.25, true};

// The fixed captions of a status pane.
struct PaneCaption {
  Place At;
  const char* Text = "";
};

constexpr PaneCaption kPane[] = {
    {{8, 40, 41, 17}, "HP ："},     {{8, 64, 41, 17}, "MP ："},     {{128, 40, 49, 17}, "攻撃 ："},
    {{128, 56, 49, 17}, "防御 ："}, {{128, 72, 49, 17}, "精神 ："}, {{224, 80, 25, 17}, "LV ："},
};

constexpr int kEnemyKinds = 19;
constexpr int kUnusedSheet = 100;

}  // namespace

BattleScreen::BattleScreen(Game& the_game)
    : Screen(the_game.stage, "Battle", "BATTLE !", 454, 396),
      game(the_game),
      state(the_game.state),
      Picture1(*this, "Picture1", {8, 8, 436, 268}, {Surface(432, 264), 2}),
      Picture13(Picture1, "Picture13", {0, 16, 202, 50}, {Sheet("name_panel_enemy"), 1}),
      Label24(Picture13, "Label24", {8, 16, 184, 20}, {"敵の名前", 0, kNameFont, Align::Centre}),
      Picture9(Picture1, "Picture9", {216, 16, 202, 50}, {Sheet("name_panel_hero"), 1}),
      Label20(Picture9, "Label20", {8, 16, 184, 20}, {"", 0, kNameFont, Align::Centre}),
      Picture10(Picture1, "Picture10", {48, 8, 338, 95}, {Sheet("victory_panel"), 1}),
      Label21(Picture10, "Label21", {16, 8, 305, 25}, {"", Rgb(128, 0, 128), kNameFont}),
      Frame1(*this, "Frame1", {8, 280, 153, 105}, {"コマンド"}),
      Command1(Frame1, "Command1", {8, 32, 65, 33}, {"戦う"}),
      Command2(Frame1, "Command2", {72, 32, 65, 33}, {"魔法"}),
      Command3(Frame1, "Command3", {8, 64, 65, 33}, {"技"}),
      Command4(Frame1, "Command4", {72, 64, 65, 33}, {"アイテム"}),
      Command5(Frame1, "Command5", {80, 16, 49, 12}, {"逃げる"}),
      SSTab1(*this, "SSTab1", {168, 288, 281, 99}, {{"", ""}, {true, true}}),
      Picture4(PaneOf(SSTab1, 0), "Picture4", {224, 24, 50, 50}, {Sheet("face_man"), 1}),
      Picture5(PaneOf(SSTab1, 1), "Picture5", {224, 24, 50, 50}, {Sheet("face_woman"), 1}),
      List1(*this, "List1", {8, 280, 193, 100}),
      List2(*this, "List2", {8, 280, 153, 100}),
      List3(*this, "List3", {8, 280, 153, 100}),
      List4(*this, "List4", {8, 280, 153, 100}),
      Picture2(*this, "Picture2", kOutOfSight, {Sheet("hero_man")}),
      Picture3(*this, "Picture3", kOutOfSight, {Sheet("hero_woman")}),
      Picture7(*this, "Picture7", kOutOfSight, {Sheet("ground_open")}),
      Picture11(*this, "Picture11", kOutOfSight, {Sheet("ground_waste")}),
      Picture12(*this, "Picture12", kOutOfSight, {Sheet("ground_lair")}),
      Picture8(*this, "Picture8", kOutOfSight, {Sheet("effects")}),
      Timer1(*this, "Timer1", kActionInterval, kActionPace),
      Timer2(*this, "Timer2", kMusicInterval) {
  IsScene = true;
  AddNumbers();
  AddPane(0);
  AddPane(1);
  AddSheets();
  for (Control* hidden : std::initializer_list<Control*>{
           &Picture13, &Picture9, &Picture10, &List1, &List2, &List3, &List4, &Picture2, &Picture3,
           &Picture7, &Picture11, &Picture12, &Picture8}) {
    hidden->Visible = false;
  }
  TieHandlers();
}

void BattleScreen::AddNumbers() {
  constexpr std::array<Place, 5> on_enemies = {{{24, 144, 73, 17},
                                                {48, 224, 73, 17},
                                                {152, 144, 73, 17},
                                                {176, 224, 73, 17},
                                                {112, 192, 73, 17}}};
  constexpr std::array<Place, 2> on_heroes = {{{344, 184, 37, 16}, {360, 240, 37, 16}}};
  int index = 0;
  for (const Place& place : on_enemies) {
    Label15.Add(index++, Picture1, place, LabelValues{"", kWhite, kNumberFont}).Visible = false;
  }
  index = 0;
  for (const Place& place : on_heroes) {
    Label16.Add(index++, Picture1, place, LabelValues{"", kWhite, kNumberFont}).Visible = false;
  }
  Label22.Add(0, Picture10, Place{8, 40, 145, 17}, LabelValues{"", Rgb(0, 0, 192), kPanelFont});
  Label22.Add(1, Picture10, Place{176, 40, 145, 17}, LabelValues{"", Rgb(192, 0, 0), kPanelFont});
  Label25.Add(0, Picture10, Place{8, 64, 145, 17}, LabelValues{"", Rgb(0, 0, 255), kPanelFont});
  Label25.Add(1, Picture10, Place{176, 64, 145, 17}, LabelValues{"", Rgb(255, 0, 0), kPanelFont});
  for (int hero = 0; hero < 2; ++hero) Label22[hero].Visible = Label25[hero].Visible = false;
}

void BattleScreen::AddPane(int hero) {
  const Holder pane = PaneOf(SSTab1, hero);
  for (const PaneCaption& caption : kPane) {
    captions_.emplace_back(
        std::make_unique<Label>(pane, "", caption.At, LabelValues{caption.Text}));
  }
  Label3.Add(hero, pane, Place{48, 40, 73, 17});
  Label4.Add(hero, pane, Place{48, 64, 73, 17});
  Label8.Add(hero, pane, Place{176, 40, 41, 17});
  Label9.Add(hero, pane, Place{176, 56, 41, 17});
  Label10.Add(hero, pane, Place{176, 72, 41, 17});
  Label12.Add(hero, pane, Place{248, 80, 25, 17});
}

void BattleScreen::AddSheets() {
  for (int kind = 0; kind < kEnemyKinds; ++kind) {
    const std::string name = (kind < 10 ? "enemy_0" : "enemy_") + std::to_string(kind);
    Picture6.Add(kind, *this, kOutOfSight, PictureValues{Sheet(name)}).Visible = false;
  }
  Picture6.Add(kUnusedSheet, *this, kOutOfSight, PictureValues{Sheet("enemy_100")}).Visible = false;
}

void BattleScreen::TieHandlers() {
  // While an action plays no command does anything, whatever its button looks like.
  const auto command = [this](void (*run)(BattleScreen&)) {
    return [this, run] {
      if (!Timer1.IsEnabled()) run(*this);
    };
  };
  const auto handler = [this](void (*run)(BattleScreen&)) { return [this, run] { run(*this); }; };
  Command1.OnClick = command(CommandFight);
  Command2.OnClick = command(CommandMagic);
  Command3.OnClick = command(CommandWaza);
  Command4.OnClick = command(CommandItem);
  Command5.OnClick = command(CommandFlee);
  SSTab1.OnClick = handler(PaneOpened);
  List1.OnClick = handler(SkillChosen);
  List2.OnClick = handler(TargetChosen);
  List3.OnClick = handler(ItemChosen);
  List4.OnClick = handler(ItemTargetChosen);
  Picture1.OnClick = handler(LeaveVictory);
  Timer1.OnTick = handler(ActionTick);
  Timer2.OnTick = handler(BattleMusic);
}

void BattleScreen::OnLoad() {
  LoadBattle(*this);
}

void BattleScreen::OnActivate(bool entered) {
  if (entered) OpenBattle(*this);
}

void BattleScreen::OnUnload() {
  AbandonBattle(*this);
}

}  // namespace orvane
