#include "src/frontend/desktop/instance.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <csignal>
#include <system_error>

#include "src/frontend/desktop/signals.h"

namespace orvane {
namespace {

// Locks lie with other things of the running session, named after the folder.
QString LockName(const std::filesystem::path& folder) {
  std::error_code failed;
  const auto whole = std::filesystem::weakly_canonical(folder, failed);
  const auto path = QByteArray::fromStdString(failed ? folder.string() : whole.string());
  const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
  const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
  const QString place = session.isEmpty() ? QDir::tempPath() : session;
  return QString("%1/orvane-%2-%3.lock").arg(place).arg(getuid()).arg(QString(hash.left(16)));
}

}  // namespace

Instance::Instance(const std::filesystem::path& folder) : lock_(LockName(folder)) {
  lock_.setStaleLockTime(0);  // a game may be played for days
  first_ = lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError;
}

void Instance::CallFirst() const {
  qint64 process = 0;
  QString host;
  QString program;
  if (lock_.getLockInfo(&process, &host, &program)) kill(static_cast<pid_t>(process), CallSignal);
}

}  // namespace orvane
