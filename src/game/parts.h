// What a program consists of, and how its parts are tied together.
#pragma once

#include "src/battle/battle_screen.h"
#include "src/core/game.h"
#include "src/ending/ending.h"
#include "src/game/program.h"
#include "src/screens/equipment.h"
#include "src/screens/heroes.h"
#include "src/screens/input_name.h"
#include "src/screens/item.h"
#include "src/screens/item_use.h"
#include "src/screens/load.h"
#include "src/screens/save.h"
#include "src/screens/settings.h"
#include "src/screens/version.h"

namespace orvane {

struct Program::Parts {
  explicit Parts(const Services& services);

  Game game;
  BattleScreen battle;
  InputNameScreen input_name;
  SaveScreen save;
  LoadScreen load;
  EquipmentScreen equipment;
  ItemScreen item;
  ItemUseScreen item_use;
  HeroesScreen heroes;
  SettingsScreen settings;
  VersionScreen version;
  EndingScreen ending;

 private:
  void TieLinks();
  void TieMenus();
  void TieMain();
  // Opens a screen from a menu: the field stands still until the screen closes.
  Handler Opens(Screen& screen);
};

}  // namespace orvane
