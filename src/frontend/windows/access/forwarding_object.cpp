#include "src/frontend/windows/access/forwarding_object.h"

namespace orvane {
namespace {

// The same object by another of its interfaces, or null.
template <class Interface>
Interface* As(IUnknown* object) {
  void* found = nullptr;
  if (FAILED(object->QueryInterface(__uuidof(Interface), &found))) return nullptr;
  return static_cast<Interface*>(found);
}

void Drop(IUnknown* object) {
  if (object != nullptr) object->Release();
}

}  // namespace

IAccessible* ForwardingObject::SystemsOwn(HWND window) {
  void* made = nullptr;
  if (FAILED(CreateStdAccessibleObject(window, OBJID_CLIENT, __uuidof(IAccessible), &made))) {
    return nullptr;
  }
  return static_cast<IAccessible*>(made);
}

ForwardingObject::ForwardingObject(IAccessible* own)
    : own_(own), children_(As<IEnumVARIANT>(own)), window_(As<IOleWindow>(own)) {}

ForwardingObject::~ForwardingObject() {
  Drop(children_);
  Drop(window_);
  own_->Release();
}

HRESULT ForwardingObject::QueryInterface(REFIID kind, void** object) {
  *object = nullptr;
  if (kind == __uuidof(IUnknown) || kind == __uuidof(IDispatch) || kind == __uuidof(IAccessible)) {
    *object = static_cast<IAccessible*>(this);
  } else if (kind == __uuidof(IEnumVARIANT) && children_ != nullptr) {
    *object = static_cast<IEnumVARIANT*>(this);
  } else if (kind == __uuidof(IOleWindow) && window_ != nullptr) {
    *object = static_cast<IOleWindow*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG ForwardingObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT ForwardingObject::GetTypeInfoCount(UINT* count) {
  return own_->GetTypeInfoCount(count);
}

HRESULT ForwardingObject::GetTypeInfo(UINT number, LCID language, ITypeInfo** info) {
  return own_->GetTypeInfo(number, language, info);
}

HRESULT ForwardingObject::GetIDsOfNames(REFIID kind, LPOLESTR* names, UINT count, LCID language,
                                        DISPID* numbers) {
  return own_->GetIDsOfNames(kind, names, count, language, numbers);
}

HRESULT ForwardingObject::Invoke(DISPID number, REFIID kind, LCID language, WORD flags,
                                 DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception,
                                 UINT* wrong) {
  return own_->Invoke(number, kind, language, flags, arguments, result, exception, wrong);
}

HRESULT ForwardingObject::get_accParent(IDispatch** parent) {
  return own_->get_accParent(parent);
}

HRESULT ForwardingObject::get_accChildCount(LONG* count) {
  return own_->get_accChildCount(count);
}

HRESULT ForwardingObject::get_accChild(VARIANT child, IDispatch** object) {
  return own_->get_accChild(child, object);
}

HRESULT ForwardingObject::get_accName(VARIANT child, BSTR* name) {
  return own_->get_accName(child, name);
}

HRESULT ForwardingObject::get_accValue(VARIANT child, BSTR* value) {
  return own_->get_accValue(child, value);
}

HRESULT ForwardingObject::get_accDescription(VARIANT child, BSTR* description) {
  return own_->get_accDescription(child, description);
}

HRESULT ForwardingObject::get_accRole(VARIANT child, VARIANT* role) {
  return own_->get_accRole(child, role);
}

HRESULT ForwardingObject::get_accState(VARIANT child, VARIANT* state) {
  return own_->get_accState(child, state);
}

HRESULT ForwardingObject::get_accHelp(VARIANT child, BSTR* help) {
  return own_->get_accHelp(child, help);
}

HRESULT ForwardingObject::get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) {
  return own_->get_accHelpTopic(file, child, topic);
}

HRESULT ForwardingObject::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) {
  return own_->get_accKeyboardShortcut(child, shortcut);
}

HRESULT ForwardingObject::get_accFocus(VARIANT* child) {
  return own_->get_accFocus(child);
}

HRESULT ForwardingObject::get_accSelection(VARIANT* children) {
  return own_->get_accSelection(children);
}

HRESULT ForwardingObject::get_accDefaultAction(VARIANT child, BSTR* action) {
  return own_->get_accDefaultAction(child, action);
}

HRESULT ForwardingObject::accSelect(LONG flags, VARIANT child) {
  return own_->accSelect(flags, child);
}

HRESULT ForwardingObject::accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                      VARIANT child) {
  return own_->accLocation(left, top, width, height, child);
}

HRESULT ForwardingObject::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
  return own_->accNavigate(direction, start, end);
}

HRESULT ForwardingObject::accHitTest(LONG left, LONG top, VARIANT* child) {
  return own_->accHitTest(left, top, child);
}

HRESULT ForwardingObject::accDoDefaultAction(VARIANT child) {
  return own_->accDoDefaultAction(child);
}

HRESULT ForwardingObject::put_accName(VARIANT child, BSTR name) {
  return own_->put_accName(child, name);
}

HRESULT ForwardingObject::put_accValue(VARIANT child, BSTR value) {
  return own_->put_accValue(child, value);
}

HRESULT ForwardingObject::Next(ULONG wanted, VARIANT* children, ULONG* count) {
  return children_->Next(wanted, children, count);
}

HRESULT ForwardingObject::Skip(ULONG count) {
  return children_->Skip(count);
}

HRESULT ForwardingObject::Reset() {
  return children_->Reset();
}

HRESULT ForwardingObject::Clone(IEnumVARIANT** other) {
  return children_->Clone(other);
}

HRESULT ForwardingObject::GetWindow(HWND* window) {
  return window_->GetWindow(window);
}

HRESULT ForwardingObject::ContextSensitiveHelp(BOOL begins) {
  return window_->ContextSensitiveHelp(begins);
}

}  // namespace orvane
