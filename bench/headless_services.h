// A program without a window, for the benchmarks.
#pragma once

#include <cstdint>
#include <memory>

#include "src/game/program.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"

namespace orvane::bench {

// A small generator with a fixed seed, so that every run fights the same battles.
class FixedLuck : public Chance {
 public:
  float Draw() override;
  void Reseed() override {}

 private:
  uint32_t state_ = 2001;
};

// A game that has left its opening behind and stands on the field.
class HeadlessGame {
 public:
  HeadlessGame();

  Program& TheProgram() { return *program_; }
  State& TheState() { return program_->TheState(); }
  // The control of that name; it must exist.
  template <class Kind>
  Kind& Get(const char* screen, const char* name) {
    return static_cast<Kind&>(*program_->TheStage().Find(screen)->Find(name));
  }

 private:
  NoSound sound_;
  FixedLuck luck_;
  FolderStorage files_{ORVANE_GAME_FOLDER};
  std::unique_ptr<Program> program_;
};

// Walks to and fro until an encounter comes.
void WalkIntoBattle(HeadlessGame& game);

// Fights one battle by sword from the encounter to the field again; returns its rounds.
int FightBySword(HeadlessGame& game);

}  // namespace orvane::bench
