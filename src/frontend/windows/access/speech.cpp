#include "src/frontend/windows/access/speech.h"

#include <memory>

#include "src/frontend/windows/access/forwarding_object.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

// What is told of a window; what is empty, or 0, the system tells.
struct Told {
  std::wstring Name;
  std::wstring Description;
  LONG Role = 0;
};

BSTR Copy(const std::wstring& text) {
  return SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

bool IsSelf(const VARIANT& child) {
  return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

// Readers may keep it longer than the window lasts.
class ToldObject : public ForwardingObject {
 public:
  ToldObject(IAccessible* own, std::shared_ptr<const Told> told)
      : ForwardingObject(own), told_(std::move(told)) {}

  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
    if (!IsSelf(child) || told_->Name.empty()) return ForwardingObject::get_accName(child, name);
    *name = Copy(told_->Name);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override {
    if (!IsSelf(child) || told_->Description.empty()) {
      return ForwardingObject::get_accDescription(child, description);
    }
    *description = Copy(told_->Description);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
    if (!IsSelf(child) || told_->Role == 0) return ForwardingObject::get_accRole(child, role);
    role->vt = VT_I4;
    role->lVal = told_->Role;
    return S_OK;
  }

 private:
  std::shared_ptr<const Told> told_;
};

// The answer to a reader's question; 0 where the system is to answer.
LRESULT Answer(HWND window, WPARAM w, const std::shared_ptr<const Told>& told) {
  IAccessible* own = ForwardingObject::SystemsOwn(window);
  if (own == nullptr) return 0;
  IAccessible* object = new ToldObject(own, told);
  const LRESULT answer = LresultFromObject(__uuidof(IAccessible), w, object);
  object->Release();
  return answer;
}

constexpr UINT_PTR kSubclass = 1;
constexpr const wchar_t* kProperty = L"OrvaneTold";

using SharedTold = std::shared_ptr<Told>;

LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR /*id*/,
                         DWORD_PTR data) {
  auto* told = reinterpret_cast<SharedTold*>(data);
  if (message == WM_NCDESTROY) {
    RemovePropW(window, kProperty);
    RemoveWindowSubclass(window, &Receive, kSubclass);
    delete told;
  } else if (message == WM_GETOBJECT && static_cast<LONG>(l) == OBJID_CLIENT) {
    if (const LRESULT answer = Answer(window, w, *told)) return answer;
  }
  return DefSubclassProc(window, message, w, l);
}

// From the first call on the window answers by it.
Told& Of(HWND window) {
  auto* told = static_cast<SharedTold*>(GetPropW(window, kProperty));
  if (told == nullptr) {
    told = new SharedTold(std::make_shared<Told>());
    SetPropW(window, kProperty, told);
    SetWindowSubclass(window, &Receive, kSubclass, reinterpret_cast<DWORD_PTR>(told));
  }
  return **told;
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
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
}

Speech::~Speech() {
  CoUninitialize();
}

void Speech::SetName(HWND window, const std::string& name) {
  std::wstring& told = Of(window).Name;
  const bool is_new = told.empty();
  told = Wide(name);
  if (!is_new) NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, window, OBJID_CLIENT, CHILDID_SELF);
}

void Speech::SetDescription(HWND window, const std::string& description) {
  Of(window).Description = Wide(description);
}

void Speech::SetRole(HWND window, Role role) {
  Of(window).Role = NumberOf(role);
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
