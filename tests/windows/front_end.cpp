#include "tests/windows/front_end.h"

#include <QCoreApplication>
#include <QTimer>
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
      program_(opening.Folder, {sound_, chance_, boxes_, sleeper_}),
      desktop_(program_, boxes_, sleeper_, ChooseZoom(opening, program_)) {
  Send([](Program&) {});
}

FrontEnd::~FrontEnd() {
  // A game that has ended has told the application's loop to end. It does, so that the next one's
  // does not.
  QTimer::singleShot(0, [] { QCoreApplication::exit(); });
  QCoreApplication::exec();
}

}  // namespace orvane::test
