// What every procedure of the game works on.
#pragma once

#include "src/core/draw.h"
#include "src/core/item_file.h"
#include "src/core/links.h"
#include "src/core/main_screen.h"
#include "src/core/state.h"
#include "src/platform/services.h"
#include "src/platform/sound_channels.h"
#include "src/ui/stage.h"

namespace orvane {

struct Game {
  explicit Game(const Services& front_end)
      : services(front_end),
        sound(services.Sound, services.Files.FolderName()),
        Main(stage, *this) {}

  Services services;
  State state;
  Stage stage;
  SoundChannels sound;
  ItemFile items;
  Links links;
  MainScreen Main;
};

// A draw in [0, 1).
inline double Rnd(Game& game) {
  return Rnd(game.services.Luck);
}

// One draw as one of `count` whole numbers from `first` on.
inline Int16 Roll(Game& game, int count, int first = 0) {
  return Roll(game.services.Luck, count, first);
}

// Seeds the random numbers from the clock.
inline void Randomize(Game& game) {
  game.services.Luck.Reseed();
}

// Reads an item's record into the program's one buffer for it.
inline void ReadItem(Game& game, int number) {
  game.items.Read(number, game.state.ItemRec);
}

// A warning box with an OK button; `then` follows its answer.
inline void Warn(Game& game, const std::string& text, const Handler& then = {}) {
  game.stage.Ask({text, "警告", BoxButtons::Ok}, [then](BoxAnswer) {
    if (then) then();
  });
}

}  // namespace orvane
