#include "src/platform/durable_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <optional>

#include "src/platform/system_message.h"

namespace orvane {
namespace {

constexpr mode_t kNewFile = 0644;
constexpr mode_t kModeBits = 07777;
constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

bool WriteAll(int file, const std::string& bytes) {
  size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t count = write(file, bytes.data() + done, bytes.size() - done);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    done += static_cast<size_t>(count);
  }
  return true;
}

// Writes the bytes to a file of that mode, or of a new file's where there is none to keep.
bool WriteAndFlush(const std::string& path, const std::string& bytes, std::optional<mode_t> mode) {
  const int file =
      open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, mode.value_or(kNewFile));
  if (file < 0) return false;
  const bool written =
      (!mode || fchmod(file, *mode) == 0) && WriteAll(file, bytes) && fsync(file) == 0;
  const int reason = errno;
  const bool closed = close(file) == 0;
  if (!written) errno = reason;
  return closed && written;
}

// A rename lasts only once the folder that holds the name is on the disk.
void FlushFolderOf(const std::string& path) {
  const size_t slash = path.rfind('/');
  const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return;
  fsync(handle);
  close(handle);
}

}  // namespace

std::string ReplaceFileDurably(const std::filesystem::path& path, const std::string& bytes) {
  const std::string& name = path.native();
  struct stat old {};
  std::optional<mode_t> mode;
  if (stat(name.c_str(), &old) == 0) {
    // A rename would not ask the old file. One that nobody may write is locked for root as well.
    if ((old.st_mode & kAnyWrite) == 0 || faccessat(AT_FDCWD, name.c_str(), W_OK, AT_EACCESS) != 0)
      return SystemMessage(EACCES);
    mode = old.st_mode & kModeBits;
  }
  const std::string fresh = name + ".new";
  if (!WriteAndFlush(fresh, bytes, mode) || std::rename(fresh.c_str(), name.c_str()) != 0) {
    const int reason = errno;
    unlink(fresh.c_str());
    return SystemMessage(reason);
  }
  FlushFolderOf(name);
  return {};
}

}  // namespace orvane
