// The game on Windows: orvane [options], see --help.
#include <cstdlib>
#include <exception>
#include <string>

#include "src/frontend/shared/chance.h"
#include "src/frontend/shared/home.h"
#include "src/frontend/shared/instance.h"
#include "src/frontend/shared/kept_play.h"
#include "src/frontend/shared/options.h"
#include "src/frontend/shared/preferences.h"
#include "src/frontend/shared/texts/language_choice.h"
#include "src/frontend/windows/app/boxes.h"
#include "src/frontend/windows/app/front.h"
#include "src/frontend/windows/paint/fonts.h"
#include "src/game/program.h"
#include "src/platform/arguments.h"
#include "src/platform/folder_storage.h"
#include "src/platform/windows/wide_text.h"
#include "src/sound/sound_engine.h"

namespace {

using namespace orvane;

constexpr int kBadCommandLine = 2;

std::string LanguageVariable() {
  const wchar_t* value = _wgetenv(L"ORVANE_LANGUAGE");
  return Utf8(value != nullptr ? value : L"");
}

void PrepareControls() {
  const INITCOMMONCONTROLSEX kinds = {sizeof kinds,
                                      ICC_STANDARD_CLASSES | ICC_TAB_CLASSES | ICC_BAR_CLASSES};
  InitCommonControlsEx(&kinds);
}

int RunGame(const Options& options, Translator& texts) {
  const Home home = options.Folder ? Home{*options.Folder, {}, {}} : FindHome();
  const Instance instance(home.Folder);
  if (!instance.IsFirst()) {
    instance.CallFirst();
    return EXIT_SUCCESS;
  }
  if (const std::string problem = MakeReady(home); !problem.empty()) {
    ShowProblem(problem);
    return EXIT_FAILURE;
  }
  if (const std::string hint = Fonts::Hint(); texts.IsOwn() && !hint.empty()) ShowProblem(hint);
  SoundEngine sound;
  PlayersChance chance(options.Seed);
  FolderStorage files(home.Folder);
  KeptPlay play({sound, chance, files}, options.Record, home.Folder / kReplayAfterError);
  Program program(play.TheServices());
  play.Watch(program);
  Front front(program, texts, options.Scale, Wide(instance.Name()));
  front.TellOfLanguage(PreferLanguage);
  front.TellOfPainting([&sound](const Screen& screen) { sound.Note("painted " + screen.Name()); });
  return front.Run();
}

int Run() {
  const Options options = ReadOptions(ProgramArguments(0, nullptr));
  // A program with windows has no terminal.
  if (!options.Error.empty()) {
    ShowProblem(options.Error);
    return kBadCommandLine;
  }
  Translator texts;
  if (const std::string problem = LanguageProblem(texts, options.Language); !problem.empty()) {
    ShowProblem(problem);
    return kBadCommandLine;
  }
  if (options.WantsHelp) {
    ShowProblem(HelpText());
    return EXIT_SUCCESS;
  }
  texts.Choose(BestLanguage(texts, {options.Language, LanguageVariable(), PreferredLanguage()}));
  return RunGame(options, texts);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE /*program*/, HINSTANCE /*before*/, PWSTR /*line*/, int /*show*/) {
  PrepareControls();
  try {
    return Run();
  } catch (const std::exception& failure) {
    ShowProblem(failure.what());
    return EXIT_FAILURE;
  }
}
