// The game's window: orvane [options], see --help.
#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "src/frontend/desktop/access/spoken.h"
#include "src/frontend/desktop/app/boxes.h"
#include "src/frontend/desktop/app/desktop.h"
#include "src/frontend/desktop/app/signals.h"
#include "src/frontend/desktop/paint/fonts.h"
#include "src/frontend/desktop/paint/look.h"
#include "src/frontend/desktop/windows/toolkit_scale.h"
#include "src/frontend/shared/chance.h"
#include "src/frontend/shared/home.h"
#include "src/frontend/shared/instance.h"
#include "src/frontend/shared/kept_play.h"
#include "src/frontend/shared/options.h"
#include "src/frontend/shared/preferences.h"
#include "src/frontend/shared/texts/language_choice.h"
#include "src/frontend/shared/zoom.h"
#include "src/game/program.h"
#include "src/platform/arguments.h"
#include "src/platform/folder_storage.h"
#include "src/sound/sound_engine.h"

namespace {

using namespace orvane;

constexpr int kBadCommandLine = 2;
constexpr int kNoDisplay = 3;

void Complain(const std::string& sentence) {
  std::fprintf(stderr, "orvane: %s\n", sentence.c_str());
}

bool IsSet(const char* name) {
  return !qEnvironmentVariableIsEmpty(name);
}

bool HasDisplay() {
  return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY") || IsSet("QT_QPA_PLATFORM");
}

// Why no window can be shown though a display is named.
std::string DisplayProblem() {
  if (!IsSet("DISPLAY") && IsSet("WAYLAND_DISPLAY")) {
    return "the Wayland desktop cannot be reached; on Debian the package qt6-wayland is needed for "
           "it.";
  }
  return "the display cannot be reached; start the game in a desktop session.";
}

// The toolkit aborts when it cannot reach the display; that must not look like a crash.
void OnToolkitMessage(QtMsgType type, const QMessageLogContext& /*context*/,
                      const QString& message) {
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  // The black backdrop of the full screen stays while the scale changes, and has nothing to scale.
  if (message.startsWith("QHighDpiScaling::setFactor")) return;
  // What it says of its own plugins and of displays is told in plainer words when nothing has
  // helped.
  const bool has_no_display = message.contains("platform plugin") ||
                              message.startsWith("could not connect to display") ||
                              message.startsWith("Failed to create wl_display");
  if (has_no_display && type != QtFatalMsg) return;
  Complain(has_no_display ? DisplayProblem() : message.section('\n', 0, 0).toStdString());
  if (type == QtFatalMsg) std::_Exit(kNoDisplay);
}

// How large the windows are to be, by the command line, the player's settings or the screen.
Zoom ChooseZoom(const Options& options, Program& program, const ScreenFacts& screen) {
  std::optional<double> start = options.Scale;
  if (!start && ScaleIsFixed()) start = screen.Scale;
  return Zoom(screen, start, InsidesOf(program.TheStage()));
}

// The game cannot start: says so in a box and on the terminal.
int TellProblem(const std::string& problem, int argument_count, char** arguments) {
  Complain(problem);
  QApplication application(argument_count, arguments);
  SetUpLook(application);
  OnEndSignals([] { QCoreApplication::quit(); });
  ShowProblem(problem);
  return EXIT_FAILURE;
}

int RunGame(const Options& options, Translator& texts, int argument_count, char** arguments) {
  HoldSignals();
  const Home home = options.Folder ? Home{*options.Folder, {}, {}} : FindHome();
  const Instance instance(home.Folder);
  if (!instance.IsFirst()) {
    instance.CallFirst();
    return EXIT_SUCCESS;
  }
  const std::string problem = MakeReady(home);
  if (!problem.empty()) return TellProblem(problem, argument_count, arguments);
  SoundEngine sound;
  PlayersChance chance(options.Seed);
  FolderStorage files(home.Folder);
  KeptPlay play({sound, chance, files}, options.Record, home.Folder / kReplayAfterError);
  Program program(play.TheServices());
  play.Watch(program);
  const auto zoom_for = [&](const ScreenFacts& screen) {
    return ChooseZoom(options, program, screen);
  };
  SetFirstScale([&](const ScreenFacts& screen) { return zoom_for(screen).ScaleFor({}); },
                argument_count, arguments);
  QApplication application(argument_count, arguments);
  SetUpLook(application);
  if (const std::string hint = DesktopFontHint(); !hint.empty()) Complain(hint);
  SetUpSpeech();
  const Zoom zoom = zoom_for(AskScreen().value_or(ScreenFacts{}));
  SetScale(zoom.ScaleFor({}), zoom.TheScreen());
  Desktop desktop(program, zoom, texts);
  desktop.TellOfLanguage(PreferLanguage);
  desktop.TellOfPainting(
      [&sound](const Screen& screen) { sound.Note("painted " + screen.Name()); });
  return desktop.Run();
}

}  // namespace

int main(int argument_count, char** arguments) {
  try {
    const Options options = ReadOptions(ProgramArguments(argument_count, arguments));
    if (!options.Error.empty()) {
      Complain(options.Error);
      return kBadCommandLine;
    }
    Translator texts;
    if (const std::string problem = LanguageProblem(texts, options.Language); !problem.empty()) {
      Complain(problem);
      return kBadCommandLine;
    }
    if (options.WantsHelp) {
      std::fputs(HelpText().c_str(), stdout);
      return EXIT_SUCCESS;
    }
    if (!HasDisplay()) {
      Complain(
          "there is no display; start the game in a desktop session (neither DISPLAY nor "
          "WAYLAND_DISPLAY is set).");
      return kNoDisplay;
    }
    qInstallMessageHandler(OnToolkitMessage);
    texts.Choose(BestLanguage(
        texts, {options.Language, qEnvironmentVariable("ORVANE_LANGUAGE").toStdString(),
                PreferredLanguage()}));
    return RunGame(options, texts, argument_count, arguments);
  } catch (const std::exception& failure) {
    Complain(failure.what());
    return EXIT_FAILURE;
  }
}
