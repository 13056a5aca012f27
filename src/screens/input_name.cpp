#include "src/screens/input_name.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "src/core/new_game.h"
#include "src/core/sheets.h"

namespace orvane {
namespace {

constexpr int kLongestName = 6;

// Whether a name says nothing: no characters, or blanks of either width alone.
bool IsBlank(const std::string& name) {
  const std::vector<std::string_view> characters = Characters(name);
  return std::all_of(characters.begin(), characters.end(), [](std::string_view character) {
    return character == " " || character == "　";
  });
}

// Why these names cannot be taken, or null.
const char* Objection(const std::string& first, const std::string& second) {
  if (IsBlank(first) || IsBlank(second)) return "名前を入力してください。";
  if (first == second) return "同じ名前です。";
  if (CharCount(first) > kLongestName || CharCount(second) > kLongestName) {
    return "文字制限を超えています。";
  }
  return nullptr;
}

}  // namespace

InputNameScreen::InputNameScreen(Game& game)
    : Screen(game.stage, "InputName", "名前の入力", 336, 158),
      Request(*this, "Label1", {16, 8, 305, 17}, {"キャラクターの名前を入力してください"}),
      LengthHint(*this, "Label4", {216, 32, 73, 17}, {"（６文字以内）"}),
      ManCaption(*this, "Label2", {88, 48, 73, 17}, {"主人公（男）"}),
      WomanCaption(*this, "Label3", {88, 104, 65, 17}, {"主人公（女）"}),
      ManFace(*this, "Picture1", {24, 40, 50, 50}, {Sheet("face_man"), 1}),
      WomanFace(*this, "Picture2", {24, 96, 50, 50}, {Sheet("face_woman"), 1}),
      OKButton(*this, "OKButton", {240, 80, 81, 25}, {"OK"}),
      CancelButton(*this, "CancelButton", {240, 112, 81, 25}, {"ｷｬﾝｾﾙ"}),
      game_(game) {
  Names.Add(0, *this, Place{88, 64, 129, 18});
  Names.Add(1, *this, Place{88, 120, 129, 18});
  OKButton.OnClick = [this] { Accept(); };
  EnterButton = &OKButton;
  BackButtons = {&CancelButton};
  CancelButton.OnClick = [this] { TheStage().Unload(*this); };
}

void InputNameScreen::OnActivate(bool) {
  NewGameDefaults(game_);
}

void InputNameScreen::OnUnload() {
  TheStage().Hide(*this);
  Names[0].Text.clear();
  Names[1].Text.clear();
}

void InputNameScreen::Accept() {
  State& state = game_.state;
  for (int hero = 0; hero < 2; ++hero) state.HeroNameText[hero] = Trim(Names[hero].Text);
  if (const char* objection = Objection(state.HeroNameText[0], state.HeroNameText[1])) {
    return Warn(game_, objection);
  }
  for (int hero = 0; hero < 2; ++hero) state.HeroName[hero] = state.HeroNameText[hero];
  game_.Main.BeginButton.Visible = false;
  state.GameStarted = kTrue;
  game_.Main.LoadItem.Enabled = false;
  TheStage().Unload(*this);
}

}  // namespace orvane
