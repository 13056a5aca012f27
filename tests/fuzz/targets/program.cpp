// The whole program on a game folder of which any file may be anything, with ticks, clicks and keys
// in any order.
#include "src/game/program.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <vector>

#include "src/frontend/shared/chance.h"
#include "src/platform/path_text.h"
#include "src/platform/quiet_services.h"
#include "src/ui/timer_queue.h"
#include "tests/fuzz/harness.h"
#include "tests/game_files.h"

namespace orvane::fuzz {
namespace {

constexpr int kMostFaults = 12;
constexpr int kMostActions = 200;
constexpr int kMostTicks = 2000;  // in all

using Files = std::map<std::string, std::string>;

// Puts something into a file, or in its place.
void Spoil(Input& input, Files& files) {
  auto file = files.begin();
  std::advance(file, static_cast<long>(input.Below(256)) % static_cast<long>(files.size()));
  std::string& bytes = file->second;
  switch (input.Below(4)) {
    case 0:
      bytes = input.File();
      break;
    case 1:
      bytes.resize(std::min(bytes.size(), static_cast<size_t>(input.Below(256) * input.Below(16))));
      break;
    default: {
      const std::string patch = input.Text();
      const auto at = std::min(static_cast<size_t>(input.Short() & 0xfff), bytes.size());
      bytes.replace(at, std::min(patch.size(), bytes.size() - at), patch);
    }
  }
}

class Player {
 public:
  Player(Program& program, MemoryStorage& files)
      : program_(program), files_(files), queue_(program.TheStage(), Pacing::AsAsked) {}

  void Act(Input& input);

 private:
  void Tick(int most);
  void Touch(Input& input, Control& control);

  Program& program_;
  MemoryStorage& files_;
  TimerQueue queue_;
  double now_ = 0;
  int ticks_ = 0;
};

void Player::Tick(int most) {
  for (int i = 0; i < most && ticks_ < kMostTicks; ++i, ++ticks_) {
    if (program_.TheStage().HeldFor() > 0) program_.EndHold();
    const std::optional<double> due = queue_.NextDue(now_);
    if (!due) return;
    now_ = std::max(now_, *due);
    Timer* const timer = queue_.FirstDue(now_);
    if (timer == nullptr) return;
    queue_.Begin(*timer, now_);
    program_.Tick(*timer);
  }
}

void Player::Touch(Input& input, Control& control) {
  switch (control.Kind()) {
    case ControlKind::List:
    case ControlKind::FileList:
      program_.Choose(control, input.Byte() - 2);
      break;
    case ControlKind::Tabs:
      program_.SelectTab(static_cast<TabStrip&>(control), input.Below(6) - 1);
      break;
    case ControlKind::Field:
      program_.EnterText(static_cast<TextBox&>(control), input.Text());
      break;
    case ControlKind::Slider:
      program_.Slide(static_cast<Slider&>(control), input.Short());
      break;
    case ControlKind::Menu:
      if (input.Below(2) == 0) program_.ClickItem(static_cast<MenuItem&>(control));
      program_.Click(control);
      break;
    default:
      if (input.Below(4) == 0) program_.ClickAt(control, input.Coordinate(), input.Coordinate());
      program_.Click(control);
  }
}

void Player::Act(Input& input) {
  Stage& stage = program_.TheStage();
  Screen* const active = stage.Active();
  const auto key = static_cast<Direction>(input.Below(4));
  switch (input.Below(16)) {
    case 0:
    case 1:
    case 2:
    case 3:
      return Tick(input.Byte());
    case 4:
    case 5:
      return program_.KeyDown(key);
    case 6:
      return program_.KeyUp(key);
    case 7:
      program_.Answer(static_cast<BoxAnswer>(input.Below(4)));
      return;
    case 8:
      if (active != nullptr) program_.Press(*active);
      return;
    case 9:
      if (active != nullptr && input.Below(2) == 0) program_.GoBack(*active);
      if (active != nullptr) program_.Confirm(*active);
      return;
    case 10: {
      Screen* const screen =
          stage.Screens().at(static_cast<size_t>(input.Below(256)) % stage.Screens().size());
      if (input.Below(4) == 0) program_.Close(*screen);
      program_.Activate(*screen);
      return;
    }
    case 11:
      files_.Failure = input.Below(2) == 0 ? "" : "no room";
      files_.AnswersLater = input.Below(2) == 0;
      files_.Settle();
      return;
    default: {
      if (active == nullptr || active->Controls().empty()) return;
      const auto& controls = active->Controls();
      return Touch(input, *controls.at(static_cast<size_t>(input.Below(256)) % controls.size()));
    }
  }
}

}  // namespace

void Try(Input& input) {
  static const Files whole = test::ReadGameFiles(PathOf(ORVANE_GAME_FOLDER));
  QuietServices quiet;
  quiet.Files.Files = whole;
  const int faults = input.Below(kMostFaults);
  for (int i = 0; i < faults; ++i) Spoil(input, quiet.Files.Files);
  PlayersChance chance(static_cast<std::uint32_t>(input.Number()));
  Program program({quiet.Sound, chance, quiet.Files});
  Player player(program, quiet.Files);
  for (int i = 0; i < kMostActions && !input.AtEnd() && !program.HasEnded(); ++i) player.Act(input);
  const Stage& stage = program.TheStage();
  Require(program.HasEnded() || stage.Active() == nullptr || stage.Active()->IsVisible(),
          "the active screen is visible");
  Require(!program.Error() || !program.TextOfError().empty(), "an error has its words");
}

}  // namespace orvane::fuzz
