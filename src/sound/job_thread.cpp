#include "src/sound/job_thread.h"

#include <utility>

namespace orvane {

JobThread::JobThread(std::function<void()> when_idle, std::chrono::milliseconds pause)
    : when_idle_(std::move(when_idle)), pause_(pause), thread_([this] { Run(); }) {}

JobThread::~JobThread() {
  {
    const std::scoped_lock lock(mutex_);
    leaving_.request_stop();
  }
  changed_.notify_all();
  thread_.join();
}

void JobThread::Post(std::function<void()> job) {
  {
    const std::scoped_lock lock(mutex_);
    jobs_.push_back(std::move(job));
    ++unfinished_;
  }
  changed_.notify_all();
}

void JobThread::Finish() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return unfinished_ == 0; });
}

void JobThread::Run() {
  const auto wanted = [this] { return leaving_.stop_requested() || !jobs_.empty(); };
  std::unique_lock lock(mutex_);
  while (true) {
    std::function<void()> job;
    if (when_idle_) {
      if (!changed_.wait_for(lock, pause_, wanted)) {
        job = std::exchange(when_idle_, nullptr);
        ++unfinished_;
      }
    } else {
      changed_.wait(lock, wanted);
    }
    if (leaving_.stop_requested()) return;
    if (!job) {
      job = std::move(jobs_.front());
      jobs_.pop_front();
    }
    lock.unlock();
    job();
    job = nullptr;  // what it holds is let go before it counts as done
    lock.lock();
    --unfinished_;
    changed_.notify_all();
  }
}

}  // namespace orvane
