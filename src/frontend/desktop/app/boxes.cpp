#include "src/frontend/desktop/app/boxes.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QSpacerItem>
#include <algorithm>
#include <utility>

namespace orvane {
namespace {

struct Choice {
  const char* Text;
  QMessageBox::ButtonRole Role;
  BoxAnswer Answer;
};

// The buttons of a box; the first is pressed by Enter, the last by Escape.
const std::vector<Choice>& Choices(BoxButtons buttons) {
  static const std::vector<Choice> ok = {{"OK", QMessageBox::AcceptRole, BoxAnswer::Ok}};
  static const std::vector<Choice> ok_cancel = {
      {"OK", QMessageBox::AcceptRole, BoxAnswer::Ok},
      {"キャンセル", QMessageBox::RejectRole, BoxAnswer::Cancel}};
  static const std::vector<Choice> yes_no = {{"はい", QMessageBox::YesRole, BoxAnswer::Yes},
                                             {"いいえ", QMessageBox::NoRole, BoxAnswer::No}};
  switch (buttons) {
    case BoxButtons::OkCancel:
      return ok_cancel;
    case BoxButtons::YesNo:
      return yes_no;
    case BoxButtons::Ok:
      break;
  }
  return ok;
}

// Makes a box wide enough for its title between the window manager's icons.
void WidenForTitle(QMessageBox& box) {
  constexpr int icons = 110;
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid == nullptr) return;
  const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + icons;
  grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

// A message box that a key still held down from before does not answer.
class CalmBox : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

  // Watches a button, which gets the keys before the box does.
  void Watch(QPushButton* button) { button->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    return event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat();
  }
};

}  // namespace

BoxAnswer MessageBoxes::Run(const Box& box, QWidget* parent) {
  CalmBox shown(parent);
  shown.setIcon(QMessageBox::NoIcon);
  shown.setTextFormat(Qt::PlainText);
  shown.setWindowTitle(QString::fromStdString(box.Title));
  shown.setText(QString::fromStdString(box.Text));
  const auto& choices = Choices(box.Buttons);
  std::vector<std::pair<QAbstractButton*, BoxAnswer>> buttons;
  for (const Choice& choice : choices) {
    QPushButton* button = shown.addButton(QString::fromUtf8(choice.Text), choice.Role);
    shown.Watch(button);
    buttons.emplace_back(button, choice.Answer);
  }
  shown.setDefaultButton(static_cast<QPushButton*>(buttons.front().first));
  shown.setEscapeButton(buttons.back().first);
  WidenForTitle(shown);
  standing_.push_back(&shown);
  shown.exec();
  std::erase(standing_, &shown);
  for (const auto& [button, answer] : buttons) {
    if (button == shown.clickedButton()) return answer;
  }
  return choices.back().Answer;
}

BoxAnswer MessageBoxes::Show(const Box& box) {
  if (host_ == nullptr) return Choices(box.Buttons).back().Answer;
  const BoxAnswer answer = Run(box, host_->BeginBox());
  host_->EndBox();
  return answer;
}

void MessageBoxes::ShowError(const Box& box) {
  if (host_ == nullptr) {
    kept_errors_.push_back(box);
    return;
  }
  Show({box.Text, box.Title, BoxButtons::Ok});
}

void MessageBoxes::ShowKeptError() {
  for (const Box& box : std::exchange(kept_errors_, {})) Run(box, nullptr);
}

void MessageBoxes::CloseAll() {
  // Closing one takes it off the list only when its loop returns.
  for (QMessageBox* box : standing_) box->done(QDialog::Rejected);
}

}  // namespace orvane
