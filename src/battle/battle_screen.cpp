#include "src/battle/battle_screen.h"

#include <array>
#include <memory>
#include <string>

#include "src/battle/flow/battle_setup.h"
#include "src/battle/flow/command_input.h"
#include "src/battle/flow/turn_engine.h"
#include "src/battle/flow/victory.h"
#include "src/battle/rules/formation.h"
#include "src/battle/skill_table.h"
#include "src/core/sheets.h"

namespace orvane {
namespace {

constexpr Colour kWhite = Rgb(255, 255, 255);

// A new screen's timer is as fast as timers go; the settings and a new game say otherwise. A real
// clock serves it every 10 ms at the most, so that an action can be seen.
constexpr int kActionInterval = 1;
constexpr int kActionPace = 10;
constexpr int kMusicInterval = 100;

const Font kNumberFont{kGothic, 9.75, true};
const Font kNameFont{kGothic, 12, true};
const Font kPanelFont{kGothic, 11.25, true};

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
      Scene(*this, "Picture1", {8, 8, 436, 268}, {Surface(432, 264), 2}),
      EnemyActionPanel(Scene, "Picture13", {0, 16, 202, 50}, {Sheet("name_panel_enemy"), 1}),
      EnemyActionName(EnemyActionPanel, "Label24", {8, 16, 184, 20},
                      {"敵の名前", 0, kNameFont, Align::Centre}),
      HeroActionPanel(Scene, "Picture9", {216, 16, 202, 50}, {Sheet("name_panel_hero"), 1}),
      HeroActionName(HeroActionPanel, "Label20", {8, 16, 184, 20},
                     {"", 0, kNameFont, Align::Centre}),
      VictoryPanel(Scene, "Picture10", {48, 8, 338, 95}, {Sheet("victory_panel"), 1}),
      ExperienceGained(VictoryPanel, "Label21", {16, 8, 305, 25},
                       {"", Rgb(128, 0, 128), kNameFont}),
      CommandFrame(*this, "Frame1", {8, 280, 153, 105}, {"コマンド"}),
      FightButton(CommandFrame, "Command1", {8, 32, 65, 33}, {"戦う"}),
      SpellButton(CommandFrame, "Command2", {72, 32, 65, 33}, {"魔法"}),
      TechniqueButton(CommandFrame, "Command3", {8, 64, 65, 33}, {"技"}),
      ItemButton(CommandFrame, "Command4", {72, 64, 65, 33}, {"アイテム"}),
      FleeButton(CommandFrame, "Command5", {80, 16, 49, 12}, {"逃げる"}),
      HeroTabs(*this, "SSTab1", {168, 288, 281, 99}, {{"", ""}, {true, true}}),
      ManFace(PaneOf(HeroTabs, 0), "Picture4", {224, 24, 50, 50}, {Sheet("face_man"), 1}),
      WomanFace(PaneOf(HeroTabs, 1), "Picture5", {224, 24, 50, 50}, {Sheet("face_woman"), 1}),
      Skills(*this, "List1", {8, 280, 193, 100}),
      Targets(*this, "List2", {8, 280, 153, 100}),
      BagItems(*this, "List3", {8, 280, 153, 100}),
      Receivers(*this, "List4", {8, 280, 153, 100}),
      ManSheet(*this, "Picture2", kOutOfSight, {Sheet("hero_man")}),
      WomanSheet(*this, "Picture3", kOutOfSight, {Sheet("hero_woman")}),
      OpenGround(*this, "Picture7", kOutOfSight, {Sheet("ground_open")}),
      WasteGround(*this, "Picture11", kOutOfSight, {Sheet("ground_waste")}),
      LairGround(*this, "Picture12", kOutOfSight, {Sheet("ground_lair")}),
      EffectSheet(*this, "Picture8", kOutOfSight, {Sheet("effects")}),
      ActionTimer(*this, "Timer1", kActionInterval, kActionPace),
      MusicTimer(*this, "Timer2", kMusicInterval) {
  IsScene = true;
  AddNumbers();
  AddPane(0);
  AddPane(1);
  AddSheets();
  for (Control* hidden :
       std::initializer_list<Control*>{&EnemyActionPanel, &HeroActionPanel, &VictoryPanel, &Skills,
                                       &Targets, &BagItems, &Receivers, &ManSheet, &WomanSheet,
                                       &OpenGround, &WasteGround, &LairGround, &EffectSheet}) {
    hidden->Visible = false;
  }
  for (ListBox* list : {&Skills, &Targets, &BagItems, &Receivers}) list->BackRow = 0;
  TieHandlers();
}

int BattleScreen::TargetSlot() const {
  return IsBigFight(state) ? kBigSlot : ChosenTarget();
}

Choice BattleScreen::Chosen() const {
  return {.Hero = ActingHero(),
          .Skill = ChosenSkill(),
          .Struck = StruckBySpell(ChosenSkill()),
          .Slot = TargetSlot(),
          .BagSlot = ChosenBagSlot(),
          .Receiver = ChosenReceiver()};
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
    EnemyNumbers.Add(index++, Scene, place, LabelValues{"", kWhite, kNumberFont}).Visible = false;
  }
  index = 0;
  for (const Place& place : on_heroes) {
    HeroNumbers.Add(index++, Scene, place, LabelValues{"", kWhite, kNumberFont}).Visible = false;
  }
  LevelMessages.Add(0, VictoryPanel, Place{8, 40, 145, 17},
                    LabelValues{"", Rgb(0, 0, 192), kPanelFont});
  LevelMessages.Add(1, VictoryPanel, Place{176, 40, 145, 17},
                    LabelValues{"", Rgb(192, 0, 0), kPanelFont});
  MasteryMessages.Add(0, VictoryPanel, Place{8, 64, 145, 17},
                      LabelValues{"", Rgb(0, 0, 255), kPanelFont});
  MasteryMessages.Add(1, VictoryPanel, Place{176, 64, 145, 17},
                      LabelValues{"", Rgb(255, 0, 0), kPanelFont});
  for (int hero = 0; hero < 2; ++hero)
    LevelMessages[hero].Visible = MasteryMessages[hero].Visible = false;
}

void BattleScreen::AddPane(int hero) {
  const Holder pane = PaneOf(HeroTabs, hero);
  for (const PaneCaption& caption : kPane) {
    captions_.emplace_back(
        std::make_unique<Label>(pane, "", caption.At, LabelValues{caption.Text}));
  }
  HPValues.Add(hero, pane, Place{48, 40, 73, 17});
  MPValues.Add(hero, pane, Place{48, 64, 73, 17});
  AttackValues.Add(hero, pane, Place{176, 40, 41, 17});
  DefenceValues.Add(hero, pane, Place{176, 56, 41, 17});
  SpiritValues.Add(hero, pane, Place{176, 72, 41, 17});
  LevelValues.Add(hero, pane, Place{248, 80, 25, 17});
}

void BattleScreen::AddSheets() {
  for (int kind = 0; kind < kEnemyKinds; ++kind) {
    const std::string name = (kind < 10 ? "enemy_0" : "enemy_") + std::to_string(kind);
    EnemySheets.Add(kind, *this, kOutOfSight, PictureValues{Sheet(name)}).Visible = false;
  }
  EnemySheets.Add(kUnusedSheet, *this, kOutOfSight, PictureValues{Sheet("enemy_100")}).Visible =
      false;
}

void BattleScreen::TieHandlers() {
  // While an action plays no command does anything, whatever its button looks like.
  const auto command = [this](void (*run)(BattleScreen&)) {
    return [this, run] {
      if (!ActionTimer.IsEnabled()) run(*this);
    };
  };
  const auto handler = [this](void (*run)(BattleScreen&)) { return [this, run] { run(*this); }; };
  FightButton.OnClick = command(CommandFight);
  SpellButton.OnClick = command(CommandSpell);
  TechniqueButton.OnClick = command(CommandTechnique);
  ItemButton.OnClick = command(CommandItem);
  FleeButton.OnClick = command(CommandFlee);
  HeroTabs.OnClick = handler(PaneOpened);
  Skills.OnClick = handler(SkillChosen);
  Targets.OnClick = handler(TargetChosen);
  BagItems.OnClick = handler(ItemChosen);
  Receivers.OnClick = handler(ItemTargetChosen);
  Scene.OnClick = handler(LeaveVictory);
  ActionTimer.OnTick = handler(ActionTick);
  MusicTimer.OnTick = handler(BattleMusic);
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
