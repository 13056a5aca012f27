#include "src/frontend/script/replay/scenario.h"

#include <array>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "src/frontend/script/replay/expectations.h"
#include "src/frontend/script/replay/lua_text.h"
#include "src/platform/sound_channels.h"
#include "src/ui/controls.h"
#include "src/ui/reach.h"

namespace orvane {
namespace {

constexpr std::array<const char*, 4> kButtons = {"OK", "Cancel", "Yes", "No"};
constexpr std::array<const char*, 4> kKeys = {"Left", "Up", "Right", "Down"};

static_assert(static_cast<int>(BoxAnswer::No) + 1 == static_cast<int>(kButtons.size()));
static_assert(static_cast<int>(Direction::Down) + 1 == static_cast<int>(kKeys.size()));

std::string Call(const std::string& name, const std::string& arguments) {
  return name + "(" + arguments + ")\n";
}

// Follows a play and writes the calls. A script answers a box by a function that is queued before
// the call that brings it, and that does what happens while the box stands; so a call is written
// when all its boxes have been answered.
class Writer {
 public:
  Writer(Replayer& replayer, const Storage& folder) : replayer_(replayer), folder_(folder) {
    replayer.LookBefore([this](const ReplayStep& step) { Look(step); });
  }

  std::string Write() {
    while (const ReplayStep* step = replayer_.Next()) {
      if (step->What == ReplayStep::Sort::Start) {
        Start(*step);
      } else {
        Follow(*step);
      }
    }
    Emit(ExpectationsOf(replayer_.TheProgram(), status_fits_));
    while (!frames_.empty()) CloseFrame();
    return "-- Made of a recorded play of version " + replayer_.Version() +
           ".\ntest(\"a recorded play\", function()\n" + text_ + "end)\n";
  }

 private:
  // A call that has brought boxes, of which not all have been answered yet.
  struct Frame {
    int Below = 0;          // boxes that stood before
    std::string Prepare{};  // what goes before the call
    std::string Answers{};
    std::string TheCall{};
    std::string Body{};    // what has happened since the box in front came
    BoxButtons Buttons{};  // of the box in front
  };

  Stage& TheStage() { return replayer_.TheProgram().TheStage(); }
  void Emit(const std::string& lines) { (frames_.empty() ? text_ : frames_.back().Body) += lines; }

  // Before the last event of a step.
  void Look(const ReplayStep& step) {
    const Stage& stage = TheStage();
    boxes_ = stage.BoxCount();
    active_ = stage.Active();
    takes_ = stage.TimeRuns();
    back_ = nullptr;
    if (step.Kind != PlayEvent::Kind::GoBack && step.Kind != PlayEvent::Kind::Confirm) return;
    if (step.What != ReplayStep::Sort::Event) return;
    const Screen* screen = stage.Find(step.Screen);
    if (screen == nullptr) return;
    back_ = step.Kind == PlayEvent::Kind::GoBack ? WayBack(*screen) : screen->EnterButton;
    if (back_ != nullptr && back_->Kind() == ControlKind::List) {
      back_row_ = static_cast<const ListBox*>(back_)->BackRow;
    }
  }

  void Start(const ReplayStep& step) {
    Emit("prepare()\n");
    Emit(Preparation(step));
    Emit("start()\n");
  }

  // What the program is given by the script, before the call: files, ends of pieces, draws.
  std::string Preparation(const ReplayStep& step) {
    std::string lines;
    for (const ReplayNote& note : step.Notes) lines += FileLines(note);
    lines += EndsOfPieces();
    constexpr size_t in_a_line = 100;
    const std::vector<float>& draws = replayer_.Draws();
    for (size_t from = 0; from < draws.size(); from += in_a_line) {
      std::string values;
      for (size_t i = from; i < draws.size() && i < from + in_a_line; ++i) {
        values += (values.empty() ? "" : ", ") + LuaNumber(double{draws[i]});
      }
      lines += Call("random", values);
    }
    return lines;
  }

  std::string FileLines(const ReplayNote& note) {
    const std::string name = LuaText(note.Name);
    switch (note.What) {
      case Mark::FileBytes:
        return Call("write_file", name + ", " + LuaText(note.Text));
      case Mark::NoFile:
        return Call("delete_file", name);
      case Mark::File: {
        const auto found = replayer_.Contents().find({note.Number, note.Sum});
        const bool is_here =
            found == replayer_.Contents().end() || folder_.Read(note.Name) == found->second;
        return is_here ? std::string() : Call("write_file", name + ", " + LuaText(found->second));
      }
      case Mark::Names:
        return ListLines(note);
      case Mark::KeptNow:
        return Failed(note.Text);
      default:
        return {};
    }
  }

  static std::string Failed(const std::string& failure) {
    if (!failure.empty()) throw ReplayDiffers("no script can let a save fail: " + failure);
    return {};
  }

  // The list of files shall have these names and no others.
  static std::string ListLines(const ReplayNote& note) {
    std::string names;
    std::string lines;
    for (const std::string& name : note.Names) {
      names += "[" + LuaText(name) + "] = true, ";
      lines += "if not read_file(" + LuaText(name) + ") then write_file(" + LuaText(name) +
               ", \"\") end\n";
    }
    return lines + "for _, name in ipairs(list_files(" + LuaText(note.Name) + ")) do if not ({ " +
           names + "})[name] then delete_file(name) end end\n";
  }

