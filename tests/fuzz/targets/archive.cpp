// An archive of saves that a player brings along: all of them are taken, or none with a reason.
#include "src/frontend/web/services/brought_saves.h"
#include "src/frontend/web/services/save_check.h"
#include "tests/fuzz/harness.h"

namespace orvane::fuzz {

void Try(Input& input) {
  const std::string bytes = input.Rest();
  if (const auto files = ReadZip(bytes)) {
    Require(ReadZip(WriteZip(*files)) == files, "what was read can be written and read again");
  }
  const BroughtSaves brought = ReadBrought("all.zip", bytes, "");
  Require(brought.Problem.empty() != brought.Saves.empty(),
          "there are saves, or there is a reason why not");
  for (const auto& [name, save] : brought.Saves) {
    Require(name.find('/') == std::string::npos, "a save goes to no other folder");
    Require(SaveProblem(save).empty(), "what is taken can be loaded");
  }
}

}  // namespace orvane::fuzz
