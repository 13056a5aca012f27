// Work in the background.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>

namespace orvane {

// Carries out jobs one after the other on a thread of its own. Destroying it drops those that have
// not begun and waits for the one that runs, which Leaving asks to come to its end.
class JobThread {
 public:
  // `when_idle` runs once, when there has been nothing to do for `pause`.
  JobThread(std::function<void()> when_idle, std::chrono::milliseconds pause);
  ~JobThread();
  JobThread(const JobThread&) = delete;
  JobThread& operator=(const JobThread&) = delete;

  void Post(std::function<void()> job);
  // For jobs that take long: whether nobody waits for the outcome any more.
  std::stop_token Leaving() const { return leaving_.get_token(); }
  // Waits until all jobs posted so far are done.
  void Finish();

 private:
  void Run();

  std::function<void()> when_idle_;
  std::chrono::milliseconds pause_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<std::function<void()>> jobs_;
  int unfinished_ = 0;  // jobs that wait, or run
  std::stop_source leaving_;
  std::thread thread_;  // last: it runs as soon as it is made
};

}  // namespace orvane
