#include "src/platform/windows/instance.h"

#include <array>
#include <cstdio>
#include <utility>

#include "src/platform/windows/windows_api.h"

namespace orvane {
namespace {

// The name of a folder's lock: its numbers on the disk, which are the same whatever way leads
// there. Empty where it cannot be looked at.
std::string LockName(const std::filesystem::path& folder) {
  const HANDLE handle =
      CreateFileW(folder.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return {};
  BY_HANDLE_FILE_INFORMATION facts{};
  const BOOL known = GetFileInformationByHandle(handle, &facts);
  CloseHandle(handle);
  if (known == 0) return {};
  std::array<char, 80> name{};
  std::snprintf(name.data(), name.size(), "Local\\Orvane-%08lx-%08lx%08lx",
                facts.dwVolumeSerialNumber, facts.nFileIndexHigh, facts.nFileIndexLow);
  return name.data();
}

}  // namespace

Instance::Instance(const std::filesystem::path& folder) : name_(LockName(folder)) {
  if (name_.empty()) return;
  call_ = CreateEventA(nullptr, FALSE, FALSE, (name_ + "-call").c_str());
  holder_ = CreateMutexA(nullptr, FALSE, name_.c_str());
  first_ = holder_ == nullptr || GetLastError() != ERROR_ALREADY_EXISTS;
}

Instance::~Instance() {
  if (wait_ != nullptr) UnregisterWaitEx(wait_, INVALID_HANDLE_VALUE);
  if (holder_ != nullptr) CloseHandle(holder_);
  if (call_ != nullptr) CloseHandle(call_);
}

void Instance::CallFirst() const {
  if (call_ == nullptr) return;
  // Only who has just been started by the player may come to the front, or let another.
  AllowSetForegroundWindow(ASFW_ANY);
  SetEvent(call_);
}

void Instance::WhenCalled(std::function<void()> called) {
  if (call_ == nullptr || wait_ != nullptr) return;
  called_ = std::move(called);
  const WAITORTIMERCALLBACK call = [](void* self, BOOLEAN /*timed_out*/) {
    static_cast<Instance*>(self)->called_();
  };
  RegisterWaitForSingleObject(&wait_, call_, call, this, INFINITE, WT_EXECUTEDEFAULT);
}

}  // namespace orvane
