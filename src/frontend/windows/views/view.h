// The window of one control, kept like its model.
#pragma once

#include <string>
#include <string_view>

#include "src/frontend/windows/access/speech.h"
#include "src/frontend/windows/paint/fonts.h"
#include "src/frontend/windows/system/windows_api.h"
#include "src/ui/controls.h"

namespace orvane {

class WindowEvents;
class Ground;

// What all views share.
struct Setting {
  WindowEvents& TheEvents;
  Fonts& TheFonts;
  Speech& TheSpeech;
  double Scale = 1;  // pixels of the screen to one of the game
};

class View {
 public:
  View(Control& model, const Setting& setting) : model_(model), setting_(setting) {}
  virtual ~View();
  View(const View&) = delete;
  View& operator=(const View&) = delete;

  // The view of a control's window, or null for other windows.
  static View* Of(HWND window);

  Control& Model() const { return model_; }
  HWND Handle() const { return handle_; }
  // Where the control's children stand, of one pane where it has panes; null where it can have
  // none.
  virtual Ground* GroundOf(int pane) {
    static_cast<void>(pane);
    return nullptr;
  }

  // Brings the window up to date, by comparing with what it showed last.
  void Follow();
  // The same without trusting what it showed last: the model may have been made afresh, or the
  // scale another one.
  void FollowAll();

  // The control reports something, by the system's number for it.
  virtual void Notice(UINT code) { static_cast<void>(code); }
  // The control is to paint a part of itself.
  virtual void Draw(const DRAWITEMSTRUCT& drawing) { static_cast<void>(drawing); }
  // Whether the control has a use of its own for a key, an arrow for example.
  virtual bool Uses(WPARAM key) const {
    static_cast<void>(key);
    return false;
  }
  // Does what Enter does on it.
  virtual void Press() {}

 protected:
  const Setting& TheSetting() const { return setting_; }
  double Scale() const { return setting_.Scale; }

  // Makes the system's control of this class on a ground.
  void MakeControl(const Ground& ground, const wchar_t* kind, DWORD style, DWORD extended = 0);
  // The window is one that has been made already.
  void Adopt(HWND window);

  // Messages of the system's control, before it gets them. True with the result where it is not to
  // have one.
  virtual bool TakeBefore(UINT message, WPARAM w, LPARAM l, LRESULT& result);
  // The control's own answer to a message.
  LRESULT TakeAsControl(UINT message, WPARAM w, LPARAM l) const;

  // Brings up to date what is special to the kind; `all` as in FollowAll.
  virtual void FollowValues(bool all) = 0;

  LRESULT Ask(UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageW(handle_, message, w, l);
  }
  void SetText(const std::wstring& text) const { SetWindowTextW(handle_, text.c_str()); }
  // What is shown for one of the control's texts, in the language that the player has chosen.
  std::string Shown(std::string_view text) const;
  void SetDefaultFont() const;
  RECT Inside() const;  // the client area

 private:
  static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR id,
                                  DWORD_PTR self);
  RECT BoxNow() const;
  void FollowCommon(bool all);

  Control& model_;
  const Setting& setting_;
  HWND handle_ = nullptr;
  bool is_control_ = false;
  CommonValues seen_;
};

}  // namespace orvane
