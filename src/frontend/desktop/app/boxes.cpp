#include "src/frontend/desktop/app/boxes.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QSpacerItem>
#include <QVariant>
#include <algorithm>
#include <vector>

namespace orvane {
namespace {

constexpr const char* kAnswer = "answer";  // what pressing a button says

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

// Gives a box its texts and buttons.
void Furnish(CalmBox& shown, const Box& box) {
  shown.setIcon(QMessageBox::NoIcon);
  shown.setTextFormat(Qt::PlainText);
  shown.setWindowTitle(QString::fromStdString(box.Title));
  shown.setText(QString::fromStdString(box.Text));
  QPushButton* first = nullptr;
  QPushButton* last = nullptr;
  for (const Choice& choice : Choices(box.Buttons)) {
    last = shown.addButton(QString::fromUtf8(choice.Text), choice.Role);
    last->setProperty(kAnswer, int(choice.Answer));
    shown.Watch(last);
    if (first == nullptr) first = last;
  }
  shown.setDefaultButton(first);
  shown.setEscapeButton(last);
  WidenForTitle(shown);
}

}  // namespace

MessageBoxes::~MessageBoxes() {
  for (const auto& [number, box] : shown_) delete box.data();
}

bool MessageBoxes::Follow(const Stage& stage, QWidget* parent) {
  const auto stands = [&stage](int number) {
    return std::any_of(stage.Boxes().begin(), stage.Boxes().end(),
                       [number](const StandingBox& box) { return box.Number == number; });
  };
  const size_t gone = std::erase_if(shown_, [&stands](const auto& each) {
    if (stands(each.first)) return false;
    if (each.second == nullptr) return true;
    each.second->hide();
    each.second->deleteLater();  // it may be what has just reported its answer
    return true;
  });
  for (const StandingBox& box : stage.Boxes()) {
    QPointer<QMessageBox>& shown = shown_[box.Number];
    if (shown == nullptr) shown = Open(box, parent);
    // One that was answered while no input was taken stands still.
    if (!shown->isVisible()) shown->show();
  }
  return gone > 0;
}

QMessageBox* MessageBoxes::Open(const StandingBox& box, QWidget* parent) {
  auto* shown = new CalmBox(parent);
  Furnish(*shown, box.Shown);
  QObject::connect(
      shown, &QMessageBox::finished, shown, [this, shown, buttons = box.Shown.Buttons] {
        const QAbstractButton* pressed = shown->clickedButton();
        const QVariant answer = pressed != nullptr ? pressed->property(kAnswer) : QVariant();
        answer_(answer.isValid() ? BoxAnswer(answer.toInt()) : AnswerOfClosing(buttons));
      });
  shown->setModal(true);
  return shown;
}

void ShowProblem(const std::string& sentence) {
  CalmBox box;
  Furnish(box, {sentence, "Orvane", BoxButtons::Ok});
  QObject::connect(&box, &QMessageBox::finished, QCoreApplication::instance(),
                   &QCoreApplication::quit);
  box.show();
  QCoreApplication::exec();
}

}  // namespace orvane
