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
             static_cast<int>(box.At.Height) - 2 * box.Edge, box.Picture, 0, 0, RasterOp::SRCCOPY);
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
  Screens() : game(".", quiet.All()), battle(game), ending(game) {}

  QuietServices quiet;
  Game game;
  BattleScreen battle;
  EndingScreen ending;
};

Windows::Windows(const Sheets& sheets) : sheets_(sheets), screens_(std::make_unique<Screens>()) {
  MainScreen& main = screens_->game.Main;
  main.Picture5.Picture = sheets.at("message_window");
  main.Picture6.Picture = sheets.at("status_panel");
  main.Picture7.Picture = sheets.at("face_man");
  main.Picture8.Picture = sheets.at("face_woman");
  BattleScreen& battle = screens_->battle;
  battle.Picture9.Picture = sheets.at("name_panel_hero");
  battle.Picture13.Picture = sheets.at("name_panel_enemy");
  battle.Picture10.Picture = sheets.at("victory_panel");
  screens_->ending.Picture2.Picture = sheets.at("ending_still");
  screens_->ending.Picture1.Picture = sheets.at("credits");
  screens_->game.stage.KeepDesigns();  // a screen goes back to them when it is shown
}

Windows::~Windows() = default;

Shown Windows::TheTitle() {
  MainScreen& main = screens_->game.Main;
  const Surface& title = sheets_.at("title");
  Surface field(main.Picture1.Picture.Width(), main.Picture1.Picture.Height());
  StretchBlt(field, {0, 0, 480, 320}, title, {0, 0, title.Width(), title.Height()},
             RasterOp::SRCCOPY);
  main.Picture1.Picture = field;
  return {"title as seen", Whole(main.Picture1)};
}

std::vector<Shown> Windows::OfTheField() {
  MainScreen& main = screens_->game.Main;
  main.Label5[0].Caption = "HP ：128/164";
  main.Label5[1].Caption = "MP ：7/38";
  main.Label5[2].Caption = "HP ：9999/9999";
  main.Label5[3].Caption = "MP ：9999/9999";
  std::vector<Shown> result = {{"status panel", Whole(main.Picture6)}};
  main.Label6[0].Caption = "ドラゴンソード";
  main.Label6[1].Caption = "を手に入れた";
  result.push_back({"message window, found", Whole(main.Picture5)});
  main.Label6[0].Caption = "HP・MP全回復！";
  main.Label6[1].Caption = "";
  result.push_back({"message window, healed", Whole(main.Picture5)});
  main.Label6[0].Visible = main.Label6[1].Visible = false;
  main.Label8.Visible = main.Picture9.Visible = true;
  main.Label8.Caption =
      "ああ、村のじじいどもが修行のために作った世界だ。俺たちが落ちた穴が入り口だったんだ。";
  main.Picture9.Picture = sheets_.at("face_man");
  result.push_back({"message window, the man", Whole(main.Picture5)});
  main.Label8.Caption = "ちょっと待って！なにか変よ…え？りゅ、龍が…もう一体！?";
  main.Picture9.Picture = sheets_.at("face_woman");
  result.push_back({"message window, the woman", Whole(main.Picture5)});
  return result;
}

std::vector<Shown> Windows::OfTheBattle() {
  BattleScreen& battle = screens_->battle;
  const FixedText<8> man = "アルト";
  const FixedText<8> woman = "セシリアーヌ";
  battle.Label24.Caption = "デス･スプリート";
  battle.Label20.Caption = "獄　炎";
  battle.Label21.Caption = "経験値　15000ポイント獲得！";
  battle.Label22[0].Caption = LeftChars(man.Full(), 6) + "LEVEL UP !";
  battle.Label22[1].Caption = LeftChars(woman.Full(), 6) + "LEVEL UP !";
  battle.Label25[0].Caption = LeftChars(man.Full(), 6) + " MASTER !";
  battle.Label25[1].Caption = LeftChars(woman.Full(), 6) + " MASTER !";
  for (int hero = 0; hero < 2; ++hero) {
    battle.Label22[hero].Visible = battle.Label25[hero].Visible = true;
  }
  std::vector<Shown> result;
  for (const char* ground : {"ground_open", "ground_waste", "ground_lair"}) {
    battle.Picture1.Picture = Ground(sheets_, ground);
    PutHeroes(battle.Picture1.Picture, sheets_);
    for (const bool won : {false, true}) {
      battle.Picture9.Visible = battle.Picture13.Visible = !won;
      battle.Picture10.Visible = won;
      result.push_back(
          {std::string(won ? "won on " : "names on ") + ground, Whole(battle.Picture1)});
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
    ending.Timer1.OnTick();
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
    StretchBlt(large, {0, 0, kLargeFace, kLargeFace}, face, {0, 0, kFace, kFace},
               RasterOp::SRCCOPY);
    result.push_back({std::string(name) + " at 80", large});
  }
  return result;
}

}  // namespace orvane::contact
