// The steps of a POSIX system on the disk in memory.
#include <gtest/gtest.h>

#include <array>
#include <cerrno>

#include "src/platform/path_text.h"
#include "src/platform/posix/replace_steps.h"
#include "tests/power/cuts.h"

namespace orvane::power {
namespace {

class DiskSteps : public ReplaceSteps {
 public:
  explicit DiskSteps(Trouble& trouble) : trouble_(trouble) {}

  int AskToWrite(const std::string& /*name*/, std::optional<unsigned>& /*mode*/) override {
    return Begin() ? EACCES : 0;
  }
  int Create(const std::string& name, std::optional<unsigned> /*mode*/, int& file) override {
    folder_ = name.substr(0, name.rfind('/') + 1);
    if (Begin()) return AnyError();
    file = trouble_.On.Create(OnDisk(name));
    return 0;
  }
  int Write(int file, const char* bytes, size_t size, size_t& written) override {
    if (Begin()) return trouble_.Random() % 2 == 0 ? EINTR : AnyError();
    const size_t part = 1 + trouble_.Random() % size;
    written = trouble_.On.Write(file, std::string(bytes, part));
    return written == 0 ? ENOSPC : 0;
  }
  int Flush(int file) override {
    if (Begin()) {
      trouble_.On.FlushBadly(file);
      return AnyError();
    }
    trouble_.On.Flush(file);
    return 0;
  }
  int Close(int /*file*/) override { return Begin() ? AnyError() : 0; }
  int Rename(const std::string& from, const std::string& to) override {
    if (Begin()) return AnyError();
    trouble_.On.Rename(OnDisk(from), OnDisk(to));
    return 0;
  }
  int FlushFolder(const std::string& folder) override {
    EXPECT_EQ(folder, folder_);
    const bool fails = Begin();
    // A system that does not know this call brings names to the disk by itself.
    const bool unknown = fails && trouble_.Random() % 2 == 0;
    if (!fails || unknown) trouble_.On.FlushNames();
    if (!fails) return 0;
    return unknown ? EINVAL : AnyError();
  }
  int Delete(const std::string& name) override {
    if (Begin()) return AnyError();
    if (!trouble_.On.Has(OnDisk(name))) return ENOENT;
    trouble_.On.Delete(OnDisk(name));
    return 0;
  }

 private:
  // The disk has one folder, and knows its files by their own names.
  static std::string OnDisk(const std::string& name) { return name.substr(name.rfind('/') + 1); }

  bool Begin() {
    trouble_.Step();
    return trouble_.StepFails();
  }
  int AnyError() {
    constexpr std::array errors = {EIO, ENOSPC, EDQUOT, EROFS, EPERM, ENOMEM};
    return errors.at(trouble_.Random() % errors.size());
  }

  Trouble& trouble_;
  std::string folder_;  // of the file that is written
};

}  // namespace

const std::vector<Way>& Ways() {
  static const std::vector<Way> ways = {
      {"POSIX", [](const std::filesystem::path& path, const std::string& bytes, Trouble& trouble) {
         DiskSteps steps(trouble);
         return ReplaceFileBySteps(path, bytes, steps);
       }}};
  return ways;
}

}  // namespace orvane::power
