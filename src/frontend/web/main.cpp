// The way between the page's scripts and the game: what they call, and what they are asked.
#include <emscripten.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "src/frontend/shared/text_fit.h"
#include "src/frontend/shared/texts/language_choice.h"
#include "src/frontend/web/content.h"
#include "src/frontend/web/mirror/json.h"
#include "src/frontend/web/page_scale.h"
#include "src/frontend/web/services/brought_saves.h"
#include "src/frontend/web/services/save_check.h"
#include "src/frontend/web/web_game.h"
#include "src/ui/reach.h"

// What the scripts do, in page_library.js.
extern "C" {
double PageNow();
void PageKeep(int number, const char* name, const char* bytes, int size);
void PageLoadSound(const char* alias, const char* file);
void PageDropSound(const char* alias);
void PageStartSound(const char* alias, double delay);
void PagePad(int what, int how);
int PageCountLines(double width);
}

namespace orvane {
namespace {

class ScriptPage : public Page {
 public:
  double Now() override { return PageNow(); }
  void Keep(int number, const std::string& name, const std::string& bytes) override {
    PageKeep(number, name.c_str(), bytes.data(), static_cast<int>(bytes.size()));
  }
  void LoadSound(const std::string& alias, const std::string& file) override {
    PageLoadSound(alias.c_str(), file.c_str());
  }
  void DropSound(const std::string& alias) override { PageDropSound(alias.c_str()); }
  void StartSound(const std::string& alias, double delay) override {
    PageStartSound(alias.c_str(), delay);
  }
  void MoveByPad(Direction direction) override { PagePad(0, static_cast<int>(direction)); }
  void AcceptByPad() override { PagePad(1, 0); }
  void GoBackByPad() override { PagePad(2, 0); }
  void OpenMenusByPad() override { PagePad(3, 0); }
  void TurnByPad(int step) override { PagePad(4, step); }
};

// One page, one game.
struct Whole {
  ScriptPage Scripts;
  Translator Texts;
  std::unique_ptr<WebGame> Game;
  std::string Given;     // the last text or bytes that the scripts have asked for
  BroughtSaves Brought;  // what the player has brought last
};

Whole& TheWhole() {
  static Whole whole;
  return whole;
}

WebGame& Game() {
  return *TheWhole().Game;
}

// Text and bytes stay where they are until the scripts ask for others.
const char* Give(std::string given) {
  TheWhole().Given = std::move(given);
  return TheWhole().Given.c_str();
}

void Send(const std::function<void(Program&)>& event) {
  Game().Send(event);
}

Screen* ScreenOf(int number) {
  return Game().TheMirror().ScreenOf(number);
}

Screen* ActiveScreen() {
  return Game().TheProgram().TheStage().Active();
}

// The control of that number, if it is of that kind; otherwise null.
template <class Kind>
Kind* Find(int number) {
  return dynamic_cast<Kind*>(Game().TheMirror().ControlOf(number));
}

int NumberOf(const Control* control) {
  return control == nullptr ? -1 : Game().TheMirror().NumberOf(control);
}

}  // namespace
}  // namespace orvane

using namespace orvane;

#define EXPORT extern "C" EMSCRIPTEN_KEEPALIVE

// ---- the start

// A game with files as they are before anybody plays. `seed` fixes chance, -1 does not; `speed` as
// GameSpeed reads it.
EXPORT void Make(double seed, const char* speed) {
  setenv("ORVANE_SPEED", speed, 1);
  std::optional<uint32_t> fixed;
  if (seed >= 0) fixed = static_cast<uint32_t>(seed);
  TheWhole().Game = std::make_unique<WebGame>(TheWhole().Scripts, fixed, TheWhole().Texts);
  for (const ContentFile& file : AllContentFiles()) {
    Game().Files().Files[file.Name] = std::string(file.Bytes, file.Size);
  }
}

// ---- the language

// What is shown for a text of the page's own.
EXPORT const char* Shown(const char* text) {
  return Give(TheWhole().Texts.Of(text));
}

// The names of the languages by their codes.
EXPORT const char* Languages() {
  const Translator& texts = TheWhole().Texts;
  std::string out;
  {
    Json json(out, Json::Form::Object);
    for (const std::string& code : texts.Languages()) json.Add(code.c_str(), texts.NameOf(code));
  }
  return Give(out);
}

// Shows the first language that there is of those wished for, their codes with commas between;
// returns its code.
EXPORT const char* ChooseLanguage(const char* wishes) {
  std::istringstream list(wishes);
  std::vector<std::string> codes;
  for (std::string code; std::getline(list, code, ',');) codes.push_back(code);
  TheWhole().Texts.Choose(BestLanguage(TheWhole().Texts, codes));
  return TheWhole().Texts.Language().c_str();
}

EXPORT void PutFile(const char* name, const char* bytes, int size) {
  Game().Files().Files[name] = std::string(bytes, static_cast<size_t>(size));
}

EXPORT void SetSoundLength(const char* file, double milliseconds) {
  Game().Sound().SetLength(file, milliseconds);
}

