#include "src/platform/windows/replace_steps.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

namespace orvane {
namespace {

// The system's name for them, which older headers lack.
constexpr auto kRenameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
constexpr DWORD kReplaceIfThere = 1;
constexpr DWORD kPosixSemantics = 2;
// A write takes no more at once.
constexpr size_t kLargestPart = size_t{1} << 30;

DWORD ErrorUnless(BOOL done) {
  return done != 0 ? ERROR_SUCCESS : GetLastError();
}

}  // namespace

DWORD ReplaceSteps::AskToWrite(const std::wstring& name) {
  const DWORD attributes = GetFileAttributesW(name.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return GetLastError();
  // A file that nobody may write is locked for administrators as well.
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) return ERROR_ACCESS_DENIED;
  const HANDLE file = CreateFileW(name.c_str(), GENERIC_WRITE,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return GetLastError();
  CloseHandle(file);
  return ERROR_SUCCESS;
}

DWORD ReplaceSteps::Create(const std::wstring& name, HANDLE& file) {
  file = CreateFileW(name.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_ALWAYS,
                     FILE_ATTRIBUTE_NORMAL, nullptr);
  return ErrorUnless(file != INVALID_HANDLE_VALUE);
}

DWORD ReplaceSteps::Write(HANDLE file, const char* bytes, size_t size, size_t& written) {
  DWORD count = 0;
  const BOOL done =
      WriteFile(file, bytes, static_cast<DWORD>(std::min(size, kLargestPart)), &count, nullptr);
  written = count;
  return ErrorUnless(done);
}

DWORD ReplaceSteps::Flush(HANDLE file) {
  return ErrorUnless(FlushFileBuffers(file));
}

DWORD ReplaceSteps::RenameOpen(HANDLE file, const std::wstring& to) {
  const size_t letters = to.size() * sizeof(wchar_t);
  // In whole units of the structure, so that it lies where it may.
  std::vector<FILE_RENAME_INFO> room(1 + (letters + sizeof(FILE_RENAME_INFO)) /
                                             sizeof(FILE_RENAME_INFO));
  FILE_RENAME_INFO& info = room.front();
  // The flags lie where the older call has its first field.
  constexpr DWORD flags = kReplaceIfThere | kPosixSemantics;
  std::memcpy(&info, &flags, sizeof flags);
  info.FileNameLength = static_cast<DWORD>(letters);
  std::memcpy(reinterpret_cast<char*>(&info) + offsetof(FILE_RENAME_INFO, FileName), to.data(),
              letters);
  return ErrorUnless(SetFileInformationByHandle(
      file, kRenameInfoEx, &info, static_cast<DWORD>(room.size() * sizeof(FILE_RENAME_INFO))));
}

DWORD ReplaceSteps::Close(HANDLE file) {
  return ErrorUnless(CloseHandle(file));
}

DWORD ReplaceSteps::Move(const std::wstring& from, const std::wstring& to) {
  return ErrorUnless(
      MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

DWORD ReplaceSteps::Delete(const std::wstring& name) {
  return ErrorUnless(DeleteFileW(name.c_str()));
}

void ReplaceSteps::Wait(DWORD milliseconds) {
  Sleep(milliseconds);
}

}  // namespace orvane
