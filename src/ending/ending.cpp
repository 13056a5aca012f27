#include "src/ending/ending.h"

#include <string>

#include "src/core/music.h"
#include "src/core/quit.h"
#include "src/core/sheets.h"

namespace orvane {
namespace {

constexpr int kWidth = 451;
constexpr int kHeight = 295;
constexpr int kInterval = 50;
constexpr int kLastStrip = 10;
constexpr int kLastCardAt = -50;
constexpr int kNone = -1;

// A strip: its mask by OR, and where it has one its image by AND, at the same place.
struct Strip {
  int Index;  // into CreditY
  int Start;
  int X;
  int Width, Height;
  int MaskX, MaskY;
  int ImageX, ImageY;
};

// In the order in which they are drawn.
constexpr Strip kStrips[] = {
    {0, 330, 24, 400, 64, 0, 64, 0, 0},
    {1, 450, 130, 200, 32, 0, 160, 0, 128},
    {5, 650, 130, 200, 32, 200, 160, 200, 128},
    {2, 510, 130, 200, 32, 0, 192, kNone, kNone},
    {3, 550, 130, 200, 32, 200, 192, kNone, kNone},
    {4, 590, 130, 200, 32, 0, 224, kNone, kNone},
    {6, 710, 130, 200, 32, 200, 224, kNone, kNone},
    {7, 750, 130, 200, 32, 0, 256, kNone, kNone},
    {8, 790, 130, 200, 32, 200, 256, kNone, kNone},
    {9, 850, 24, 400, 32, 0, 320, 0, 288},
    {10, 910, 24, 400, 32, 0, 352, kNone, kNone},
};

constexpr int kTitleRestY = 30;

void DrawStrip(Surface& scene, const Surface& sheet, const Strip& strip, int y) {
  BitBlt(scene, strip.X, y, strip.Width, strip.Height, sheet, strip.MaskX, strip.MaskY, Blit::Or);
  if (strip.ImageX == kNone) return;
  BitBlt(scene, strip.X, y, strip.Width, strip.Height, sheet, strip.ImageX, strip.ImageY,
         Blit::And);
}

}  // namespace

EndingScreen::EndingScreen(Game& game)
    : Screen(game.stage, "Ending", "ENDING", kWidth, kHeight),
      StillPicture(*this, "Picture2", kOutOfSight, {Sheet("ending_still")}),
      CreditsSheet(*this, "Picture1", kOutOfSight, {Sheet("credits")}),
      Presenter(*this, "Label1", {64, 264, 337, 25},
                {"Presented by Kelmark 2001 ", Rgb(0xE0, 0xE0, 0xE0), {kGothic, 12, true}}),
      ScrollTimer(*this, "Timer1", kInterval),
      game_(game),
      scene_(kWidth, kHeight) {
  IsScene = true;
  const LabelValues card{"", Rgb(255, 255, 255), {kGothic, 15.75, true}};
  CardLines.Add(0, *this, Place{112, 112, 225, 25}, card).Caption = "Thank you for playing";
  CardLines.Add(1, *this, Place{152, 152, 185, 25}, card).Caption = "To be continue...?";
  for (Control* hidden : std::initializer_list<Control*>{&CreditsSheet, &StillPicture, &Presenter,
                                                         &CardLines[0], &CardLines[1]}) {
    hidden->Visible = false;
  }
  OwnSurface = &scene_;
  Members.emplace_back("CreditStep", &CreditStep);
  Members.emplace_back("CreditsDone", &CreditsDone);
  for (int index = 0; index < CreditY.Size; ++index) {
    Members.emplace_back("CreditY(" + std::to_string(index) + ")", &CreditY[index]);
  }
  ScrollTimer.OnTick = [this] { Tick(); };
}

void EndingScreen::OnActivate(bool) {
  ScrollTimer.SetEnabled(true);
  for (const Strip& strip : kStrips) CreditY[strip.Index] = strip.Start;
}

void EndingScreen::Tick() {
  CreditStep = 1;
  KeepMusic(game_, kEndingMusic);
  for (Int16& y : CreditY) y -= CreditStep;
  BitBlt(scene_, 0, 0, kWidth, kHeight, StillPicture.Picture, 0, 0, Blit::Copy);
  DrawStrips();
  if (CreditY[kLastStrip] <= kLastCardAt) ShowLastCard();
  scene_.Refresh();
}

void EndingScreen::DrawStrips() {
  for (const Strip& strip : kStrips)
    DrawStrip(scene_, CreditsSheet.Picture, strip, CreditY[strip.Index]);
}

void EndingScreen::ShowLastCard() {
  DrawStrip(scene_, CreditsSheet.Picture, kStrips[0], kTitleRestY);
  Presenter.Visible = true;
  CardLines[0].Visible = true;
  CardLines[1].Visible = true;
  CreditsDone = kTrue;
  ScrollTimer.SetEnabled(false);
}

void EndingScreen::OnPress() {
  if (CreditsDone == kTrue) EndProgram();
}

void EndingScreen::OnClose() {
  EndProgram();
}

void EndingScreen::EndProgram() {
  constexpr int last_music = 7;
  CloseAllSound(game_, last_music);
  TheStage().EndProgram(0);
}

}  // namespace orvane
