#include "src/frontend/desktop/access/spoken.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>

namespace orvane {
namespace {

class SpokenInterface : public QAccessibleWidget {
 public:
  SpokenInterface(QWidget* widget, Spoken& spoken)
      : QAccessibleWidget(widget, spoken.IsButton() ? QAccessible::Button : QAccessible::Graphic),
        spoken_(spoken) {}

  QString text(QAccessible::Text which) const override {
    return which == QAccessible::Description ? spoken_.Text() : QAccessibleWidget::text(which);
  }
  QStringList actionNames() const override {
    return spoken_.IsButton() ? QStringList(pressAction()) : QStringList();
  }
  void doAction(const QString& action) override {
    if (spoken_.IsButton() && action == pressAction()) spoken_.Press();
  }

 private:
  Spoken& spoken_;
};

// The toolkit would read a text that is empty by the title of the frame around it.
class TextInterface : public QAccessibleWidget {
 public:
  explicit TextInterface(QLabel* label) : QAccessibleWidget(label, QAccessible::StaticText) {}

  QString text(QAccessible::Text which) const override {
    return which == QAccessible::Name ? Words() : QAccessibleWidget::text(which);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (Words().isEmpty()) state.invisible = true;
    return state;
  }

 private:
  QString Words() const { return static_cast<QLabel*>(widget())->text(); }
};

QAccessibleInterface* MakeInterface(const QString& /*kind*/, QObject* object) {
  if (auto* label = qobject_cast<QLabel*>(object)) return new TextInterface(label);
  auto* spoken = dynamic_cast<Spoken*>(object);
  return spoken == nullptr || !spoken->IsPicture()
             ? nullptr
             : new SpokenInterface(static_cast<QWidget*>(object), *spoken);
}

}  // namespace

void SetUpSpeech() {
  QAccessible::installFactory(MakeInterface);
}

void Announcer::Follow(QWidget& widget) {
  if (!QAccessible::isActive()) return;
  const QString text = dynamic_cast<Spoken&>(widget).Text();
  if (text == told_) return;
  told_ = text;
  for (const auto what : {QAccessible::DescriptionChanged, QAccessible::Alert}) {
    // A text that has gone is no reason to interrupt the player.
    if (what == QAccessible::Alert && text.isEmpty()) continue;
    QAccessibleEvent event(&widget, what);
    QAccessible::updateAccessibility(&event);
  }
}

}  // namespace orvane
