#include "src/frontend/web/mirror/mirror.h"

#include <algorithm>
#include <utility>

#include "src/frontend/shared/box_captions.h"
#include "src/frontend/shared/focus_order.h"
#include "src/frontend/shared/spoken_names.h"
#include "src/frontend/shared/spoken_text.h"
#include "src/frontend/web/mirror/json.h"
#include "src/frontend/web/mirror/values.h"

namespace orvane {
namespace {

// Copies a part of what a surface shows in the order of bytes that a canvas takes.
void TakePart(const SurfaceCopy& from, const Rect& part, std::vector<uint32_t>& to) {
  to.resize(static_cast<size_t>(part.Width) * static_cast<size_t>(part.Height));
  uint32_t* target = to.data();
  for (int y = part.Y; y < part.Y + part.Height; ++y) {
    const uint32_t* row =
        from.Pixels() + static_cast<size_t>(y) * static_cast<size_t>(from.Width()) + part.X;
    target = std::transform(row, row + part.Width, target, [](uint32_t pixel) {
      return (pixel & 0xFF00FF00) | (pixel & 0xFF) << 16 | (pixel >> 16 & 0xFF);
    });
  }
}

// Writes which part of a surface has changed, if one has, and where its pixels are.
void FollowSurface(const char* whose, int number, const Surface& surface, bool all,
                   SurfaceCopy& copy, std::vector<uint32_t>& part, Json& list) {
  const Rect changed = copy.Follow(surface, all);
  if (changed.Width == 0) return;
  TakePart(copy, changed, part);
  std::string out;
  {
    Json json(out, Json::Form::Object);
    json.Add(whose, number);
    json.AddRaw("at", std::to_string(reinterpret_cast<uintptr_t>(part.data())));
    json.Add("x", changed.X);
    json.Add("y", changed.Y);
    json.Add("width", changed.Width);
    json.Add("height", changed.Height);
    json.Add("wholeWidth", copy.Width());
    json.Add("wholeHeight", copy.Height());
  }
  list.AddRaw(out);
}

// The number at which a control stands among those that the keyboard goes to, or -1.
int StopOf(const FocusOrder& order, const Control* control) {
  const auto& stops = order.Stops();
  const auto found = std::find(stops.begin(), stops.end(), control);
  return found == stops.end() ? -1 : static_cast<int>(found - stops.begin());
}

// What a canvas with words on it is called.
std::string CalledOf(const std::string& name, const std::string& words, const Translator& texts) {
  if (name.empty()) return words.empty() ? "Orvane" : words;
  return words.empty() ? name : name + texts.Of("：") + words;
}

}  // namespace

Mirror::Mirror(const Stage& stage, const Translator& texts) : stage_(stage), texts_(texts) {
  for (Screen* screen : stage.Screens()) {
    const int number = static_cast<int>(screens_.size());
    screens_.push_back({.Model = screen});
    for (Control* control : screen->Controls()) {
      if (control->Kind() == ControlKind::Timer) continue;
      numbers_[control] = static_cast<int>(controls_.size());
      controls_.push_back({.Model = control, .Screen = number});
    }
  }
}

Screen* Mirror::ScreenOf(int number) const {
  const auto index = static_cast<size_t>(number);
  return number >= 0 && index < screens_.size() ? screens_[index].Model : nullptr;
}

Control* Mirror::ControlOf(int number) const {
  const auto index = static_cast<size_t>(number);
  return number >= 0 && index < controls_.size() ? controls_[index].Model : nullptr;
}

int Mirror::NumberOf(const Control* control) const {
  const auto found = numbers_.find(control);
  return found == numbers_.end() ? -1 : found->second;
}

int Mirror::NumberOf(const Screen* screen) const {
  for (size_t i = 0; i < screens_.size(); ++i) {
    if (screens_[i].Model == screen) return static_cast<int>(i);
  }
  return -1;
}

std::string Mirror::Nature() const {
  std::string out;
  {
    Json list(out, Json::Form::List);
    for (size_t i = 0; i < screens_.size(); ++i) {
      const Screen& screen = *screens_[i].Model;
      const FocusOrder order(screen);
      std::string controls;
      {
        Json each(controls, Json::Form::List);
        for (const Control* control : screen.Controls()) {
          const int number = NumberOf(control);
          if (number < 0) continue;
          std::string nature;
          const Standing standing{number, NumberOf(control->Parent()), StopOf(order, control)};
          WriteNature(*control, standing, nature);
          each.AddRaw(nature);
        }
      }
      std::string entry;
      {
        Json json(entry, Json::Form::Object);
        json.Add("id", static_cast<int>(i));
        json.Add("name", screen.Name());
        json.Add("width", screen.Width);
        json.Add("height", screen.Height);
        json.Add("isScene", screen.IsScene);
        json.AddRaw("controls", controls);
      }
      list.AddRaw(entry);
    }
  }
  return out;
}

const std::string& Mirror::Changes() {
  changes_.clear();
  touched_.assign(screens_.size(), false);
  std::string screens;
  std::string controls;
  std::string pixels;
  std::string boxes;
  std::string words;
  FollowControls(controls, pixels);
  FollowScreens(screens);
  FollowBoxes(boxes);
  FollowWords(words);
  const std::pair<const char*, const std::string*> parts[] = {{"screens", &screens},
                                                              {"controls", &controls},
                                                              {"pixels", &pixels},
                                                              {"boxes", &boxes},
                                                              {"words", &words}};
  const bool changed = std::any_of(std::begin(parts), std::end(parts),
                                   [](const auto& part) { return !part.second->empty(); });
  if (!changed) return changes_;
  Json json(changes_, Json::Form::Object);
  for (const auto& [name, part] : parts) {
    if (!part->empty()) json.AddRaw(name, *part);
  }
  return changes_;
}

void Mirror::Forget(const Control& control) {
  const int number = NumberOf(&control);
  if (number >= 0) controls_[static_cast<size_t>(number)].Values.clear();
}

// Whether a screen stands behind one that keeps the others from the player.
bool Mirror::IsBlocked(const Screen& screen) const {
  return std::any_of(screens_.begin(), screens_.end(), [&screen](const ShownScreen& other) {
    return other.Model != &screen && other.Model->IsVisible() && other.Model->IsModal();
  });
}

void Mirror::FollowScreens(std::string& out) {
  std::string list;
  {
    Json all(list, Json::Form::List);
    for (size_t i = 0; i < screens_.size(); ++i) {
      ShownScreen& shown = screens_[i];
      const Screen& screen = *shown.Model;
      std::string values;
      {
        Json json(values, Json::Form::Object);
        json.Add("id", static_cast<int>(i));
        json.Add("visible", screen.IsVisible());
        json.Add("active", stage_.Active() == &screen);
        json.Add("modal", screen.IsModal());
        json.Add("blocked", IsBlocked(screen));
        json.Add("caption", texts_.Of(screen.Caption));
      }
      shown.Visible = screen.IsVisible();
      if (values == shown.Values) continue;
      shown.Values = values;
      all.AddRaw(values);
    }
  }
  if (list != "[]") out = list;
}

void Mirror::FollowControls(std::string& out, std::string& pixels) {
  std::string list;
  std::string parts;
  {
    Json all(list, Json::Form::List);
    Json surfaces(parts, Json::Form::List);
    for (size_t i = 0; i < screens_.size(); ++i) {
      ShownScreen& shown = screens_[i];
      if (!shown.Model->IsVisible() || shown.Model->OwnSurface == nullptr) continue;
      FollowSurface("screen", static_cast<int>(i), *shown.Model->OwnSurface, !shown.Visible,
                    shown.Surface, shown.Part, surfaces);
    }
    std::string values;
    for (size_t i = 0; i < controls_.size(); ++i) {
      ShownControl& shown = controls_[i];
      const ShownScreen& screen = screens_[static_cast<size_t>(shown.Screen)];
      if (!screen.Model->IsVisible()) continue;
      // A screen that comes may have been loaded afresh since it was seen last.
      const bool comes = !screen.Visible;
      const int number = static_cast<int>(i);
      values.clear();
      WriteValues(*shown.Model, number, texts_, values);
      if (comes || values != shown.Values) {
        shown.Values = values;
        if (const std::string meaning = texts_.Of(SpokenMeaning(*shown.Model)); !meaning.empty()) {
          values.pop_back();
          Json more(values, Json::Form::Rest);
          more.Add("meaning", meaning);
        }
        all.AddRaw(values);
        touched_[static_cast<size_t>(shown.Screen)] = true;
      }
      // A hidden sheet changes nothing on the screen; it is looked at when it comes up.
      if (shown.Model->Kind() != ControlKind::Picture || !shown.Model->Visible) continue;
      FollowSurface("control", number, static_cast<PictureBox*>(shown.Model)->Picture, comes,
                    shown.Picture, shown.Part, surfaces);
    }
  }
  if (list != "[]") out = list;
  if (parts != "[]") pixels = parts;
}

std::string Mirror::BoxesNow() const {
  std::string out;
  {
    Json list(out, Json::Form::List);
    for (const StandingBox& box : stage_.Boxes()) {
      const Box shown = texts_.Of(box.Shown);
      std::string choices;
      {
        Json each(choices, Json::Form::List);
        for (const BoxChoice& choice : ChoicesOf(box.Shown.Buttons)) {
          std::string button;
          {
            Json json(button, Json::Form::Object);
            json.Add("caption", texts_.Of(choice.Caption));
            json.Add("answer", static_cast<int>(choice.Answer));
          }
          each.AddRaw(button);
        }
      }
      std::string entry;
      {
        Json json(entry, Json::Form::Object);
        json.Add("number", box.Number);
        json.Add("text", ShownText(shown));
        json.Add("title", shown.Title);
        json.AddRaw("choices", choices);
        json.Add("closing", static_cast<int>(AnswerOfClosing(box.Shown.Buttons)));
      }
      list.AddRaw(entry);
    }
  }
  return out;
}

void Mirror::FollowBoxes(std::string& out) {
  if (boxes_ == "[]" && !stage_.BoxStands()) return;
  std::string now = BoxesNow();
  if (now == boxes_) return;
  boxes_ = std::move(now);
  out = boxes_;
}

// The game speaks and counts in texts that stand on pictures.
void Mirror::FollowWords(std::string& out) {
  std::string list;
  {
    Json all(list, Json::Form::List);
    const auto tell = [&all, this](const char* whose, int number, const std::string& name,
                                   std::string words, std::string& told) {
      if (words == told) return;
      told = std::move(words);
      std::string entry;
      {
        Json json(entry, Json::Form::Object);
        json.Add(whose, number);
        json.Add("text", told);
        json.Add("called", CalledOf(name, told, texts_));
      }
      all.AddRaw(entry);
    };
    for (size_t i = 0; i < controls_.size(); ++i) {
      ShownControl& shown = controls_[i];
      if (!touched_[static_cast<size_t>(shown.Screen)]) continue;
      if (shown.Model->Kind() != ControlKind::Picture) continue;
      tell("control", static_cast<int>(i), texts_.Of(SpokenName(*shown.Model)),
           SpokenText(static_cast<PictureBox&>(*shown.Model), texts_), shown.Words);
    }
    for (size_t i = 0; i < screens_.size(); ++i) {
      ShownScreen& shown = screens_[i];
      if (!touched_[i] || shown.Model->OwnSurface == nullptr) continue;
      tell("screen", static_cast<int>(i), {}, SpokenText(*shown.Model, texts_), shown.Words);
    }
  }
  if (list != "[]") out = list;
}

}  // namespace orvane
