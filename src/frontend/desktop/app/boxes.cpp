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

#include "src/frontend/shared/box_captions.h"

namespace orvane {
namespace {

constexpr const char* kAnswer = "answer";  // what pressing a button says

QMessageBox::ButtonRole RoleOf(BoxAnswer answer) {
  switch (answer) {
    case BoxAnswer::Cancel:
      return QMessageBox::RejectRole;
    case BoxAnswer::Yes:
      return QMessageBox::YesRole;
    case BoxAnswer::No:
      return QMessageBox::NoRole;
    case BoxAnswer::Ok:
      break;
  }
  return QMessageBox::AcceptRole;
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

// Gives a box its texts.
void Inscribe(QMessageBox& shown, const Box& box, const Translator& texts) {
  const Box shown_as = texts.Of(box);
  shown.setWindowTitle(QString::fromStdString(shown_as.Title));
  shown.setText(QString::fromStdString(ShownText(shown_as)));
  const QList<QAbstractButton*> buttons = shown.buttons();
  for (const BoxChoice& choice : ChoicesOf(box.Buttons)) {
    for (QAbstractButton* button : buttons) {
      if (button->property(kAnswer).toInt() != int(choice.Answer)) continue;
      button->setText(QString::fromStdString(texts.Of(choice.Caption)));
    }
  }
}

// Gives a box its texts and buttons.
void Furnish(CalmBox& shown, const Box& box, const Translator& texts) {
  shown.setIcon(QMessageBox::NoIcon);
  shown.setTextFormat(Qt::PlainText);
  QPushButton* first = nullptr;
  QPushButton* last = nullptr;
  for (const BoxChoice& choice : ChoicesOf(box.Buttons)) {
    last = shown.addButton(QString(), RoleOf(choice.Answer));
    last->setProperty(kAnswer, int(choice.Answer));
    shown.Watch(last);
    if (first == nullptr) first = last;
  }
  shown.setDefaultButton(first);
  shown.setEscapeButton(last);
  Inscribe(shown, box, texts);
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

void MessageBoxes::Retranslate(const Stage& stage) {
  for (const StandingBox& box : stage.Boxes()) {
    const auto found = shown_.find(box.Number);
    if (found != shown_.end() && found->second != nullptr) {
      Inscribe(*found->second, box.Shown, texts_);
    }
  }
}

QMessageBox* MessageBoxes::Open(const StandingBox& box, QWidget* parent) {
  auto* shown = new CalmBox(parent);
  Furnish(*shown, box.Shown, texts_);
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
  Furnish(box, {sentence, "Orvane", BoxButtons::Ok}, Translator());
  QObject::connect(&box, &QMessageBox::finished, QCoreApplication::instance(),
                   &QCoreApplication::quit);
  box.show();
  QCoreApplication::exec();
}

}  // namespace orvane
