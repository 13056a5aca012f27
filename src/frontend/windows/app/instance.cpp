#include "src/frontend/shared/instance.h"

#include <array>
#include <cstdio>
#include <system_error>

#include "src/base/byte_sum.h"
#include "src/frontend/windows/app/message_window.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

// The folder in one spelling, of the many that the system takes for it.
std::wstring OneSpelling(const std::filesystem::path& folder) {
  std::error_code failed;
  std::filesystem::path whole = std::filesystem::weakly_canonical(folder, failed);
  if (failed) whole = folder;
  std::wstring spelling = whole.make_preferred().wstring();
  while (!spelling.empty() && spelling.back() == L'\\') spelling.pop_back();
  CharLowerBuffW(spelling.data(), static_cast<DWORD>(spelling.size()));
  return spelling;
}

// Names of the system must be short, and without "\".
std::string NameOf(const std::filesystem::path& folder) {
  ByteSum sum;
  for (const wchar_t letter : OneSpelling(folder)) {
    for (const unsigned byte : {letter & 0xFFU, unsigned{letter} >> 8}) sum.Add(byte);
  }
  std::array<char, 32> name{};
  std::snprintf(name.data(), name.size(), "Orvane-%016llx",
                static_cast<unsigned long long>(sum.Value()));
  return name.data();
}

}  // namespace

struct Instance::Lock {
  HANDLE Mutex;
  bool IsFirst;
};

Instance::Instance(const std::filesystem::path& folder) : name_(NameOf(folder)) {
  const HANDLE mutex = CreateMutexW(nullptr, FALSE, (L"Local\\" + Wide(name_)).c_str());
  const bool is_first = GetLastError() != ERROR_ALREADY_EXISTS;
  lock_ = std::make_unique<Lock>(Lock{mutex, is_first});
}

Instance::~Instance() {
  if (lock_->Mutex != nullptr) CloseHandle(lock_->Mutex);
}

bool Instance::IsFirst() const {
  return lock_->IsFirst;
}

void Instance::CallFirst() const {
  // It may have only just begun.
  constexpr int tries = 50;
  constexpr DWORD pause_ms = 100;
  for (int i = 0; i < tries; ++i) {
    if (const HWND first = MessageWindow::Find(Wide(name_))) {
      // Only the program in front may put another one there.
      DWORD process = 0;
      GetWindowThreadProcessId(first, &process);
      AllowSetForegroundWindow(process);
      PostMessageW(first, kCallMessage, 0, 0);
      return;
    }
    Sleep(pause_ms);
  }
}

}  // namespace orvane
