#include "src/platform/posix/replace_steps.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace orvane {
namespace {

constexpr mode_t kNewFile = 0644;
constexpr mode_t kModeBits = 07777;
constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

int ErrorUnless(bool done) {
  return done ? 0 : errno;
}

}  // namespace

int ReplaceSteps::AskToWrite(const std::string& name, std::optional<unsigned>& mode) {
  struct stat old {};
  if (stat(name.c_str(), &old) != 0) return 0;
  // One that nobody may write is locked for root as well.
  if ((old.st_mode & kAnyWrite) == 0) return EACCES;
  mode = old.st_mode & kModeBits;
  return faccessat(AT_FDCWD, name.c_str(), W_OK, AT_EACCESS) == 0 ? 0 : EACCES;
}

int ReplaceSteps::Create(const std::string& name, std::optional<unsigned> mode, int& file) {
  file = open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, mode.value_or(kNewFile));
  if (file < 0) return errno;
  if (!mode || fchmod(file, *mode) == 0) return 0;
  const int reason = errno;
  close(file);
  return reason;
}

int ReplaceSteps::Write(int file, const char* bytes, size_t size, size_t& written) {
  const ssize_t count = write(file, bytes, size);
  if (count < 0) return errno;
  written = static_cast<size_t>(count);
  return 0;
}

int ReplaceSteps::Flush(int file) {
  return ErrorUnless(fsync(file) == 0);
}

int ReplaceSteps::Close(int file) {
  return ErrorUnless(close(file) == 0);
}

int ReplaceSteps::Rename(const std::string& from, const std::string& to) {
  return ErrorUnless(std::rename(from.c_str(), to.c_str()) == 0);
}

int ReplaceSteps::FlushFolder(const std::string& folder) {
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return errno;
  const int reason = ErrorUnless(fsync(handle) == 0);
  close(handle);
  return reason;
}

int ReplaceSteps::Delete(const std::string& name) {
  return ErrorUnless(unlink(name.c_str()) == 0);
}

}  // namespace orvane
