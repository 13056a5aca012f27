// A save that a player brings along: it is taken, with a summary, or refused, with a reason.
#include "src/core/save_file.h"
#include "src/frontend/web/services/save_check.h"
#include "tests/fuzz/harness.h"

namespace orvane::fuzz {

void Try(Input& input) {
  const std::string bytes = input.Rest();
  const bool taken = SaveProblem(bytes).empty();
  Require(taken == !SaveSummary(bytes).empty(),
          "what is taken has a summary, what is not has none");
  if (!taken) return;
  Require(bytes.size() == kSaveFileSize, "a save has 540 bytes");
  GameRecord record;
  UnpackRecord(bytes, record);
  for (int hero = 0; hero < 2; ++hero) {
    Require(record.HP[hero] <= record.MaxHP[hero] && record.MP[hero] <= record.MaxMP[hero],
            "nobody has more than he can have");
  }
}

}  // namespace orvane::fuzz
