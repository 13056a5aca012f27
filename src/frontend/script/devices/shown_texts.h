// Notes every text that a player would have seen, for the tests of translations.
#pragma once

#include <filesystem>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "src/game/program.h"

namespace orvane {

// Writes to the file that ORVANE_SHOWN names, each text once, texts that differ in nothing but
// their digits as one. A line is what shows it, a tabulator, and the text, its line ends as \n:
// "Battle.Command1", or "Battle.#12" for the control without a name that stands there among the
// screen's, "Battle" for a window's title, "box" and "box title".
class ShownTexts {
 public:
  ShownTexts();
  // A program has been made: what the last one showed says nothing of it.
  void Begin();
  // Does nothing where the variable is not set.
  void Look(Program& program);

 private:
  void Note(const std::string& where, const std::string& text);
  void LookAt(const Screen& screen);

  std::filesystem::path file_;
  std::unordered_set<std::string> noted_;
  std::unordered_map<const Control*, std::vector<std::string>> last_;
  int last_box_ = 0;
};

}  // namespace orvane
