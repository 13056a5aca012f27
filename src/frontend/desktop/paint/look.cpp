#include "src/frontend/desktop/paint/look.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialogButtonBox>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>
#include <optional>

#include "src/frontend/desktop/paint/fonts.h"
#include "src/frontend/desktop/paint/sharp_lines.h"
#include "src/frontend/desktop/windows/window_icon.h"

namespace orvane {
namespace {

// A copy of an option, for a widget that has the keyboard: what has it shows it from the start, not
// only once a key has been used.
template <class Option>
std::optional<Option> Marked(const QStyleOption* option) {
  if (option == nullptr || (option->state & QStyle::State_HasFocus) == 0) return std::nullopt;
  const auto* known = qstyleoption_cast<const Option*>(option);
  if (known == nullptr) return std::nullopt;
  Option copy(*known);
  copy.state |= QStyle::State_KeyboardFocusChange;
  return copy;
}

class CalmStyle : public QProxyStyle {
 public:
  CalmStyle() : QProxyStyle(QStyleFactory::create("fusion")) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    switch (hint) {
      case SH_DialogButtonLayout:
        return QDialogButtonBox::WinLayout;
      case SH_DialogButtonBox_ButtonsHaveIcons:
      case SH_UnderlineShortcut:
        return 0;
      default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (const auto mark = Marked<QStyleOptionFocusRect>(option)) {
      QProxyStyle::drawPrimitive(element, &*mark, painter, widget);
    } else if (const auto button = Marked<QStyleOptionButton>(option)) {
      QProxyStyle::drawPrimitive(element, &*button, painter, widget);
    } else {
      QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    const auto* known = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_Slider || known == nullptr) {
      return QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
    QStyleOptionSlider slider = Marked<QStyleOptionSlider>(option).value_or(*known);
    slider.subControls &= ~SC_SliderTickmarks;
    QProxyStyle::drawComplexControl(control, &slider, painter, widget);
    DrawSteps(slider, *painter, widget);
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    QProxyStyle::drawControl(element, option, painter, widget);
    if (LacksMark(element, *option, widget)) {
      DrawFrame(*painter, option->rect, option->palette.color(QPalette::Highlight));
    } else if (element == CE_ShapedFrame && qobject_cast<const QAbstractItemView*>(widget)) {
      DrawFrame(*painter, option->rect, Outline(option->palette));
    } else if (IsMenuBar(element) && (option->state & State_Selected) == 0) {
      // In place of the style's own, which it draws apart for each menu, with gaps between.
      constexpr int own = 2;
      painter->fillRect(option->rect.adjusted(0, option->rect.height() - own, 0, 0),
                        option->palette.window());
      DrawUnderline(*painter, option->rect, QColor(0xD4, 0xD4, 0xD4));
    }
  }

 private:
  // As the style's own frames are.
  static QColor Outline(const QPalette& palette) {
    return palette.color(QPalette::Window).darker(140).lighter(108);
  }

  // The marks below a slider, at which the handle's middle can stand.
  void DrawSteps(const QStyleOptionSlider& slider, QPainter& painter, const QWidget* widget) const {
    const int half = proxy()->pixelMetric(PM_SliderLength, &slider, widget) / 2;
    const int room = proxy()->pixelMetric(PM_SliderSpaceAvailable, &slider, widget);
    const int offset = proxy()->pixelMetric(PM_SliderTickmarkOffset, &slider, widget);
    const int interval = std::max(1, slider.tickInterval);
    for (int step = slider.minimum; step <= slider.maximum; step += interval) {
      const bool at_end = step == slider.minimum || step == slider.maximum;
      const int bottom = slider.rect.bottom() - (at_end ? 1 : 2);
      const int x = half + sliderPositionFromValue(slider.minimum, slider.maximum, step, room);
      const int top = slider.rect.bottom() - offset;
      DrawMark(painter, {x, top}, bottom - top + 1,
               slider.palette.color(QPalette::Highlight).darker(140));
    }
  }

  static bool IsMenuBar(ControlElement element) {
    return element == CE_MenuBarItem || element == CE_MenuBarEmptyArea;
  }

  // A list that has the keyboard may have no row to show it by, and a menu bar no open menu.
  static bool LacksMark(ControlElement element, const QStyleOption& option, const QWidget* widget) {
    if (element == CE_ShapedFrame) {
      return (option.state & State_HasFocus) != 0 &&
             qobject_cast<const QAbstractItemView*>(widget) != nullptr;
    }
    return element == CE_MenuBarItem && (option.state & State_Selected) != 0 && widget != nullptr &&
           widget->hasFocus();
  }
};

QPalette CalmPalette() {
  const QColor ground(0xEC, 0xEC, 0xEC);
  const QColor chosen(0x2F, 0x5D, 0x9B);
  const QColor faded(0x8C, 0x8C, 0x8C);
  QPalette palette(ground);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(0xF5, 0xF5, 0xF5));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, Qt::black);
    palette.setColor(QPalette::Disabled, role, faded);
  }
  palette.setColor(QPalette::Highlight, chosen);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0xB0, 0xB0, 0xB0));
  return palette;
}

}  // namespace

void SetUpLook(QApplication& application) {
  QApplication::setStyle(new CalmStyle);  // the application owns it
  QApplication::setPalette(CalmPalette());
  QApplication::setFont(DefaultFont());
  QApplication::setWindowIcon(WindowIcon());
  QCoreApplication::setAttribute(Qt::AA_DontShowIconsInMenus);
  application.setQuitOnLastWindowClosed(false);  // the game decides when it ends
}

}  // namespace orvane
