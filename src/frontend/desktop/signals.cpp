#include "src/frontend/desktop/signals.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <csignal>
#include <utility>

namespace orvane {

namespace {

sigset_t EndSignals() {
  sigset_t wanted;
  sigemptyset(&wanted);
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&wanted, number);
  return wanted;
}

}  // namespace

void HoldEndSignals() {
  const sigset_t wanted = EndSignals();
  sigprocmask(SIG_BLOCK, &wanted, nullptr);
}

void OnEndSignals(std::function<void()> end) {
  const sigset_t wanted = EndSignals();
  const int file = signalfd(-1, &wanted, SFD_NONBLOCK | SFD_CLOEXEC);
  if (file < 0) {
    // Then they end the process as they always do.
    sigprocmask(SIG_UNBLOCK, &wanted, nullptr);
    return;
  }
  auto* notifier = new QSocketNotifier(file, QSocketNotifier::Read, QCoreApplication::instance());
  QObject::connect(notifier, &QSocketNotifier::activated, notifier,
                   [notifier, end = std::move(end)] {
                     notifier->setEnabled(false);
                     end();
                   });
}

}  // namespace orvane
