#include "src/game/parts.h"

#include "src/battle/skill_table.h"
#include "src/core/main_activation.h"
#include "src/core/quit.h"
#include "src/field/field_frame.h"
#include "src/field/pickups.h"
#include "src/field/story.h"

namespace orvane {

Program::Parts::Parts(const Services& services)
    : game(services),
      battle(game),
      input_name(game),
      save(game),
      load(game),
      equipment(game),
      item(game),
      item_use(game, item),
      heroes(game),
      settings(game),
      version(game),
      ending(game) {
  TieLinks();
  TieMenus();
  TieMain();
  game.stage.KeepDesigns();
}

void Program::Parts::TieLinks() {
  game.links.SetBattleInterval = [this](int milliseconds) {
    game.stage.Load(battle);
    battle.ActionTimer.SetInterval(milliseconds);
  };
  game.links.ShowBattle = [this] {
    game.stage.Show(battle);
    game.stage.Hide(game.Main);
    battle.MusicTimer.SetEnabled(true);
  };
  game.links.ShowEnding = [this] { game.stage.Show(ending); };
  game.links.SetStoryText = [this] { SetStoryText(game); };
  game.links.FillSkillTables = [this] {
    FillTechniqueTable(game.state);
    FillSpellTable(game.state);
  };
}

Handler Program::Parts::Opens(Screen& screen) {
  return [this, &screen] {
    game.Main.WalkTimer.SetEnabled(false);
    game.stage.Show(screen);
  };
}

void Program::Parts::TieMenus() {
  MainScreen& main = game.Main;
  for (MenuItem* menu : {&main.FileMenu, &main.ItemMenu, &main.InfoMenu})
    menu->OnClick = [this] { StopWalking(game); };
  main.LoadItem.OnClick = Opens(load);
  main.SaveItem.OnClick = Opens(save);
  main.QuitItem.OnClick = [this] { AskToQuit(game); };
  main.EquipmentItem.OnClick = Opens(equipment);
  main.BagItem.OnClick = Opens(item);
  main.HeroesItem.OnClick = Opens(heroes);
  main.SettingsItem.OnClick = Opens(settings);
  main.VersionItem.OnClick = Opens(version);
}

void Program::Parts::TieMain() {
  MainScreen& main = game.Main;
  main.BeginButton.OnClick = [this] { game.stage.ShowModal(input_name); };
  main.FieldPicture.OnClick = [this] { FieldClick(game); };
  main.WalkTimer.OnTick = [this] { FieldTick(game); };
  main.MessageTimer.OnTick = [this] { MessageTick(game); };
  main.StoryTimer.OnTick = [this] { StoryTick(game); };
}

}  // namespace orvane
