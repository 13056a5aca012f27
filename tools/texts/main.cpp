// orvane-texts FOLDER TABLE.csv COMPOSED.pot SOURCE ...: writes all texts of the game as a template
// of a catalogue: those of its models and tables with remarks on where they stand and how long they
// may be, and those that stand in sources alone. FOLDER is the game folder, TABLE.csv the table of
// items, COMPOSED.pot has the texts that are put together: a literal that is a part of one is no
// text of its own. tools/texts.sh does the rest.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "src/base/text.h"
#include "src/battle/rules/enemy_table.h"
#include "src/battle/skill_table.h"
#include "src/frontend/shared/faces.h"
#include "src/frontend/shared/spoken_names.h"
#include "src/frontend/shared/text_fit.h"
#include "src/frontend/shared/texts/catalogue.h"
#include "src/frontend/shared/texts/control_texts.h"
#include "src/game/program.h"
#include "src/platform/folder_storage.h"
#include "src/platform/path_text.h"
#include "src/platform/quiet_services.h"
#include "src/ui/controls.h"
#include "tools/files.h"
#include "tools/items/item_table.h"
#include "tools/texts/literals.h"
#include "tools/texts/template.h"

namespace orvane::texts {
namespace {

const char* KindName(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::Label:
      return "text";
    case ControlKind::Button:
      return "button";
    case ControlKind::Frame:
      return "title of the frame";
    case ControlKind::Menu:
      return control.Parent() == nullptr ? "menu" : "menu item";
    default:
      return "control";
  }
}

// About how many letters of a Latin face go into a control: they are half as wide as high. Only
// texts go on in further lines.
int Letters(const Control& control, const Font& font) {
  constexpr double wide = 0.5;
  const int size = PixelSize(font);
  const bool is_text = control.Kind() == ControlKind::Label;
  const int lines =
      is_text ? std::max(1, static_cast<int>(control.At.Height) / OwnLineHeight(size)) : 1;
  return lines * static_cast<int>(control.At.Width / (wide * size));
}

std::string RemarkOn(const Control& control) {
  std::string remark = control.Owner().Name() + ": " + KindName(control);
  if (!control.Name().empty()) remark += ' ' + control.Name();
  if (control.Kind() == ControlKind::Menu) return remark + '.';
  const Font font =
      control.Kind() == ControlKind::Label ? static_cast<const Label&>(control).Face : Font{};
  return remark + ", " + std::to_string(std::lround(control.At.Width)) + " by " +
         std::to_string(std::lround(control.At.Height)) + " pixels: about " +
         std::to_string(Letters(control, font)) + " letters.";
}

void AddScreens(const Stage& stage, Template& texts) {
  for (const Screen* screen : stage.Screens()) {
    texts.Add(screen->Caption, screen->Name() + ": title of the window.");
    for (const Control* control : screen->Controls()) {
      for (const std::string& text : TextsOf(*control)) texts.Add(text, RemarkOn(*control));
      texts.Add(SpokenName(*control), "What screen readers call " + screen->Name() + "'s " +
                                          control->Name() + ". Any length.");
    }
  }
}

void AddTables(State& state, Template& texts) {
  int number = 0;
  for (const std::string& line : state.StoryText) {
    texts.Add(line, "Line " + std::to_string(number) + " of the story; the " +
                        (number % 2 == 0 ? "man" : "woman") +
                        " speaks. Three lines of 36 letters, better two.");
    ++number;
  }
  FillEnemyTable(state);
  FillTechniqueTable(state);
  FillSpellTable(state);
  for (const auto& name : state.EnemyName) {
    texts.Add(name.Full(), "An enemy, in the list of those to strike: at most 20 letters.");
  }
  for (const std::string& name : state.WazaName) {
    texts.Add(name, "A technique: in the battle with its cost, and in a list: at most 17 letters.");
  }
  for (const std::string& name : state.MagicName) {
    texts.Add(name, "A spell: in the battle with its cost, and in a list: at most 17 letters.");
  }
}

// The messages of a template, each on one line.
std::vector<std::string> Messages(const std::string& bytes) {
  std::istringstream lines(bytes);
  std::vector<std::string> messages;
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("msgid")) continue;
    for (std::string& text : Literals(line)) messages.push_back(std::move(text));
  }
  return messages;
}

// The lines of a text, without the blanks around them.
std::vector<std::string> LinesOf(std::string_view text) {
  std::istringstream lines{std::string(text)};
  std::vector<std::string> all;
  for (std::string line; std::getline(lines, line);) all.push_back(Trim(line));
  return all;
}

// The parts of a composed text around its places.
void AddParts(std::string_view text, std::set<std::string>& parts) {
  while (!text.empty()) {
    const size_t end = std::min(text.find('{'), text.size());
    for (const std::string& line : LinesOf(text.substr(0, end))) parts.insert(line);
    text.remove_prefix(std::min(text.size(), text.find('}', end)));
    if (!text.empty()) text.remove_prefix(1);
  }
}

// Whether a literal is only a part of texts that are known: of a composed one, or at an end of one
// of the models'.
bool IsPart(const std::string& literal, const std::set<std::string>& parts, const Template& texts) {
  const std::string bare = Trim(literal);
  const auto lines = LinesOf(literal);
  const auto is_known = [&parts](const std::string& line) { return parts.contains(line); };
  if (std::all_of(lines.begin(), lines.end(), is_known)) return true;
  return std::any_of(texts.Texts().begin(), texts.Texts().end(), [&bare](const std::string& text) {
    return text != bare && (text.starts_with(bare) || text.ends_with(bare));
  });
}

void AddLiterals(const std::vector<std::string>& sources, const std::set<std::string>& parts,
                 Template& texts) {
  std::vector<std::pair<std::string, std::string>> found;
  for (const std::string& source : sources) {
    const std::string words = ReadFile(PathOf(source));
    for (const std::string& text : source.ends_with(".html") ? PageTexts(words) : Literals(words)) {
      if (!texts.Has(text) && !IsPart(text, parts, texts)) found.emplace_back(text, source);
    }
  }
  for (const auto& [text, source] : found) texts.Add(text, "In " + source + '.');
}

Template Collected(const std::string& folder, const std::string& table) {
  Template texts;
  texts.Add(kOwnLanguageName,
            "Not Japanese, but the name of the catalogue's own language in that language.");
  QuietServices services;
  FolderStorage files(PathOf(folder));
  Program program({services.Sound, services.Luck, files});
  AddScreens(program.TheStage(), texts);
  AddTables(program.TheState(), texts);
  for (const items::Item& item : items::ReadTable(ReadFile(PathOf(table)))) {
    texts.Add(item.Name, "An item, in lists and in the line of what is worn: at most 18 letters.");
  }
  return texts;
}

}  // namespace
}  // namespace orvane::texts

int main(int count, char** words) {
  using namespace orvane::texts;
  if (count < 4) {
    std::fputs("usage: orvane-texts FOLDER TABLE.csv COMPOSED.pot SOURCE ...\n", stderr);
    return 2;
  }
  try {
    Template texts = Collected(words[1], words[2]);
    std::set<std::string> parts;
    for (const std::string& text : Messages(orvane::ReadFile(words[3]))) AddParts(text, parts);
    AddLiterals({words + 4, words + count}, parts, texts);
    std::fputs(texts.Written().c_str(), stdout);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "orvane-texts: %s\n", error.what());
    return 1;
  }
  return 0;
}
