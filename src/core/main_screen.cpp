#include "src/core/main_screen.h"

#include "src/core/game.h"
#include "src/core/main_activation.h"
#include "src/core/quit.h"
#include "src/core/sheets.h"

namespace orvane {
namespace {

// The walk moves 4 pixels a tick. The game asks for a tick every 5 ms, far more than a pleasant
// walk; 33 ms make about 30 steps a second, 120 pixels, a screen's width in four seconds.
constexpr int kWalkInterval = 5;
constexpr int kWalkPace = 33;
constexpr int kMessageInterval = 50;

const Font kTitleFont{kMincho, 36, true};
const Font kPanelFont{kGothic, 9.75, true};
const Font kItemFont{kGothic, 14.25, true};

// The field's surface, with the title picture in its top left corner.
Surface TitleSurface() {
  Surface surface(481, 304);
  const Surface title = Sheet("title");
  BitBlt(surface, 0, 0, title.Width(), title.Height(), title, 0, 0, Blit::Copy);
  return surface;
}

// Sheets stand below the visible part of the window.

}  // namespace

MainScreen::MainScreen(Stage& stage, Game& game)
    : Screen(stage, "Main", "Orvane", 496, 303),
      FieldPicture(*this, "Picture1", {8, 0, 481, 304}, {TitleSurface()}),
      TitleShadow(FieldPicture, "Label4", {97, 90, 303, 48},
                  {"Orvane", Rgb(128, 128, 128), kTitleFont, Align::Centre}),
      TitleLabel(FieldPicture, "Label1", {96, 88, 301, 48},
                 {"Orvane", Rgb(224, 224, 224), kTitleFont, Align::Centre}),
      TitleReading(FieldPicture, "Label3", {188, 144, 113, 13},
                   {"- オルベイン -", Rgb(0, 192, 192), {kGothic, 9.75}, Align::Centre}),
      Copyright(FieldPicture, "Label2", {8, 264, 161, 36}, {"", Rgb(192, 192, 192)}),
      BeginButton(FieldPicture, "Command1", {176, 184, 137, 33}, {"始めから"}),
      MessageWindow(FieldPicture, "Picture5", {64, 8, 338, 66}, {Sheet("message_window"), 1}),
      StoryLine(MessageWindow, "Label8", {8, 8, 233, 49}, {"", 0, kPanelFont}),
      SpeakerFace(MessageWindow, "Picture9", {264, 8, 48, 48},
                  {Surface(48, 48, Rgb(192, 192, 192))}),
      GoOnMark(MessageWindow, "Label7", {312, 40, 17, 17},
               {"↓", Rgb(255, 128, 128), {kGothic, 12, true}}),
      StatusPanel(FieldPicture, "Picture6", {0, 256, 482, 50}, {Sheet("status_panel"), 1}),
      ManFace(StatusPanel, "Picture7", {0, 0, 50, 50}, {Sheet("face_man"), 1}),
      WomanFace(StatusPanel, "Picture8", {240, 0, 50, 50}, {Sheet("face_woman"), 1}),
      ManSheet(*this, "Picture2", kOutOfSight, {Sheet("hero_man")}),
      WomanSheet(*this, "Picture3", kOutOfSight, {Sheet("hero_woman")}),
      TileSheet(*this, "Picture4", kOutOfSight, {Sheet("tiles")}),
      FileMenu(*this, "m1", "ファイル"),
      LoadItem(FileMenu, "m11", "ロード"),
      SaveItem(FileMenu, "m12", "保存"),
      FileSeparator(FileMenu, "m13", "-"),
      QuitItem(FileMenu, "m14", "終了"),
      ItemMenu(*this, "m2", "アイテム"),
      EquipmentItem(ItemMenu, "m21", "装備・はずす"),
      BagItem(ItemMenu, "m22", "使う・捨てる"),
      InfoMenu(*this, "m3", "情報"),
      HeroesItem(InfoMenu, "m32", "キャラデータ"),
      SettingsItem(InfoMenu, "m33", "環境設定"),
      InfoSeparator(InfoMenu, "m34", "-"),
      VersionItem(InfoMenu, "m35", "バージョン情報"),
      WalkTimer(*this, "Timer1", kWalkInterval, kWalkPace),
      MessageTimer(*this, "Timer2", kMessageInterval),
      StoryTimer(*this, "Timer3", kMessageInterval),
      game_(game) {
  IsScene = true;
  MessageLines.Add(0, MessageWindow, Place{32, 24, 161, 25},
                   LabelValues{"", Rgb(0, 0, 192), kItemFont});
  MessageLines.Add(1, MessageWindow, Place{200, 24, 121, 25}, LabelValues{"", 0, kItemFont});
  StatusValues.Add(0, StatusPanel, Place{64, 8, 169, 17}, LabelValues{"", 0, kPanelFont});
  StatusValues.Add(1, StatusPanel, Place{64, 24, 169, 17}, LabelValues{"", 0, kPanelFont});
  StatusValues.Add(2, StatusPanel, Place{304, 8, 169, 17}, LabelValues{"", 0, kPanelFont});
  StatusValues.Add(3, StatusPanel, Place{304, 24, 169, 17}, LabelValues{"", 0, kPanelFont});
  MessageWindow.Visible = false;
  StatusPanel.Visible = false;
  StoryLine.Visible = false;
  SpeakerFace.Visible = false;
  for (PictureBox* sheet : {&ManSheet, &WomanSheet, &TileSheet}) sheet->Visible = false;
}

void MainScreen::OnLoad() {
  game_.links.StartUp();
}

void MainScreen::OnActivate(bool) {
  ActivateMain(game_);
}

void MainScreen::OnClose() {
  AskToCloseMain(game_);
}

}  // namespace orvane
