#include "src/game/parts.h"

#include "src/battle/rules/battle_tables.h"
#include "src/core/main_activation.h"
#include "src/core/quit.h"
#include "src/field/field_frame.h"
#include "src/field/pickups.h"
#include "src/field/story.h"

namespace orvane {

Program::Parts::Parts(const std::filesystem::path& folder, const Services& services)
    : game(folder, services),
      battle(game),
      input_name(game),
      save(game),
      load(game),
      wepon(game),
      item(game),
      item_use(game, item),
      chardata(game),
      custom(game),
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
    battle.Timer1.SetInterval(milliseconds);
  };
  game.links.ShowBattle = [this] {
    game.stage.Show(battle);
    game.stage.Hide(game.Main);
    battle.Timer2.SetEnabled(true);
  };
  game.links.ShowEnding = [this] { game.stage.Show(ending); };
  game.links.SetStoryText = [this] { SetStoryText(game); };
  game.links.FillSkillTables = [this] {
    FillWazaTable(game.state);
    FillMagicTable(game.state);
  };
}

Handler Program::Parts::Opens(Screen& screen) {
  return [this, &screen] {
    game.Main.Timer1.SetEnabled(false);
    game.stage.Show(screen);
  };
}

void Program::Parts::TieMenus() {
  MainScreen& main = game.Main;
  for (MenuItem* menu : {&main.m1, &main.m2, &main.m3})
    menu->OnClick = [this] { StopWalking(game); };
  main.m11.OnClick = Opens(load);
  main.m12.OnClick = Opens(save);
  main.m14.OnClick = [this] { AskToQuit(game); };
  main.m21.OnClick = Opens(wepon);
  main.m22.OnClick = Opens(item);
  main.m32.OnClick = Opens(chardata);
  main.m33.OnClick = Opens(custom);
  main.m35.OnClick = Opens(version);
}

void Program::Parts::TieMain() {
  MainScreen& main = game.Main;
  main.Command1.OnClick = [this] { game.stage.ShowModal(input_name); };
  main.Picture1.OnClick = [this] { FieldClick(game); };
  main.Timer1.OnTick = [this] { FieldTick(game); };
  main.Timer2.OnTick = [this] { MessageTick(game); };
  main.Timer3.OnTick = [this] { StoryTick(game); };
}

}  // namespace orvane
