#include "src/frontend/web/web_game.h"

#include <cstdlib>
#include <exception>

namespace orvane {

WebGame::WebGame(Page& page, std::optional<uint32_t> seed)
    : page_(page), files_(page), sound_(page), chance_(seed) {}

void WebGame::Begin() {
  program_ = std::make_unique<Program>(Services{sound_, chance_, files_});
  Stage& stage = program_->TheStage();
  mirror_.emplace(stage, texts_);
  ticks_.emplace(stage);
  first_ = stage.Active();
  for (const Screen* screen : stage.Screens()) orders_.emplace(screen, FocusOrder(*screen));
  // No page may ask which keys are down.
  keys_.emplace(WalkingKeys::Surroundings{
      [this] { return ReachesWindow(); }, [this] { return facts_.MenuBarHasKeys; },
      [] { return std::optional<KeyCodes>(); },
      [this](Direction direction, bool down) { Walk(direction, down); }});
}

const std::string& WebGame::Changes() {
  return HeldFor() > 0 ? nothing_ : mirror_->Changes();
}

int WebGame::HeldFor() const {
  const Stage& stage = program_->TheStage();
  return stage.HasEnded() ? 0 : stage.HeldFor();
}

void WebGame::Send(const std::function<void(Program&)>& event) {
  if (HeldFor() > 0 || program_->HasEnded()) return;
  // The game handles the errors that bad data can lead to; what else may come, such as want of
  // memory, ends it with its box.
  try {
    event(*program_);
  } catch (const std::exception& failure) {
    program_->TheStage().EndWithBox({failure.what(), "Orvane", BoxButtons::Ok}, EXIT_FAILURE);
  }
}

int WebGame::Wait() {
  return ticks_->Wait(page_.Now()).value_or(-1);
}

int WebGame::Serve(double most) {
  const double begin = page_.Now();
  const int boxes = program_->TheStage().BoxCount();
  int served = 0;
  for (double now = begin; now - begin <= most; now = page_.Now()) {
    Timer* timer = ticks_->Take(now);
    if (timer == nullptr) break;
    Send([timer](Program& program) { program.Tick(*timer); });
    ++served;
    if (HeldFor() > 0 || program_->TheStage().BoxCount() > boxes) break;
  }
  return served;
}

void WebGame::Kept(int number, const std::string& failure) {
  try {
    files_.Kept(number, failure);
  } catch (const std::exception& error) {
    program_->TheStage().EndWithBox({error.what(), "Orvane", BoxButtons::Ok}, EXIT_FAILURE);
  }
}

bool WebGame::TakeKey(const KeyEvent& event, const KeyMeaning& meaning) {
  return keys_->Take(event, meaning);
}

void WebGame::SetKeyFacts(const KeyFacts& facts) {
  const bool came = facts.PageHasKeys && !facts_.PageHasKeys;
  const bool went = !facts.PageHasKeys && facts_.PageHasKeys;
  facts_ = facts;
  // What is let go while another window has the keyboard is not seen.
  if (went) keys_->Forget();
  if (came) keys_->Settle();
}

void WebGame::TakePad(PadState state, double x, double y) {
  stick_.Add(x, y, state);
  pad_.Follow(state, page_.Now());
}

Control* WebGame::BeginFocus(const Screen& screen) {
  return OrderOf(screen).Begin();
}

Control* WebGame::FollowFocus(const Screen& screen, Control* before) {
  return OrderOf(screen).Follow(before);
}

FocusOrder& WebGame::OrderOf(const Screen& screen) {
  return orders_.at(&screen);
}

bool WebGame::ReachesWindow() const {
  const Stage& stage = program_->TheStage();
  return facts_.PageHasKeys && !facts_.MenuIsOpen && stage.Active() == first_ &&
         first_ != nullptr && stage.TakesInput(*first_);
}

bool WebGame::ReachesGame() const {
  return ReachesWindow() && !facts_.MenuBarHasKeys;
}

void WebGame::Walk(Direction direction, bool down) {
  Send([direction, down](Program& program) {
    if (down) return program.KeyDown(direction);
    return program.KeyUp(direction);
  });
}

}  // namespace orvane
