// A player at the game who loads and saves by its dialogs. What a player cannot do, or the game
// does not do as told, fails the test.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "src/frontend/shared/kept_play.h"
#include "src/game/program.h"
#include "src/platform/quiet_services.h"

namespace orvane::power {

class Player {
 public:
  // Starts the game as front ends do, with its play kept, up to the title. The files outlive it;
  // `after_error` takes the play after an error.
  Player(Storage& files, const std::filesystem::path& after_error);

  // Opens the dialog for loading; returns the names that it lists.
  std::vector<std::string> OpenSaves();
  // Clicks a name there; returns the record that the game has read. Nothing where it could not: it
  // then says so in a box, and has ended.
  std::optional<std::string> Look(int row);
  // Loads the one looked at last, and is on the field. Whether the game could read it, as above.
  bool Load();

  // Saves into the slot of that name. Whether the game has taken it for done: it then goes on, and
  // otherwise says in a box that it could not, and has ended.
  bool Save(const std::string& slot);

  // The record as the game has it.
  std::string Record() const;
  // The game's state, to be played with.
  State& TheState() { return program_->TheState(); }

 private:
  Screen& On(const char* screen) const { return *program_->TheStage().Find(screen); }
  Control& Of(const char* screen, const char* control) const { return *On(screen).Find(control); }
  FileListBox& FilesOf(const char* dialog) const {
    return static_cast<FileListBox&>(Of(dialog, "File1"));
  }
  void Click(const char* screen, const char* control);
  void Choose(const char* screen, int row);
  // Whether the game goes on. Otherwise it has said so in a box with these words, and has ended.
  bool GoesOn(const std::string& words);

  NoSound silence_;
  NoChance luck_;
  KeptPlay play_;
  std::unique_ptr<Program> program_;
};

}  // namespace orvane::power
