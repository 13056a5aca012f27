#include "src/core/main_screen.h"

#include "src/core/game.h"
#include "src/core/main_activation.h"
#include "src/core/quit.h"
#include "src/core/sheets.h"
#include "src/core/start_up.h"

namespace orvane {
namespace {

// The walk moves 4 pixels a tick. The game asks for a tick every 5 ms, far more than a pleasant
// walk; 33 ms make about 30 steps a second, 120 pixels, a screen's width in four seconds.
constexpr int kWalkInterval = 5;
constexpr int kWalkPace = 33;
constexpr int kMessageInterval = 50;

const Font kTitleFont{Mincho, 36, true};
const Font kPanelFont{Gothic, 9.75, true};
const Font kItemFont{Gothic, 14.25, true};

// The field's surface, with the title picture in its left top corner.
Surface TitleSurface() {
  Surface surface(481, 304);
  const Surface title = Sheet("title");
  BitBlt(surface, 0, 0, title.Width(), title.Height(), title, 0, 0, RasterOp::SRCCOPY);
  return surface;
}

// Sheets stand below the visible part of the window.
constexpr Place kOutOfSight{0, 600, 16, 16};

}  // namespace

MainScreen::MainScreen(Stage& stage, Game& game)
    : Screen(stage, "Main", "Orvane", 496, 303),
      Picture1(*this, "Picture1", {8, 0, 481, 304}, {TitleSurface()}),
      Label4(Picture1, "Label4", {97, 90, 303, 48},
             {"Orvane", Rgb(128, 128, 128), kTitleFont, Align::Centre}),
      Label1(Picture1, "Label1", {96, 88, 301, 48},
             {"Orvane", Rgb(224, 224, 224), kTitleFont, Align::Centre}),
      Label3(Picture1, "Label3", {188, 144, 113, 13},
             {"- オルベイン -", Rgb(0, 192, 192), {Gothic, 9.75}, Align::Centre}),
      Label2(Picture1, "Label2", {8, 264, 161, 36}, {"", Rgb(192, 192, 192)}),
      Command1(Picture1, "Command1", {176, 184, 137, 33}, {"始めから"}),
      Picture5(Picture1, "Picture5", {64, 8, 338, 66}, {Sheet("message_window"), 1}),
      Label8(Picture5, "Label8", {8, 8, 233, 49}, {"", 0, kPanelFont}),
      Picture9(Picture5, "Picture9", {264, 8, 48, 48}, {Surface(48, 48, Rgb(192, 192, 192))}),
      Label7(Picture5, "Label7", {312, 40, 17, 17}, {"↓", Rgb(255, 128, 128), {Gothic, 12, true}}),
      Picture6(Picture1, "Picture6", {0, 256, 482, 50}, {Sheet("status_panel"), 1}),
      Picture7(Picture6, "Picture7", {0, 0, 50, 50}, {Sheet("face_man"), 1}),
      Picture8(Picture6, "Picture8", {240, 0, 50, 50}, {Sheet("face_woman"), 1}),
      Picture2(*this, "Picture2", kOutOfSight, {Sheet("hero_man")}),
      Picture3(*this, "Picture3", kOutOfSight, {Sheet("hero_woman")}),
      Picture4(*this, "Picture4", kOutOfSight, {Sheet("tiles")}),
      m1(*this, "m1", "ファイル"),
      m11(m1, "m11", "ロード"),
      m12(m1, "m12", "保存"),
      m13(m1, "m13", "-"),
      m14(m1, "m14", "終了"),
      m2(*this, "m2", "アイテム"),
      m21(m2, "m21", "装備・はずす"),
      m22(m2, "m22", "使う・捨てる"),
      m3(*this, "m3", "情報"),
      m32(m3, "m32", "キャラデータ"),
      m33(m3, "m33", "環境設定"),
      m34(m3, "m34", "-"),
      m35(m3, "m35", "バージョン情報"),
      Timer1(*this, "Timer1", kWalkInterval, kWalkPace),
      Timer2(*this, "Timer2", kMessageInterval),
      Timer3(*this, "Timer3", kMessageInterval),
      game_(game) {
  IsScene = true;
  Label6.Add(0, Picture5, Place{32, 24, 161, 25}, LabelValues{"", Rgb(0, 0, 192), kItemFont});
  Label6.Add(1, Picture5, Place{200, 24, 121, 25}, LabelValues{"", 0, kItemFont});
  Label5.Add(0, Picture6, Place{64, 8, 169, 17}, LabelValues{"", 0, kPanelFont});
  Label5.Add(1, Picture6, Place{64, 24, 169, 17}, LabelValues{"", 0, kPanelFont});
  Label5.Add(2, Picture6, Place{304, 8, 169, 17}, LabelValues{"", 0, kPanelFont});
  Label5.Add(3, Picture6, Place{304, 24, 169, 17}, LabelValues{"", 0, kPanelFont});
  Picture5.Visible = false;
  Picture6.Visible = false;
  Label8.Visible = false;
  Picture9.Visible = false;
  for (PictureBox* sheet : {&Picture2, &Picture3, &Picture4}) sheet->Visible = false;
}

void MainScreen::OnLoad() {
  StartUp(game_);
}

void MainScreen::OnActivate(bool) {
  ActivateMain(game_);
}

void MainScreen::OnClose() {
  AskToCloseMain(game_);
}

}  // namespace orvane