EXPORT const char* Begin() {
  Game().Begin();
  return Give(Game().TheMirror().Nature());
}

// ---- the course of things

EXPORT const char* Changes() {
  return Game().Changes().c_str();
}

EXPORT int HeldFor() {
  return Game().HeldFor();
}

EXPORT void EndHold() {
  Game().TheProgram().EndHold();
}

EXPORT int Wait() {
  return Game().Wait();
}

EXPORT int Serve(double most) {
  return Game().Serve(most);
}

// A tick of a timer that is on, by the names of its screen and its own, whenever it would be due:
// so a recorded game is repeated. 0 where there is no such tick.
EXPORT int Tick(const char* screen_name, const char* name) {
  const Screen* screen = Game().TheProgram().TheStage().Find(screen_name);
  auto* timer = screen == nullptr ? nullptr : dynamic_cast<Timer*>(screen->Find(name));
  if (timer == nullptr || !timer->Ticks()) return 0;
  Send([timer](Program& p) { p.Tick(*timer); });
  return 1;
}

EXPORT void Kept(int number, const char* failure) {
  Game().Kept(number, failure);
}

// The exit status of a game that has ended, or -1.
EXPORT int Ended() {
  Program& program = Game().TheProgram();
  return program.HasEnded() ? program.ExitStatus() : -1;
}

// ---- what a player does

EXPORT void Click(int number) {
  if (auto* control = Find<Control>(number)) Send([control](Program& p) { p.Click(*control); });
}

EXPORT void ClickItem(int number) {
  if (auto* item = Find<MenuItem>(number)) Send([item](Program& p) { p.ClickItem(*item); });
}

EXPORT void ClickAt(int number, double x, double y) {
  if (auto* picture = Find<PictureBox>(number)) {
    Send([picture, x, y](Program& p) { p.ClickAt(*picture, x, y); });
  }
}

EXPORT void Choose(int number, int row) {
  auto* list = Find<Control>(number);
  if (list == nullptr) return;
  Game().TheMirror().Forget(*list);
  Send([list, row](Program& p) { p.Choose(*list, row); });
}

EXPORT void SelectTab(int number, int tab) {
  if (auto* tabs = Find<TabStrip>(number)) {
    Send([tabs, tab](Program& p) { p.SelectTab(*tabs, tab); });
  }
}

EXPORT void EnterText(int number, const char* text) {
  if (auto* field = Find<TextBox>(number)) {
    Send([field, text](Program& p) { p.EnterText(*field, text); });
  }
}

EXPORT void Slide(int number, int value) {
  if (auto* slider = Find<Slider>(number)) {
    Send([slider, value](Program& p) { p.Slide(*slider, value); });
  }
}

EXPORT void Press(int number, double x, double y) {
  Screen* screen = ScreenOf(number);
  if (screen == nullptr || !IsBare(*screen, {x, y})) return;
  Send([screen](Program& p) { p.Press(*screen); });
}

EXPORT void Close(int number) {
  if (Screen* screen = ScreenOf(number)) Send([screen](Program& p) { p.Close(*screen); });
}

EXPORT void Confirm() {
  if (Screen* screen = ActiveScreen()) Send([screen](Program& p) { p.Confirm(*screen); });
}

EXPORT void GoBack() {
  if (Screen* screen = ActiveScreen()) Send([screen](Program& p) { p.GoBack(*screen); });
}

EXPORT void Activate(int number) {
  if (Screen* screen = ScreenOf(number)) Send([screen](Program& p) { p.Activate(*screen); });
}

EXPORT void Answer(int answer) {
  Send([answer](Program& p) { p.Answer(static_cast<BoxAnswer>(answer)); });
}

// ---- keys and pads

EXPORT void SetKeyFacts(int page_has_keys, int menu_is_open, int menu_bar_has_keys) {
  Game().SetKeyFacts({page_has_keys != 0, menu_is_open != 0, menu_bar_has_keys != 0});
}

// As WebGame::TakeKey has it.
EXPORT int TakeKey(int code, int is_press, int repeats, int types) {
  const bool taken =
      Game().TakeKey(static_cast<uint32_t>(code), is_press != 0, repeats != 0, types != 0);
  return taken ? 1 : 0;
}

// The row that a key leads to in a list, as ListKeys has it; -2 for a key that is none of a list's.
EXPORT int ListKey(int number, int row, int page, const char* key, double time) {
  const auto* list = Find<ListBox>(number);
  const auto* files = Find<FileListBox>(number);
  if (list == nullptr && files == nullptr) return -2;
  const std::vector<std::string>& rows = list != nullptr ? list->Rows : files->Rows;
  return Game().KeysOfList().Take(rows, row, page, key, time).value_or(-2);
}

EXPORT void FollowKeys() {
  Game().FollowKeys();
}

// As WebGame::TakeThumb has it: the direction in which the cross is held, or -1.
EXPORT int TakeThumb(double x, double y, int touches) {
  const auto direction = Game().TakeThumb(x, y, touches != 0);
  return direction ? static_cast<int>(*direction) : -1;
}

