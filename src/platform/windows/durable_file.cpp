#include "src/platform/durable_file.h"

#include <system_error>

#include "src/platform/system_message.h"
#include "src/platform/windows/replace_steps.h"

namespace orvane {
namespace {

// A scanner or an indexer holds a file for some milliseconds after it has changed. Beyond half a
// second a player would take the game for dead.
constexpr int kTries = 20;
constexpr DWORD kPause = 25;

bool IsHeld(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

// That a name is not to be taken at all has been asked before: what the system calls so later is a
// file that somebody holds, or one that is just going.
bool NameIsHeld(DWORD error) {
  return IsHeld(error) || error == ERROR_ACCESS_DENIED;
}

// Takes a step until it is done, or fails otherwise than by what may be over in a moment.
template <class Step>
DWORD Insist(ReplaceSteps& steps, bool (*may_pass)(DWORD error), const Step& step) {
  DWORD error = step();
  for (int tries = 1; tries < kTries && may_pass(error); ++tries) {
    steps.Wait(kPause);
    error = step();
  }
  return error;
}

// Whether the system, or the file system, does not know a call.
bool IsUnknown(DWORD error) {
  return error == ERROR_INVALID_PARAMETER || error == ERROR_NOT_SUPPORTED ||
         error == ERROR_INVALID_FUNCTION || error == ERROR_CALL_NOT_IMPLEMENTED ||
         error == ERROR_INVALID_LEVEL;
}

// Brings what was written to the disk; where that cannot be asked for, it comes by itself.
DWORD Flush(HANDLE file, ReplaceSteps& steps) {
  const DWORD error = steps.Flush(file);
  return IsUnknown(error) ? DWORD{ERROR_SUCCESS} : error;
}

DWORD WriteAll(HANDLE file, const std::string& bytes, ReplaceSteps& steps) {
  size_t done = 0;
  while (done < bytes.size()) {
    size_t count = 0;
    const DWORD error = steps.Write(file, bytes.data() + done, bytes.size() - done, count);
    if (error != ERROR_SUCCESS) return error;
    if (count == 0) return ERROR_WRITE_FAULT;
    done += count;
  }
  return Flush(file, steps);
}

// Writes the bytes under one name and gives them the other.
DWORD WriteAndRename(const std::wstring& fresh, const std::wstring& name, const std::string& bytes,
                     ReplaceSteps& steps) {
  HANDLE file = INVALID_HANDLE_VALUE;
  DWORD error = Insist(steps, &IsHeld, [&] { return steps.Create(fresh, file); });
  if (error != ERROR_SUCCESS) return error;
  error = WriteAll(file, bytes, steps);
  const bool is_written = error == ERROR_SUCCESS;
  if (is_written) {
    error = Insist(steps, &NameIsHeld, [&] { return steps.RenameOpen(file, name); });
    if (error == ERROR_SUCCESS) {
      // The new name lasts once it is on the disk.
      error = Flush(file, steps);
      steps.Close(file);
      return error;
    }
  }
  const DWORD closing = steps.Close(file);
  if (!is_written || !IsUnknown(error)) return error;
  if (closing != ERROR_SUCCESS) return closing;
  return Insist(steps, &NameIsHeld, [&] { return steps.Move(fresh, name); });
}

}  // namespace

std::string ReplaceFileBySteps(const std::filesystem::path& path, const std::string& bytes,
                               ReplaceSteps& steps) {
  std::error_code failed;
  const std::wstring name = std::filesystem::absolute(path, failed).make_preferred().native();
  // Only what the player may write is replaced: a rename would not ask the old file.
  if (steps.AskToWrite(name) == ERROR_ACCESS_DENIED) return SystemMessage(ERROR_ACCESS_DENIED);
  const std::wstring fresh = name + L".new";
  const DWORD error = WriteAndRename(fresh, name, bytes, steps);
  if (error == ERROR_SUCCESS) return {};
  steps.Delete(fresh);
  return SystemMessage(static_cast<int>(error));
}

std::string ReplaceFileDurably(const std::filesystem::path& path, const std::string& bytes) {
  ReplaceSteps steps;
  return ReplaceFileBySteps(path, bytes, steps);
}

}  // namespace orvane
