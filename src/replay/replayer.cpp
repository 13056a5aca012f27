#include "src/replay/replayer.h"

#include <deque>
#include <utility>

#include "src/base/byte_sum.h"
#include "src/platform/clock_seed.h"
#include "src/replay/sums.h"
#include "src/ui/controls.h"

namespace orvane {

// The services as they were: what was noted, and what could be foreseen.
class Replayer::Given : public SoundDevice, public Chance, public Storage {
 public:
  Given(Replayer& replayer, const Storage& folder) : replayer_(replayer), folder_(folder) {}

  Services All() { return {*this, *this, *this}; }

  // Before the last event of a step: what is noted of it counts from here on.
  void Begin(const ReplayStep& step) {
    commands_ = 0;
    for (const ReplayNote& note : step.Notes) Take(note);
  }
  // What was noted and not asked for.
  std::string Left() const {
    for (const ReplayNote& note : chance_) {
      if (note.What != Mark::Draws || note.Number > 0) return "fewer draws than recorded";
    }
    if (!replies_.empty()) return "fewer sound commands than recorded";
    if (!kept_.empty()) return "fewer files written than recorded";
    return {};
  }
  // A replacement that waits is over.
  bool Settle(int number, const std::string& failure) {
    if (number < 0 || static_cast<size_t>(number) >= waiting_.size()) return false;
    const Waiting over = std::move(waiting_[static_cast<size_t>(number)]);
    waiting_.erase(waiting_.begin() + number);
    Finish(over, failure);
    return true;
  }

  std::string Send(const std::string& command) override {
    std::string& reply = last_[command];
    if (!replies_.empty() && replies_.front().Number == commands_) {
      reply = replies_.front().Text;
      replies_.pop_front();
    }
    ++commands_;
    replayer_.commands_.push_back({command, reply});
    return reply;
  }

  float Draw() override {
    replayer_.draws_.push_back(NextDraw());
    return replayer_.draws_.back();
  }
  void Reseed() override {}

  std::string FolderName() const override { return "replay"; }
  std::optional<std::string> Read(const std::string& name) const override {
    const auto found = files_.find(name);
    if (found == files_.end()) replayer_.Differ("a read of " + name + ", which was not recorded");
    return found->second;
  }
  std::vector<std::string> List(const std::string& pattern) const override {
    const auto found = listed_.find(pattern);
    if (found == listed_.end()) replayer_.Differ("a list of " + pattern + " that was not recorded");
    return found->second;
  }
  void Replace(const std::string& name, const std::string& bytes, Outcome outcome) override {
    if (kept_.empty()) return waiting_.push_back({name, bytes, std::move(outcome)});
    const std::string failure = std::move(kept_.front());
    kept_.pop_front();
    Finish({name, bytes, std::move(outcome)}, failure);
  }

 private:
  struct Waiting {
    std::string Name;
    std::string Bytes;
    Outcome Tell;
  };

  void Take(const ReplayNote& note) {
    switch (note.What) {
      case Mark::Draws:
      case Mark::Seed:
      case Mark::Draw:
        return chance_.push_back(note);
      case Mark::Reply:
        return replies_.push_back(note);
      case Mark::KeptNow:
        return kept_.push_back(note.Text);
      case Mark::NoFile:
        files_[note.Name].reset();
        return;
      case Mark::FileBytes:
        files_[note.Name] = note.Text;
        return;
      case Mark::File:
        files_[note.Name] = Content(note);
        return;
      default:  // Names
        listed_[note.Name] = note.Names;
        return;
    }
  }

  // The bytes of a file of the game folder, from the replay if it has them.
  std::string Content(const ReplayNote& note) const {
    const auto& contents = replayer_.reader_.Contents();
    const auto found = contents.find({note.Number, note.Sum});
    if (found != contents.end()) return found->second;
    auto bytes = folder_.Read(note.Name);
    if (!bytes) replayer_.Differ(note.Name + " missing in the game folder");
    if (bytes->size() != note.Number || SumOfBytes(*bytes) != note.Sum) {
      replayer_.Differ("another " + note.Name + " in the game folder");
    }
    return *std::move(bytes);
  }

  float NextDraw() {
    while (!chance_.empty()) {
      ReplayNote& note = chance_.front();
      if (note.What == Mark::Draws) {
        if (note.Number == 0) {
          chance_.pop_front();
          continue;
        }
        --note.Number;
        return draws_.Draw();
      }
      const ReplayNote taken = std::move(note);
      chance_.pop_front();
      if (taken.What == Mark::Draw) return taken.Value;
      draws_.Seed(taken.Later ? NextWords(*taken.Later) : taken.Words);
      for (uint64_t i = 0; i < taken.Drawn; ++i) draws_.Draw();
      if (taken.Later) break;
    }
    return draws_.Draw();
  }

  // The last seed, so much later.
  SeededDraws::Words NextWords(uint32_t delay) const {
    auto words = SeedAfter(draws_.LastSeed(), delay);
    if (!words) replayer_.Differ("a seed that follows none");
    return *std::move(words);
  }

