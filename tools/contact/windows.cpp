#include "tools/contact/windows.h"

#include "src/base/text.h"
#include "src/battle/battle_screen.h"
#include "src/core/game.h"
#include "src/ending/ending.h"
#include "src/platform/quiet_services.h"
#include "tools/contact/text.h"

namespace orvane::contact {
namespace {

constexpr int kFace = 48;
constexpr int kLargeFace = 80;
constexpr Colour kEdge = 0x808080;

// Draws what stands on `holder`, or on the bare screen for null, whose inside begins at (left,
// top).
void PutContents(Surface& surface, const Screen& screen, const Control* holder, int left, int top) {
  for (const Control* control : screen.Controls()) {
    if (control->Parent() != holder || !control->Visible) continue;
    if (control->Kind() == ControlKind::Label) {
      WriteText(surface, left, top, static_cast<const Label&>(*control));
    } else if (control->Kind() == ControlKind::Picture) {
      const auto& box = static_cast<const PictureBox&>(*control);
      const int x = left + static_cast<int>(box.Left());
      const int y = top + static_cast<int>(box.Top());
      FillBox(surface, x, y, x + static_cast<int>(box.At.Width) - 1,
              y + static_cast<int>(box.At.Height) - 1, kEdge);
      BitBlt(surface, x + box.Edge, y + box.Edge, static_cast<int>(box.At.Width) - 2 * box.Edge,
             static_cast<int>(box.At.Height) - 2 * box.Edge, box.Picture, 0, 0, Blit::Copy);
      PutContents(surface, screen, &box, x + box.Edge, y + box.Edge);
    }
  }
}

// A picture with everything on it, without its border.
Surface Whole(const PictureBox& box) {
  Surface surface = box.Picture;
  PutContents(surface, box.Owner(), &box, 0, 0);
  return surface;
}

}  // namespace

struct Windows::Screens {
  Screens() : game(Quiet.All()), battle(game), ending(game) {}