  // A script's device plays on until it is told that a piece has ended.
  std::string EndsOfPieces() {
    std::string lines;
    std::map<std::string, bool> started;
    for (const Replayer::Command& command : replayer_.Commands()) {
      const SoundCommand parsed = ParseSoundCommand(command.Text);
      bool& plays = plays_[parsed.Alias];
      switch (parsed.What) {
        case SoundCommand::Verb::Play:
          plays = started[parsed.Alias] = true;
          break;
        case SoundCommand::Verb::Close:
          plays = false;
          break;
        case SoundCommand::Verb::Status:
          if (command.Reply == "stopped" && plays && !started[parsed.Alias]) {
            lines += Call("end_sound", LuaText(parsed.Alias));
            plays = false;
          }
          status_fits_ = command.Reply == (plays ? "playing" : "stopped");
          break;
        default:
          break;
      }
    }
    return lines;
  }

  void Follow(const ReplayStep& step) {
    if (step.What == ReplayStep::Sort::Kept) return static_cast<void>(Failed(step.Text));
    const std::string prepare = Preparation(step);
    if (step.Kind == PlayEvent::Kind::Answer) {
      if (replayer_.Refused().empty()) Answered(prepare, step.Number);
      return;
    }
    // What is done while the game waits for something is lost; for a script it never waits.
    const std::string call = takes_ ? CallOf(step) : std::string();
    if (BoxesNow() > boxes_) {
      frames_.push_back({.Below = boxes_, .Prepare = prepare, .TheCall = call});
      NoteFront();
    } else {
      Emit(prepare + call);
      CloseFrames();
    }
  }

  // The boxes that a script answers: that of an error it does not.
  int BoxesNow() { return TheStage().IsRunning() ? TheStage().BoxCount() : 0; }
  void NoteFront() { frames_.back().Buttons = TheStage().Boxes().back().Shown.Buttons; }

  void Answered(const std::string& prepare, int button) {
    if (frames_.empty()) return;  // that of an error
    Frame& frame = frames_.back();
    const std::string name = LuaText(kButtons.at(static_cast<size_t>(button)));
    const std::string body = std::exchange(frame.Body, {}) + prepare;
    frame.Answers += body.empty() ? Call("answer", name)
                                  : "answer(function()\n" + body + "return " + name + "\nend)\n";
    if (BoxesNow() > frame.Below) return NoteFront();
    EmitFrame();
    CloseFrames();
  }

  // The boxes of these frames have gone without an answer, with the program.
  void CloseFrames() {
    while (!frames_.empty() && frames_.back().Below >= BoxesNow()) CloseFrame();
  }

  // The box in front still waits for its answer, whichever: nothing is looked at behind it.
  void CloseFrame() {
    Frame& frame = frames_.back();
    const auto any = static_cast<size_t>(AnswerOfClosing(frame.Buttons));
    frame.Answers += "answer(function()\n" + std::exchange(frame.Body, {}) + "return " +
                     LuaText(kButtons.at(any)) + "\nend)\n";
    EmitFrame();
  }

  void EmitFrame() {
    const Frame frame = std::move(frames_.back());
    frames_.pop_back();
    Emit(frame.Prepare + frame.Answers + frame.TheCall);
  }

  std::string CallOf(const ReplayStep& step) {
    using Kind = PlayEvent::Kind;
    const std::string screen = LuaText(step.Screen);
    const std::string control = LuaText(step.Screen + "." + step.Control);
    const std::string with_number = control + ", " + std::to_string(step.Number);
    if (!replayer_.Refused().empty()) {
      // All that it may have done is to bring its screen to the front.
      const Screen* now = TheStage().Active();
      return now != active_ && now != nullptr ? Call("activate", LuaText(now->Name()))
                                              : std::string();
    }
    switch (step.Kind) {
      case Kind::Tick:
        return Call("tick", control + ", " + std::to_string(step.Count));
      case Kind::KeyDown:
        return Call("key_down", LuaText(kKeys.at(static_cast<size_t>(step.Number))));
      case Kind::KeyUp:
        return Call("key_up", LuaText(kKeys.at(static_cast<size_t>(step.Number))));
      case Kind::Click:
      case Kind::ClickItem:
        return Call("click", control);
      case Kind::ClickAt:
        return Call("click", control + ", " + LuaNumber(step.X) + ", " + LuaNumber(step.Y));
      case Kind::Choose:
        return Call("choose", with_number);
      case Kind::SelectTab:
        return Call("tab", with_number);
      case Kind::EnterText:
        return Call("enter", control + ", " + LuaText(step.Text));
      case Kind::Slide:
        return Call("slide", with_number);
      case Kind::Press:
        return Call("press", screen);
      case Kind::Close:
        return Call("close", screen);
      case Kind::Activate:
        return Call("activate", screen);
      case Kind::Confirm:
      case Kind::GoBack:
        return BackCall(step);
      default:
        return {};
    }
  }

  std::string BackCall(const ReplayStep& step) const {
    if (back_ == nullptr) return {};
    const std::string control = LuaText(step.Screen + "." + back_->Name());
    if (back_->Kind() != ControlKind::List) return Call("click", control);
    return Call("choose", control + ", " + std::to_string(back_row_));
  }

  Replayer& replayer_;
  const Storage& folder_;
  std::string text_;
  std::vector<Frame> frames_;
  std::map<std::string, bool> plays_;
  bool status_fits_ = true;

  // As it was before the last event.
  int boxes_ = 0;
  const Screen* active_ = nullptr;
  bool takes_ = true;
  const Control* back_ = nullptr;
  int back_row_ = 0;
};

}  // namespace

std::string ScenarioOf(Replayer& replayer, const Storage& folder) {
  return Writer(replayer, folder).Write();
}

}  // namespace orvane
