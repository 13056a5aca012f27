#include "src/game/start_up.h"

#include "src/battle/skill_table.h"
#include "src/core/game.h"
#include "src/core/map.h"
#include "src/core/new_game.h"
#include "src/field/story.h"

namespace orvane {

void StartUp(Game& game) {
  State& state = game.state;
  MainScreen& main = game.Main;
  for (int hero = 0; hero < 2; ++hero) {
    state.HeroName[hero] = state.HeroName[hero].Trimmed();
    state.HeroNameText[hero] = state.HeroName[hero].Trimmed();
  }
  StretchBlt(main.FieldPicture.Picture, {0, 0, 480, 320}, main.FieldPicture.Picture,
             {0, 0, 320, 160}, Blit::Copy);
  state.GameStarted = kFalse;
  NewGameDefaults(game);
  main.SaveItem.Enabled = false;
  main.ItemMenu.Enabled = false;
  main.InfoMenu.Enabled = false;
  state.HeroX = (state.SaveX - 1) * kTileSize;
  state.HeroY = (state.SaveY - 1) * kTileSize;
  main.Copyright.Caption = "Copyright (C) 2001 Kelmark";
  game.items.Open(game.services.Files);
  for (int number = 1; number <= ItemFile::RecordCount; ++number) ReadItem(game, number);
  SetStoryText(game);
  FillTechniqueTable(state);
  FillSpellTable(state);
}

}  // namespace orvane
