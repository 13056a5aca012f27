#include "src/frontend/desktop/app/signals.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <csignal>
#include <initializer_list>
#include <utility>

namespace orvane {

namespace {

sigset_t SetOf(std::initializer_list<int> numbers) {
  sigset_t set;
  sigemptyset(&set);
  for (const int number : numbers) sigaddset(&set, number);
  return set;
}

sigset_t EndSignals() {
  return SetOf({SIGTERM, SIGINT, SIGHUP});
}

// Calls `answer` from the event loop whenever one of the signals has come.
void OnSignals(const sigset_t& wanted, std::function<void()> answer) {
  const int file = signalfd(-1, &wanted, SFD_NONBLOCK | SFD_CLOEXEC);
  if (file < 0) {
    // Then they do to the process what they always do.
    sigprocmask(SIG_UNBLOCK, &wanted, nullptr);
    return;
  }
  auto* notifier = new QSocketNotifier(file, QSocketNotifier::Read, QCoreApplication::instance());
  QObject::connect(notifier, &QSocketNotifier::activated, notifier,
                   [file, answer = std::move(answer)] {
                     signalfd_siginfo taken{};
                     while (read(file, &taken, sizeof taken) > 0) {
                     }
                     answer();
                   });
}

}  // namespace

void HoldSignals() {
  for (const sigset_t& set : {EndSignals(), SetOf({kCallSignal})}) {
    sigprocmask(SIG_BLOCK, &set, nullptr);
  }
}

void OnEndSignals(std::function<void()> end) {
  OnSignals(EndSignals(), [end = std::move(end), ended = false]() mutable {
    if (!std::exchange(ended, true)) end();
  });
}

void OnCallSignal(std::function<void()> come) {
  OnSignals(SetOf({kCallSignal}), std::move(come));
}

}  // namespace orvane