// `buttons` has a bit for each button of a pad as browsers number them.
EXPORT void TakePad(int buttons, double x, double y) {
  constexpr std::array<int, kPadButtons> places{14, 12, 15, 13, 0, 1, 9, 4, 5};  // of PadButton
  PadState state{};
  for (size_t i = 0; i < kPadButtons; ++i) state[i] = (buttons >> places[i] & 1) != 0;
  Game().TakePad(state, x, y);
}

// ---- the keyboard's place

EXPORT int FollowFocus(int before) {
  return NumberOf(Game().FollowFocus(Find<Control>(before)));
}

EXPORT int Neighbour(int number, int direction) {
  const auto* control = Find<Control>(number);
  if (control == nullptr) return -1;
  return NumberOf(
      Game().OrderOf(control->Owner()).Neighbour(*control, static_cast<Direction>(direction)));
}

// Opens the next tab of the active screen, or with -1 the one before; 0 where it has none.
EXPORT int TurnTab(int step) {
  const Screen* screen = ActiveScreen();
  if (screen == nullptr) return 0;
  const auto turn = Game().OrderOf(*screen).NextTab(step);
  if (!turn) return 0;
  Send([&turn](Program& p) { p.SelectTab(*turn->Tabs, turn->Tab); });
  return 1;
}

// ---- how things are shown

// What the letters of a text of this width are multiplied by so that it goes into `room`.
EXPORT double Squeeze(double width, double room) {
  return SqueezeInto(width, room);
}

// The same for a text of several lines, which PageCountLines tells.
EXPORT double SqueezeLines(double width, double height, int size) {
  const double pitch = OwnLineHeight(size);
  return FitLines([](double each) { return PageCountLines(each); }, width, height, pitch, pitch)
      .Squeeze;
}

// As PageScale has it. A screen that covers the display leaves no room for its title.
EXPORT double ScaleFor(double width, double height, double ratio, double zoom, int full_screen,
                       int is_handheld) {
  constexpr double title = 30;  // in the page's pixels, with the border
  std::vector<Extent> windows;
  std::vector<Span> shown;
  for (const Screen* screen : Game().TheProgram().TheStage().Screens()) {
    // Dialogs, and a film that has the display for itself, count when they come.
    const bool is_place = screen->IsScene && screen->OwnSurface == nullptr;
    if (!is_place && !screen->IsVisible()) continue;
    const Extent inside{static_cast<double>(screen->Width), static_cast<double>(screen->Height)};
    const double menu = shown.empty() ? kMenuHeight : 0;
    if (is_place) windows.push_back(inside);
    const bool is_bare = screen->IsScene && (full_screen != 0 || is_handheld != 0);
    shown.push_back({{inside.Width, inside.Height + menu}, is_bare ? 0 : title * ratio});
  }
  return PageScale({{width, height}, ratio, zoom, full_screen != 0, is_handheld != 0}, windows,
                   shown);
}

// ---- saves

EXPORT int GivenSize() {
  return static_cast<int>(TheWhole().Given.size());
}

EXPORT const char* FileOf(const char* name) {
  return Give(Game().Files().Files[name]);
}

// The record of the play, which tells who mends the game how an error came about.
EXPORT const char* Replay() {
  return Give(Game().Replay());
}

// All slots, as JSON: their names and what they are of.
EXPORT const char* ListSaves() {
  std::string out;
  {
    Json list(out, Json::Form::List);
    for (const std::string& name : Game().Files().List("*.sav")) {
      std::string entry;
      {
        Json json(entry, Json::Form::Object);
        json.Add("name", name);
        json.Add("summary", SaveSummary(Game().Files().Files[name]));
      }
      list.AddRaw(entry);
    }
  }
  return Give(out);
}

// All slots as one archive.
EXPORT const char* ArchiveOfSaves() {
  NamedFiles saves;
  for (const std::string& name : Game().Files().List("*.sav")) {
    saves.emplace_back(name, Game().Files().Files[name]);
  }
  return Give(WriteZip(saves));
}

// Reads what a player has brought, as ReadBrought has it. Answers with what is wrong with it, and
// the names of its saves.
EXPORT const char* Bring(const char* name, const char* bytes, int size, const char* slot) {
  BroughtSaves& brought = TheWhole().Brought;
  brought = ReadBrought(name, {bytes, static_cast<size_t>(size)}, slot);
  std::string out;
  {
    Json json(out, Json::Form::Object);
    json.Add("problem", brought.Problem);
    std::string names;
    {
      Json list(names, Json::Form::List);
      for (const auto& save : brought.Saves) list.Add(std::string_view(save.first));
    }
    json.AddRaw("names", names);
  }
  return Give(out);
}

EXPORT const char* BroughtSave(int index) {
  return Give(TheWhole().Brought.Saves.at(static_cast<size_t>(index)).second);
}

// Takes all of it into the game's files.
EXPORT void TakeBrought() {
  for (const auto& [name, bytes] : TheWhole().Brought.Saves) Game().Files().Files[name] = bytes;
}
