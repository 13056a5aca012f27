// The steps of Windows on the disk in memory, which flushes a renamed file's name with the file.
#include <algorithm>
#include <array>
#include <cstdint>

#include "src/platform/path_text.h"
#include "src/platform/windows/replace_steps.h"
#include "src/platform/windows/wide_text.h"
#include "tests/power/cuts.h"

namespace orvane::power {
namespace {

// The disk has one folder, and knows its files by their own names.
std::string OnDisk(const std::wstring& name) {
  return TextOf(std::filesystem::path(name).filename());
}

// Files are known by numbers, which stand in place of handles.
HANDLE HandleOf(int file) {
  return reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(file));
}
int FileOf(HANDLE handle) {
  return static_cast<int>(reinterpret_cast<std::intptr_t>(handle));
}

class DiskSteps : public ReplaceSteps {
 public:
  DiskSteps(Trouble& trouble, bool is_old_system)
      : trouble_(trouble), is_old_system_(is_old_system) {}

  DWORD AskToWrite(const std::wstring& /*name*/) override {
    return Begin() ? AnyError() : DWORD{ERROR_SUCCESS};
  }
  DWORD Create(const std::wstring& name, HANDLE& file) override {
    if (Begin()) return AnyError();
    file = HandleOf(trouble_.On.Create(OnDisk(name)));
    return ERROR_SUCCESS;
  }
  DWORD Write(HANDLE file, const char* bytes, size_t size, size_t& written) override {
    if (Begin()) return AnyError();
    const size_t part = 1 + trouble_.Random() % size;
    written = trouble_.On.Write(FileOf(file), std::string(bytes, part));
    return written == 0 ? ERROR_DISK_FULL : ERROR_SUCCESS;
  }
  DWORD Flush(HANDLE file) override {
    if (!Begin()) {
      trouble_.On.FlushNameOf(FileOf(file));
      return ERROR_SUCCESS;
    }
    const DWORD error = AnyError();
    // A system that does not know this call brings all to the disk by itself.
    if (error == ERROR_INVALID_FUNCTION || error == ERROR_NOT_SUPPORTED) {
      trouble_.On.FlushNameOf(FileOf(file));
    } else {
      trouble_.On.FlushBadly(FileOf(file));
    }
    return error;
  }
  DWORD RenameOpen(HANDLE file, const std::wstring& to) override {
    if (is_old_system_) return ERROR_INVALID_PARAMETER;
    if (Begin()) return AnyError();
    trouble_.On.Rename(trouble_.On.NameOf(FileOf(file)), OnDisk(to));
    return ERROR_SUCCESS;
  }
  DWORD Close(HANDLE /*file*/) override { return Begin() ? AnyError() : DWORD{ERROR_SUCCESS}; }
  DWORD Move(const std::wstring& from, const std::wstring& to) override {
    if (Begin()) return AnyError();
    trouble_.On.Rename(OnDisk(from), OnDisk(to));
    trouble_.On.FlushNames();
    return ERROR_SUCCESS;
  }
  DWORD Delete(const std::wstring& name) override {
    if (Begin()) return AnyError();
    if (!trouble_.On.Has(OnDisk(name))) return ERROR_FILE_NOT_FOUND;
    trouble_.On.Delete(OnDisk(name));
    return ERROR_SUCCESS;
  }
  void Wait(DWORD /*milliseconds*/) override {}

 private:
  bool Begin() {
    trouble_.Step();
    return trouble_.StepFails();
  }
  DWORD AnyError() {
    constexpr std::array<DWORD, 8> errors = {
        ERROR_DISK_FULL,     ERROR_ACCESS_DENIED, ERROR_SHARING_VIOLATION, ERROR_WRITE_FAULT,
        ERROR_WRITE_PROTECT, ERROR_NOT_SUPPORTED, ERROR_INVALID_FUNCTION,  ERROR_GEN_FAILURE};
    return errors.at(trouble_.Random() % errors.size());
  }

  Trouble& trouble_;
  bool is_old_system_;
};

Way WayOf(const char* name, bool is_old_system) {
  return {name, [=](const std::filesystem::path& path, const std::string& bytes, Trouble& trouble) {
            DiskSteps steps(trouble, is_old_system);
            return ReplaceFileBySteps(path, bytes, steps);
          }};
}

}  // namespace

const std::vector<Way>& Ways() {
  static const std::vector<Way> ways = {WayOf("Windows", false), WayOf("an old Windows", true)};
  return ways;
}

}  // namespace orvane::power
