#include "src/frontend/desktop/look.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>

#include "src/frontend/desktop/fonts.h"

namespace orvane {
namespace {

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
  QCoreApplication::setAttribute(Qt::AA_DontShowIconsInMenus);
  application.setQuitOnLastWindowClosed(false);  // the game decides when it ends
}

}  // namespace orvane
