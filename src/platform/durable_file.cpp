#include "src/platform/durable_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace orvane {
namespace {

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

bool WriteAndFlush(const std::string& path, const std::string& bytes) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (file < 0) return false;
  const bool written = WriteAll(file, bytes) && fsync(file) == 0;
  return close(file) == 0 && written;
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

bool ReplaceFileDurably(const std::string& path, const std::string& bytes) {
  const std::string fresh = path + ".new";
  if (!WriteAndFlush(fresh, bytes) || std::rename(fresh.c_str(), path.c_str()) != 0) {
    unlink(fresh.c_str());
    return false;
  }
  FlushFolderOf(path);
  return true;
}

}  // namespace orvane