  QuietServices Quiet;
  Game game;
  BattleScreen battle;
  EndingScreen ending;
};

Windows::Windows(const Sheets& sheets) : sheets_(sheets), screens_(std::make_unique<Screens>()) {
  MainScreen& main = screens_->game.Main;
  main.MessageWindow.Picture = sheets.at("message_window");
  main.StatusPanel.Picture = sheets.at("status_panel");
  main.ManFace.Picture = sheets.at("face_man");
  main.WomanFace.Picture = sheets.at("face_woman");
  BattleScreen& battle = screens_->battle;
  battle.HeroActionPanel.Picture = sheets.at("name_panel_hero");
  battle.EnemyActionPanel.Picture = sheets.at("name_panel_enemy");
  battle.VictoryPanel.Picture = sheets.at("victory_panel");
  screens_->ending.StillPicture.Picture = sheets.at("ending_still");
  screens_->ending.CreditsSheet.Picture = sheets.at("credits");
  screens_->game.stage.KeepDesigns();  // a screen goes back to them when it is shown
}

Windows::~Windows() = default;

Shown Windows::TheTitle() {
  MainScreen& main = screens_->game.Main;
  const Surface& title = sheets_.at("title");
  Surface field(main.FieldPicture.Picture.Width(), main.FieldPicture.Picture.Height());
  StretchBlt(field, {0, 0, 480, 320}, title, {0, 0, title.Width(), title.Height()}, Blit::Copy);
  main.FieldPicture.Picture = field;
  return {"title as seen", Whole(main.FieldPicture)};
}

std::vector<Shown> Windows::OfTheField() {
  MainScreen& main = screens_->game.Main;
  main.StatusValues[0].Caption = "HP ：128/164";
  main.StatusValues[1].Caption = "MP ：7/38";
  main.StatusValues[2].Caption = "HP ：9999/9999";
  main.StatusValues[3].Caption = "MP ：9999/9999";
  std::vector<Shown> result = {{"status panel", Whole(main.StatusPanel)}};
  main.MessageLines[0].Caption = "ドラゴンソード";
  main.MessageLines[1].Caption = "を手に入れた";
  result.push_back({"message window, found", Whole(main.MessageWindow)});
  main.MessageLines[0].Caption = "HP・MP全回復！";
  main.MessageLines[1].Caption = "";
  result.push_back({"message window, healed", Whole(main.MessageWindow)});
  main.MessageLines[0].Visible = main.MessageLines[1].Visible = false;
  main.StoryLine.Visible = main.SpeakerFace.Visible = true;
  main.StoryLine.Caption =
      "ああ、村のじじいどもが修行のために作った世界だ。俺たちが落ちた穴が入り口だったんだ。";
  main.SpeakerFace.Picture = sheets_.at("face_man");
  result.push_back({"message window, the man", Whole(main.MessageWindow)});
  main.StoryLine.Caption = "ちょっと待って！なにか変よ…え？りゅ、龍が…もう一体！?";
  main.SpeakerFace.Picture = sheets_.at("face_woman");
  result.push_back({"message window, the woman", Whole(main.MessageWindow)});
  return result;
}

std::vector<Shown> Windows::OfTheBattle() {
  BattleScreen& battle = screens_->battle;
  const FixedText<8> man = "アルト";
  const FixedText<8> woman = "セシリアーヌ";
  battle.EnemyActionName.Caption = "デス･スプリート";
  battle.HeroActionName.Caption = "獄　炎";
  battle.ExperienceGained.Caption = "経験値　15000ポイント獲得！";
  battle.LevelMessages[0].Caption = LeftChars(man.Full(), 6) + "LEVEL UP !";
  battle.LevelMessages[1].Caption = LeftChars(woman.Full(), 6) + "LEVEL UP !";
  battle.MasteryMessages[0].Caption = LeftChars(man.Full(), 6) + " MASTER !";
  battle.MasteryMessages[1].Caption = LeftChars(woman.Full(), 6) + " MASTER !";
  for (int hero = 0; hero < 2; ++hero) {
    battle.LevelMessages[hero].Visible = battle.MasteryMessages[hero].Visible = true;
  }
  std::vector<Shown> result;
  for (const char* ground : {"ground_open", "ground_waste", "ground_lair"}) {
    battle.Scene.Picture = Ground(sheets_, ground);
    PutHeroes(battle.Scene.Picture, sheets_);
    for (const bool won : {false, true}) {
      battle.HeroActionPanel.Visible = battle.EnemyActionPanel.Visible = !won;
      battle.VictoryPanel.Visible = won;
      result.push_back({std::string(won ? "won on " : "names on ") + ground, Whole(battle.Scene)});
    }
  }
  return result;
}

std::vector<Shown> Windows::OfTheEnding() {
  constexpr int between = 60;
  constexpr int ticks = 960;  // until the last card
  EndingScreen& ending = screens_->ending;
  screens_->game.stage.Show(ending);
  std::vector<Shown> result;
  for (int tick = 1; tick <= ticks; ++tick) {
    ending.ScrollTimer.OnTick();
    if (tick % between != 0 || tick == between) continue;
    Surface scene = *ending.OwnSurface;
    PutContents(scene, ending, nullptr, 0, 0);
    result.push_back({"ending, tick " + std::to_string(tick), std::move(scene)});
  }
  return result;
}

std::vector<Shown> Faces(const Sheets& sheets) {
  std::vector<Shown> result;
  for (const char* name : {"face_man", "face_woman"}) {
    const Surface& face = sheets.at(name);
    result.push_back({std::string(name) + " at 48", face});
    Surface large(kLargeFace, kLargeFace);
    StretchBlt(large, {0, 0, kLargeFace, kLargeFace}, face, {0, 0, kFace, kFace}, Blit::Copy);
    result.push_back({std::string(name) + " at 80", large});
  }
  return result;
}

}  // namespace orvane::contact
