// The window of one message box, as the system's own look. It runs no loop of its own.
#pragma once

#include <functional>
#include <vector>

#include "src/frontend/shared/texts/translator.h"
#include "src/frontend/windows/system/windows_api.h"
#include "src/ui/box.h"

namespace orvane {

class BoxWindow {
 public:
  // Shows the box over the middle of its owner, or of the display where that is null. `active`
  // tells whether it takes the keyboard as it comes; `answer` is told what the player presses.
  // `texts` has the language of the box, and outlives it.
  BoxWindow(const Box& box, const Translator& texts, HWND owner, bool active,
            std::function<void(BoxAnswer)> answer);
  ~BoxWindow();
  BoxWindow(const BoxWindow&) = delete;
  BoxWindow& operator=(const BoxWindow&) = delete;

  HWND Handle() const { return window_; }

  // Takes a message of the loop, if it is one of the box's keys.
  bool TakeKey(const MSG& message) const;
  // Shows its texts anew, in another language.
  void Retranslate();
  // Puts the keyboard on its first button.
  void ComeToFront() const;

 private:
  static INT_PTR CALLBACK Receive(HWND window, UINT message, WPARAM w, LPARAM l);
  INT_PTR Take(UINT message, WPARAM w, LPARAM l);
  void MakeControls();
  void Inscribe();
  void LayOut(HWND owner);
  void Answer(int number);
  LRESULT PaintGround(HDC context) const;

  const Box box_;
  const Translator& texts_;
  Box shown_;  // the box with its texts as they are shown
  std::function<void(BoxAnswer)> answer_;
  HWND window_ = nullptr;
  HWND text_ = nullptr;
  std::vector<HWND> buttons_;
  HFONT font_ = nullptr;
  int band_ = 0;  // where the buttons' part begins
};

}  // namespace orvane