  void Finish(const Waiting& over, const std::string& failure) {
    if (failure.empty()) files_[over.Name] = over.Bytes;
    over.Tell(failure);
  }

  Replayer& replayer_;
  const Storage& folder_;
  SeededDraws draws_;
  std::deque<ReplayNote> chance_;
  std::deque<ReplayNote> replies_;
  uint64_t commands_ = 0;
  std::map<std::string, std::string> last_;
  std::map<std::string, std::optional<std::string>> files_;
  std::map<std::string, std::vector<std::string>> listed_;
  std::deque<std::string> kept_;
  std::vector<Waiting> waiting_;
};

Replayer::Replayer(std::string bytes, const Storage& folder)
    : reader_(std::move(bytes)), given_(std::make_unique<Given>(*this, folder)) {}

Replayer::~Replayer() = default;

void Replayer::Differ(const std::string& what) const {
  throw ReplayDiffers("at event " + std::to_string(events_) + ": " + what);
}

const ReplayStep* Replayer::Next() {
  step_ = reader_.Next();
  draws_.clear();
  commands_.clear();
  refused_.clear();
  if (!step_) {
    if (IsClosed() && SumOfAll(*program_) != *reader_.WholeSum()) {
      Differ("another end: the sum over state, screens and pixels differs");
    }
    return nullptr;
  }
  Take();
  Compare();
  return &*step_;
}

void Replayer::Take() {
  for (int left = step_->Count; left > 0; --left) {
    if (step_->What != ReplayStep::Sort::Start) ++events_;
    if (left == 1) given_->Begin(*step_);
    if (left == 1 && look_ && program_) look_(*step_);
    switch (step_->What) {
      case ReplayStep::Sort::Start:
        program_ = std::make_unique<Program>(given_->All());
        break;
      case ReplayStep::Sort::Kept:
        if (!given_->Settle(step_->Number, step_->Text)) Differ("no file that waits to be kept");
        break;
      case ReplayStep::Sort::Event:
        if (program_->HasEnded()) Differ("the program has ended");
        TakeEvent();
        break;
    }
  }
}

void Replayer::Compare() {
  const std::string left = given_->Left();
  if (!left.empty()) Differ(left);
  if (step_->StateSum && *step_->StateSum != static_cast<uint32_t>(SumOfState(*program_))) {
    Differ("another state");
  }
}

Screen& Replayer::FindScreen() const {
  Screen* screen = program_->TheStage().Find(step_->Screen);
  if (screen == nullptr) Differ("no screen " + step_->Screen);
  return *screen;
}

template <class Type>
Type& Replayer::Find() const {
  Control* control = FindScreen().Find(step_->Control);
  if (control == nullptr) Differ("no control " + step_->Screen + "." + step_->Control);
  auto* found = dynamic_cast<Type*>(control);
  if (found == nullptr) Differ(step_->Control + " of another kind");
  return *found;
}

void Replayer::TakeEvent() {
  using Kind = PlayEvent::Kind;
  const ReplayStep& step = *step_;
  const auto direction = [&] {
    if (step.Number < 0 || step.Number > 3) Differ("a key that is none");
    return static_cast<Direction>(step.Number);
  };
  Program& program = *program_;
  switch (step.Kind) {
    case Kind::Tick: {
      Timer& timer = Find<Timer>();
      if (!timer.Ticks() || timer.InTick) Differ(step.Screen + "." + step.Control + " off");
      return program.Tick(timer);
    }
    case Kind::KeyDown:
      return program.KeyDown(direction());
    case Kind::KeyUp:
      return program.KeyUp(direction());
    case Kind::Click:
      refused_ = program.Click(Find());
      return;
    case Kind::ClickItem:
      refused_ = program.ClickItem(Find<MenuItem>());
      return;
    case Kind::ClickAt:
      refused_ = program.ClickAt(Find(), step.X, step.Y);
      return;
    case Kind::Choose:
      refused_ = program.Choose(Find(), step.Number);
      return;
    case Kind::SelectTab:
      refused_ = program.SelectTab(Find<TabStrip>(), step.Number);
      return;
    case Kind::EnterText:
      refused_ = program.EnterText(Find<TextBox>(), step.Text);
      return;
    case Kind::Slide:
      refused_ = program.Slide(Find<Slider>(), step.Number);
      return;
    case Kind::Press:
      refused_ = program.Press(FindScreen());
      return;
    case Kind::Close:
      refused_ = program.Close(FindScreen());
      return;
    case Kind::Confirm:
      refused_ = program.Confirm(FindScreen());
      return;
    case Kind::GoBack:
      refused_ = program.GoBack(FindScreen());
      return;
    case Kind::Activate:
      refused_ = program.Activate(FindScreen());
      return;
    case Kind::Answer:
      refused_ = program.Answer(static_cast<BoxAnswer>(step.Number));
      return;
    case Kind::EndHold:
      return program.EndHold();
    case Kind::End:
      return program.End(step.Number);
  }
}

}  // namespace orvane
