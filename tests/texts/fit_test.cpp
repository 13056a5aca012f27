// Every text that a journey has shown fits the control that shows it, in every language, with the
// faces of this machine, at every scale.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QGroupBox>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "src/frontend/desktop/paint/fonts.h"
#include "src/frontend/desktop/paint/look.h"
#include "src/frontend/desktop/paint/text_paint.h"
#include "src/frontend/desktop/views/view_factory.h"
#include "src/frontend/shared/events.h"
#include "src/frontend/shared/text_fit.h"
#include "src/game/program.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"
#include "src/ui/controls.h"
#include "tests/texts/shown.h"

namespace orvane::test {
namespace {

constexpr double kScales[] = {1, 1.5, 2, 2.5, 3};
constexpr int kMargin = 60;  // around a text's box, in which ink that leaves it is found

class InOneLanguage : public Events {
 public:
  explicit InOneLanguage(const Translator& texts) : texts_(texts) {}
  void Send(const std::function<void(Program&)>& /*event*/) override {}
  const Translator& Texts() const override { return texts_; }

 private:
  const Translator& texts_;
};

class Fits : public testing::TestWithParam<std::string> {
 protected:
  Fits() { texts_.Choose(GetParam()); }

  NoSound sound_;
  NoChance luck_;
  FolderStorage files_{ORVANE_GAME_FOLDER};
  Program program_{{sound_, luck_, files_}};
  Translator texts_;
  InOneLanguage events_{texts_};
};

// How far to the right a label's text may go: to the next label on its line, or to its end.
double RoomOf(const Label& label) {
  double room = label.At.Width;
  if (label.Alignment != Align::Left) return room;
  for (const Control* other : label.Owner().Controls()) {
    const bool is_next = other != &label && other->Kind() == ControlKind::Label &&
                         other->Parent() == label.Parent() && other->Pane() == label.Pane() &&
                         std::abs(other->Top() - label.Top()) < 1 && other->Left() > label.Left();
    if (is_next && static_cast<const Label*>(other)->Alignment == Align::Left) {
      room = std::min(room, other->Left() - label.Left());
    }
  }
  return room;
}

// Where a label's text has ink, in pixels of the game, counted from the corner of its box.
QRectF InkOf(const Label& label, const QString& text, double scale) {
  const QSizeF size(label.At.Width + 2 * kMargin, label.At.Height + 2 * kMargin);
  QImage image((size * scale).toSize(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(scale, scale);
  painter.translate(kMargin, kMargin);
  painter.setFont(DesktopFont(label.Face));
  const int alignment = label.Alignment == Align::Centre  ? Qt::AlignHCenter
                        : label.Alignment == Align::Right ? Qt::AlignRight
                                                          : Qt::AlignLeft;
  PaintText(painter, QRectF(0, 0, label.At.Width, label.At.Height), text, alignment);
  painter.end();
  QRect ink;
  constexpr int dark = 128;
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      if (qGreen(row[x]) < dark) ink |= QRect(x, y, 1, 1);
    }
  }
  return QRectF(QPointF(ink.topLeft()) / scale, QSizeF(ink.size()) / scale)
      .translated(-kMargin, -kMargin);
}

void ExpectLabelFits(const Label& label, const std::string& text) {
  for (const double scale : kScales) {
    const QRectF ink = InkOf(label, ToQt(text), scale);
    const QRectF room(0, -kHeadroom, RoomOf(label), label.At.Height + kHeadroom);
    EXPECT_TRUE(room.adjusted(-1, 0, 1, 0.5).contains(ink))
        << scale << "x: ink from " << ink.left() << ", " << ink.top() << " to " << ink.right()
        << ", " << ink.bottom() << " in " << room.width() << " by " << label.At.Height;
  }
}

void ExpectButtonFits(CommandButton& button, const std::string& text, Events& events) {
  QWidget ground;
  button.Caption = text;
  const auto view = MakeView(button, &ground, events);
  view->FollowAll();
  const auto& widget = static_cast<const QPushButton&>(*view->Widget());
  const QStringList lines = widget.text().split('\n');
  constexpr int frame = 3;
  for (const QString& line : lines) {
    EXPECT_LE(widget.fontMetrics().horizontalAdvance(line), widget.width() - 2 * frame);
  }
  EXPECT_LE(lines.size() * QFontInfo(widget.font()).pixelSize(), widget.height());
}

void ExpectRowFits(const Control& list, const std::string& text) {
  constexpr int frame_scroll_bar_and_margins = 2 + 16 + 8;
  constexpr int narrowest = 70;  // per cent
  QFont font = DefaultFont();
  font.setStretch(narrowest);
  EXPECT_LE(QFontMetrics(font).horizontalAdvance(ToQt(text)),
            list.At.Width - frame_scroll_bar_and_margins);
}

void ExpectWidth(const std::string& text, double room) {
  EXPECT_LE(QFontMetrics(DefaultFont()).horizontalAdvance(ToQt(text)), room);
}

TEST_P(Fits, EveryTextWhereItStands) {
  const std::vector<ShownText> shown = ReadShown();
  ASSERT_GT(shown.size(), 500U) << "the journey has been noted";
  const Stage& stage = program_.TheStage();
  for (const ShownText& each : shown) {
    SCOPED_TRACE(each.Where + ": " + each.Text);
    auto* control = const_cast<Control*>(ControlOf(stage, each));
    if (control == nullptr) {
      constexpr int icons = 90;  // of the window manager, and the frame
      const Screen* screen = stage.Find(each.Where);
      if (screen != nullptr) ExpectWidth(texts_.Of(each.Text), screen->Width - icons);
      continue;
    }
    const std::string text = texts_.Of(*control, each.Text);
    switch (control->Kind()) {
      case ControlKind::Label:
        ExpectLabelFits(static_cast<const Label&>(*control), text);
        break;
      case ControlKind::Button:
        ExpectButtonFits(static_cast<CommandButton&>(*control), each.Text, events_);
        break;
      case ControlKind::List:
        ExpectRowFits(*control, text);
        break;
      case ControlKind::Frame:
        ExpectWidth(text, control->At.Width - 16);
        break;
      case ControlKind::Tabs:
        ExpectWidth(text, control->At.Width / 2 - 20);
        break;
      default:
        break;
    }
  }
}

std::vector<std::string> Codes() {
  return Translator().Languages();
}

INSTANTIATE_TEST_SUITE_P(InEveryLanguage, Fits, testing::ValuesIn(Codes()),
                         [](const auto& each) { return each.param; });

}  // namespace
}  // namespace orvane::test

int main(int count, char** words) {
  testing::InitGoogleTest(&count, words);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(count, words);
  orvane::SetUpLook(application);
  return RUN_ALL_TESTS();
}
