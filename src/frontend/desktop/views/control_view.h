// The widget of one control, kept like its model.
#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>
#include <string_view>

#include "src/ui/controls.h"

namespace orvane {

class Events;

class ControlView {
 public:
  // `widget` belongs to its parent widget; `events` outlive the view.
  ControlView(Control& model, QWidget* widget, const Events& events)
      : model_(model), widget_(widget), events_(events) {}
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  Control& Model() const { return model_; }
  QWidget* Widget() const { return widget_; }
  // The widget that holds the control's children, of one pane where it has panes.
  virtual QWidget* Ground(int pane) const {
    static_cast<void>(pane);
    return widget_;
  }

  // What screen readers call it; nothing where its caption serves.
  void SetSpokenName(const QString& name) { widget_->setAccessibleName(name); }

  // The widget that takes the keys, where the control takes any.
  virtual QWidget* KeyTarget() const { return widget_; }

  // Brings the widget up to date, by comparing with what it showed last.
  void Follow();
  // The same without trusting what it showed last: the model may have been made afresh.
  void FollowAll();

 protected:
  // Brings up to date what is special to the kind; `all` as in FollowAll.
  virtual void FollowValues(bool all) = 0;
  // Where the widget goes for the model's place, in the coordinates of what holds it.
  virtual QRect Box(const Place& place) const;

  // What is shown for one of the control's texts, in the language that the player has chosen.
  std::string Shown(std::string_view text) const;

 private:
  void FollowCommon(bool all);

  Control& model_;
  QWidget* widget_;
  const Events& events_;
  CommonValues seen_;
};

// A text of the game as a widget shows it.
QString ToQt(const std::string& text);
// The same where "&" would underline the next letter.
QString ToQtCaption(const std::string& text);

}  // namespace orvane
