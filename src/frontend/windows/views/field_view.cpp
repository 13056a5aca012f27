#include "src/frontend/windows/views/field_view.h"

#include "src/frontend/windows/windows/window_events.h"
#include "src/game/program.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {

FieldView::FieldView(TextBox& model, const Ground& ground, const Setting& setting)
    : View(model, setting), model_(model) {
  MakeControl(ground, WC_EDITW, ES_AUTOHSCROLL, WS_EX_CLIENTEDGE);
}

void FieldView::Notice(UINT code) {
  if (code != EN_CHANGE) return;
  TheSetting().TheEvents.Send([this](Program& program) { program.EnterText(model_, Text()); });
}

bool FieldView::Uses(WPARAM key) const {
  return key == VK_LEFT || key == VK_RIGHT;
}

void FieldView::Press() {
  TheSetting().TheEvents.Send([this](Program& program) { program.Confirm(model_.Owner()); });
}

bool FieldView::TakeBefore(UINT message, WPARAM /*w*/, LPARAM /*l*/, LRESULT& /*result*/) {
  if (message == WM_IME_STARTCOMPOSITION) composing_ = true;
  if (message == WM_IME_ENDCOMPOSITION) composing_ = false;
  return false;
}

void FieldView::FollowValues(bool all) {
  if (all) {
    SetDefaultFont();
    Ask(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(1, 1));
  }
  // What is being composed belongs to the text only when it is done.
  if (composing_ || Text() == model_.Text) return;
  SetText(Wide(model_.Text));
  const auto end = static_cast<WPARAM>(GetWindowTextLengthW(Handle()));
  Ask(EM_SETSEL, end, static_cast<LPARAM>(end));
}

std::string FieldView::Text() const {
  std::wstring text(static_cast<size_t>(GetWindowTextLengthW(Handle())) + 1, L'\0');
  const int length = GetWindowTextW(Handle(), text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<size_t>(length));
  return Utf8(text);
}

}  // namespace orvane
