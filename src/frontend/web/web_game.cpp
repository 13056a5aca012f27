#include "src/frontend/web/web_game.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

#include "src/frontend/shared/events.h"
#include "src/frontend/shared/texts/lettered_sheets.h"

namespace orvane {
namespace {

constexpr uint32_t kFirstArrow = 37;  // the others follow in the order of Direction

}  // namespace

WebGame::WebGame(Page& page, std::optional<uint32_t> seed, const Translator& texts)
    : page_(page), files_(page), sound_(page), chance_(seed), texts_(texts) {}

void WebGame::Begin() {
  program_ = std::make_unique<Program>(play_.TheServices());
  play_.Watch(*program_);
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
  if (HeldFor() > 0) return nothing_;
  LetterSheets(program_->TheStage(), texts_);
  return mirror_->Changes();
}

int WebGame::HeldFor() const {
  const Stage& stage = program_->TheStage();
  return stage.HasEnded() ? 0 : stage.HeldFor();
}

void WebGame::Send(const std::function<void(Program&)>& event) {
  if (HeldFor() > 0 || program_->HasEnded()) return;
  ActOn(*program_, event);
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
  ActOn(*program_, [&](Program& /*program*/) { files_.Kept(number, failure); });
}

bool WebGame::TakeKey(uint32_t code, bool is_press, bool repeats, bool types) {
  constexpr std::array<uint32_t, 4> acting{13, 27, 32, 121};  // Enter, Escape, Space, F10
  KeyMeaning meaning{{}, std::find(acting.begin(), acting.end(), code) != acting.end(), types};
  if (code >= kFirstArrow && code < kFirstArrow + 4) {
    meaning.Arrow = static_cast<Direction>(code - kFirstArrow);
  }
  const auto time = static_cast<uint64_t>(page_.Now());
  return keys_->Take({code, is_press, repeats, time, WindowOfKeys()}, meaning);
}

std::optional<Direction> WebGame::TakeThumb(double x, double y, bool touches) {
  constexpr double middle = 0.2;
  std::optional<Direction> held;
  if (touches) held = thumb_;
  if (touches && std::hypot(x, y) >= middle) {
    if (std::abs(x) > std::abs(y)) {
      held = x < 0 ? Direction::Left : Direction::Right;
    } else {
      held = y < 0 ? Direction::Up : Direction::Down;
    }
  }
  if (held == thumb_) return held;
  const auto press = [this](bool is_press) {
    if (thumb_) TakeKey(kFirstArrow + static_cast<uint32_t>(*thumb_), is_press, false, false);
  };
  press(false);
  thumb_ = held;
  press(true);
  return held;
}

// What tells the windows apart that a key can come to: the box in front, a menu, or a screen.
const void* WebGame::WindowOfKeys() const {
  const Stage& stage = program_->TheStage();
  if (stage.BoxStands()) {
    return reinterpret_cast<const void*>(static_cast<uintptr_t>(stage.Boxes().back().Number));
  }
  if (facts_.MenuIsOpen || stage.Active() == nullptr) return &facts_;
  return stage.Active();
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

Control* WebGame::FollowFocus(Control* before) {
  const Screen* active = program_->TheStage().Active();
  const bool changed = std::exchange(focused_, active) != active;
  if (active == nullptr) return nullptr;
  if (changed) return OrderOf(*active).Begin();
  return OrderOf(*active).Follow(before != nullptr && &before->Owner() == active ? before
                                                                                 : nullptr);
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
