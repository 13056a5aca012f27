#include "tests/windows/front_end.h"

#include <vector>

namespace orvane::test {
namespace {

double usual_scale = 1;

Zoom ChooseZoom(const Opening& opening, Program& program) {
  std::vector<Extent> windows;
  for (const Screen* each : program.TheStage().Screens()) {
    windows.push_back({double(each->Width), double(each->Height)});
  }
  const Zoom zoom(TheScreen(), opening.Scale, windows);
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

const ScreenFacts& TheScreen() {
  static const ScreenFacts screen = AskScreen().value_or(ScreenFacts{});
  return screen;
}

FrontEnd::FrontEnd(const Opening& opening)
    : chance_(opening.Seed),
      files_(opening.Folder),
      program_({sound_, chance_, files_}),
      desktop_(program_, ChooseZoom(opening, program_), texts_) {
  Send([](Program&) {});
}

}  // namespace orvane::test
