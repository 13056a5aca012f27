#include "src/frontend/shared/instance.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <cerrno>
#include <csignal>
#include <system_error>

#include "src/frontend/desktop/app/signals.h"
#include "src/platform/path_text.h"

namespace orvane {
namespace {

// Locks lie with other things of the running session, named after the folder.
std::string LockName(const std::filesystem::path& folder) {
  std::error_code failed;
  const auto whole = std::filesystem::weakly_canonical(folder, failed);
  const auto path = QByteArray::fromStdString(TextOf(failed ? folder : whole));
  const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
  const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
  const QString place = session.isEmpty() ? QDir::tempPath() : session;
  return QString("%1/orvane-%2-%3.lock")
      .arg(place)
      .arg(getuid())
      .arg(QString(hash.left(16)))
      .toStdString();
}

// The last of them keeps sessions' cleaners from taking it for something forgotten.
constexpr mode_t kOwnAndKept = S_IRUSR | S_IWUSR | S_ISVTX;

// A lock on the whole file, to ask about or to take.
struct flock WholeFile() {
  struct flock lock = {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  return lock;
}

// Whether the file still has its name: the game that held it before takes the name away at its end.
bool IsStillNamed(int file, const std::string& name) {
  struct stat opened = {};
  struct stat named = {};
  return fstat(file, &opened) == 0 && stat(name.c_str(), &named) == 0 &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

}  // namespace

struct Instance::Lock {
  int File = -1;
  bool IsFirst = true;
};

Instance::Instance(const std::filesystem::path& folder)
    : name_(LockName(folder)), lock_(std::make_unique<Lock>()) {
  int& file = lock_->File;
  do {
    if (file >= 0) close(file);
    file = open(name_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, kOwnAndKept);
    if (file < 0) return;
    const struct flock lock = WholeFile();
    if (fcntl(file, F_SETLK, &lock) != 0) {
      lock_->IsFirst = errno != EACCES && errno != EAGAIN;
      return;
    }
  } while (!IsStillNamed(file, name_));
}

Instance::~Instance() {
  if (lock_->File < 0) return;
  if (lock_->IsFirst) unlink(name_.c_str());
  close(lock_->File);
}

bool Instance::IsFirst() const {
  return lock_->IsFirst;
}

void Instance::CallFirst() const {
  struct flock lock = WholeFile();
  if (lock_->File < 0 || fcntl(lock_->File, F_GETLK, &lock) != 0) return;
  // A game that this process cannot see, one in another container, has no number here.
  if (lock.l_type != F_UNLCK && lock.l_pid > 0) kill(lock.l_pid, kCallSignal);
}

}  // namespace orvane
