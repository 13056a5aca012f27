#include "src/frontend/script/devices/shown_texts.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "src/frontend/shared/texts/control_texts.h"
#include "src/platform/path_text.h"
#include "src/ui/reach.h"

namespace orvane {
namespace {

std::string OnOneLine(const std::string& text) {
  std::string line;
  for (const char sign : text) line += sign == '\n' ? std::string("\\n") : std::string(1, sign);
  return line;
}

std::string WithoutNumbers(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char sign) { return sign >= '0' && sign <= '9'; }, '0');
  return text;
}

}  // namespace

ShownTexts::ShownTexts() {
  const char* file = std::getenv("ORVANE_SHOWN");
  if (file != nullptr) file_ = PathOf(file);
}

void ShownTexts::Begin() {
  last_.clear();
  last_box_ = 0;
}

void ShownTexts::Look(Program& program) {
  if (file_.empty()) return;
  const Stage& stage = program.TheStage();
  for (const Screen* screen : stage.Screens()) {
    if (screen->IsVisible()) LookAt(*screen);
  }
  for (const StandingBox& box : stage.Boxes()) {
    if (box.Number <= last_box_) continue;
    last_box_ = box.Number;
    Note("box", box.Shown.Text);
    Note("box title", box.Shown.Title);
  }
}

void ShownTexts::LookAt(const Screen& screen) {
  Note(screen.Name(), screen.Caption);
  const auto& controls = screen.Controls();
  for (size_t i = 0; i < controls.size(); ++i) {
    const Control& control = *controls[i];
    if (!IsShown(control)) continue;
    std::vector<std::string> texts = TextsOf(control);
    std::vector<std::string>& last = last_[&control];
    if (texts == last) continue;
    const std::string where =
        screen.Name() + '.' + (control.Name().empty() ? '#' + std::to_string(i) : control.Name());
    for (const std::string& text : texts) Note(where, text);
    last = std::move(texts);
  }
}

void ShownTexts::Note(const std::string& where, const std::string& text) {
  if (text.empty()) return;
  const std::string line = OnOneLine(text);
  if (!noted_.insert(where + '\t' + WithoutNumbers(line)).second) return;
  std::ofstream(file_, std::ios::app) << where << '\t' << line << '\n';
}

}  // namespace orvane
