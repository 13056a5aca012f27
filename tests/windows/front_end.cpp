#include "tests/windows/front_end.h"

namespace orvane::test {
namespace {

double usual_scale = 1;

Translator& UsualTexts() {
  static Translator texts;
  return texts;
}

Zoom ChooseZoom(const Opening& opening, Program& program) {
  const Zoom zoom(TheScreen(), opening.Scale, InsidesOf(program.TheStage()));
  SetScale(zoom.ScaleFor({}), zoom.TheScreen());
  return zoom;
}

}  // namespace

double UsualScale() {
  return usual_scale;
}

void SetUsualScale(double scale) {
  usual_scale = scale;
}

const std::string& UsualLanguage() {
  return UsualTexts().Language();
}

void SetUsualLanguage(const std::string& code) {
  UsualTexts().Choose(code);
}

std::string Shown(const std::string& text) {
  return UsualTexts().Of(text);
}

const ScreenFacts& TheScreen() {
  static const ScreenFacts screen = AskScreen().value_or(ScreenFacts{});
  return screen;
}

FrontEnd::FrontEnd(const Opening& opening)
    : chance_(opening.Seed),
      files_(opening.Folder),
      program_({sound_, chance_, files_}),
      desktop_(program_, ChooseZoom(opening, program_), texts_) {
  desktop_.ShowLanguage(UsualLanguage());
  Send([](Program&) {});
}

}  // namespace orvane::test
