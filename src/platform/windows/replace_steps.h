// The steps in which a file is replaced, each a call of the system's, so that a test can see any of
// them fail.
#pragma once

#include <filesystem>
#include <string>

#include "src/platform/windows/windows_api.h"

namespace orvane {

// Each step returns the system's error code, ERROR_SUCCESS when it is done. Names are paths.
class ReplaceSteps {
 public:
  ReplaceSteps() = default;
  ReplaceSteps(const ReplaceSteps&) = delete;
  ReplaceSteps& operator=(const ReplaceSteps&) = delete;
  virtual ~ReplaceSteps() = default;

  // Whether a file may be written, without writing to it.
  virtual DWORD AskToWrite(const std::wstring& name);
  // Makes an empty file, or empties the one that is there.
  virtual DWORD Create(const std::wstring& name, HANDLE& file);
  // Writes a part of the bytes, and says how large a part.
  virtual DWORD Write(HANDLE file, const char* bytes, size_t size, size_t& written);
  virtual DWORD Flush(HANDLE file);
  // Gives the open file another name, in the place of whatever has it, even while that is read.
  // Systems before Windows 10, and file systems other than theirs, do not know how.
  virtual DWORD RenameOpen(HANDLE file, const std::wstring& to);
  virtual DWORD Close(HANDLE file);
  // The older way: renames a closed file, and returns when that is on the disk.
  virtual DWORD Move(const std::wstring& from, const std::wstring& to);
  virtual DWORD Delete(const std::wstring& name);
  // Lets time pass, until who holds a file has let go.
  virtual void Wait(DWORD milliseconds);
};

// What ReplaceFileDurably does, by these steps.
std::string ReplaceFileBySteps(const std::filesystem::path& path, const std::string& bytes,
                               ReplaceSteps& steps);

}  // namespace orvane
