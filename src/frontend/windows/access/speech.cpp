#include "src/frontend/windows/access/speech.h"

// The identifiers of the interfaces are made here. After the system's first header.
// clang-format off
#include <initguid.h>
#include <oleacc.h>
// clang-format on

#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

constexpr DWORD kWindow = static_cast<DWORD>(OBJID_CLIENT);

void SetText(IAccPropServices* services, HWND window, const MSAAPROPID& property,
             const std::string& text) {
  if (services == nullptr || text.empty()) return;
  services->SetHwndPropStr(window, kWindow, CHILDID_SELF, property, Wide(text).c_str());
}

LONG NumberOf(Speech::Role role) {
  switch (role) {
    case Speech::Role::Button:
      return ROLE_SYSTEM_PUSHBUTTON;
    case Speech::Role::Group:
      return ROLE_SYSTEM_GROUPING;
    case Speech::Role::Picture:
      break;
  }
  return ROLE_SYSTEM_GRAPHIC;
}

}  // namespace

Speech::Speech() {
  void* made = nullptr;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const HRESULT result =
      CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC, IID_IAccPropServices, &made);
  if (SUCCEEDED(result)) services_ = static_cast<IAccPropServices*>(made);
}

Speech::~Speech() {
  if (services_ != nullptr) services_->Release();
  CoUninitialize();
}

void Speech::SetName(HWND window, const std::string& name) const {
  SetText(services_, window, PROPID_ACC_NAME, name);
}

void Speech::SetDescription(HWND window, const std::string& description) const {
  SetText(services_, window, PROPID_ACC_DESCRIPTION, description);
}

void Speech::SetRole(HWND window, Role role) const {
  if (services_ == nullptr) return;
  VARIANT number{};
  number.vt = VT_I4;
  number.lVal = NumberOf(role);
  services_->SetHwndProp(window, kWindow, CHILDID_SELF, PROPID_ACC_ROLE, number);
}

bool Speech::IsHeard() {
  constexpr unsigned long long interval_ms = 1000;
  const unsigned long long now = GetTickCount64();
  if (looked_ != 0 && now - looked_ < interval_ms) return heard_;
  looked_ = now;
  BOOL runs = FALSE;
  SystemParametersInfoW(SPI_GETSCREENREADER, 0, &runs, 0);
  heard_ = runs != FALSE;
  return heard_;
}

void Speech::Alert(HWND window) {
  NotifyWinEvent(EVENT_OBJECT_DESCRIPTIONCHANGE, window, OBJID_CLIENT, CHILDID_SELF);
  NotifyWinEvent(EVENT_SYSTEM_ALERT, window, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace orvane
