#include "src/frontend/shared/instance.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <system_error>

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

// The hash of Fowler, Noll and Vo: names of the system must be short, and without "\".
uint64_t Hash(const std::wstring& text) {
  uint64_t hash = 0xCBF29CE484222325;
  for (const wchar_t letter : text) {
    for (const unsigned byte : {letter & 0xFFU, unsigned{letter} >> 8}) {
      hash = (hash ^ byte) * 0x100000001B3;
    }
  }
  return hash;
}

std::string NameOf(const std::filesystem::path& folder) {
  std::array<char, 32> name{};
  const auto hash = static_cast<unsigned long long>(Hash(OneSpelling(folder)));
  std::snprintf(name.data(), name.size(), "Orvane-%016llx", hash);
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
