#include "src/platform/durable_file.h"

#include <cerrno>
#include <optional>

#include "src/platform/posix/replace_steps.h"
#include "src/platform/system_message.h"

namespace orvane {
namespace {

int WriteAll(int file, const std::string& bytes, ReplaceSteps& steps) {
  size_t done = 0;
  while (done < bytes.size()) {
    size_t count = 0;
    const int error = steps.Write(file, bytes.data() + done, bytes.size() - done, count);
    if (error == EINTR) continue;
    if (error != 0) return error;
    if (count == 0) return EIO;
    done += count;
  }
  return 0;
}

// Writes the bytes to a file of that mode, or of a new file's where there is none to keep.
int WriteAndFlush(const std::string& name, const std::string& bytes, std::optional<unsigned> mode,
                  ReplaceSteps& steps) {
  int file = -1;
  if (const int error = steps.Create(name, mode, file); error != 0) return error;
  int error = WriteAll(file, bytes, steps);
  if (error == 0) error = steps.Flush(file);
  const int closing = steps.Close(file);
  return error != 0 ? error : closing;
}

// A rename lasts only once the folder that holds the name is on the disk. Where that cannot be
// asked for, it comes by itself.
int FlushFolderOf(const std::string& name, ReplaceSteps& steps) {
  const size_t slash = name.rfind('/');
  const int error = steps.FlushFolder(slash == std::string::npos ? "." : name.substr(0, slash + 1));
  return error == EINVAL || error == ENOTSUP || error == ENOSYS || error == EACCES ? 0 : error;
}

}  // namespace

std::string ReplaceFileBySteps(const std::filesystem::path& path, const std::string& bytes,
                               ReplaceSteps& steps) {
  const std::string& name = path.native();
  std::optional<unsigned> mode;
  // A rename would not ask the old file.
  if (const int error = steps.AskToWrite(name, mode); error != 0) return SystemMessage(error);
  const std::string fresh = name + ".new";
  int error = WriteAndFlush(fresh, bytes, mode, steps);
  if (error == 0) error = steps.Rename(fresh, name);
  if (error != 0) {
    steps.Delete(fresh);
    return SystemMessage(error);
  }
  error = FlushFolderOf(name, steps);
  return error == 0 ? std::string() : SystemMessage(error);
}

std::string ReplaceFileDurably(const std::filesystem::path& path, const std::string& bytes) {
  ReplaceSteps steps;
  return ReplaceFileBySteps(path, bytes, steps);
}

}  // namespace orvane
