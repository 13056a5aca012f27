#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

#include "src/sound/output.h"

namespace orvane {
namespace {

using Clock = std::chrono::steady_clock;
// Nobody hears it: often enough for a piece to be known to end within a tick of the field; and
// where nothing plays, for a command to be taken before long, which then counts from when it was
// given.
constexpr auto kPause = std::chrono::milliseconds(33);
constexpr auto kSilentPause = std::chrono::milliseconds(100);
// What a machine that was asleep has missed beyond this is left out.
constexpr double kMostBehind = 0.5;

class ClockOutput : public Output {
 public:
  ClockOutput(int rate, PullFunction pull)
      : rate_(rate), pull_(std::move(pull)), thread_([this] { Run(); }) {}

  ~ClockOutput() override {
    {
      const std::scoped_lock lock(mutex_);
      stop_ = true;
    }
    wake_.notify_all();
    thread_.join();
  }

  double Delay() const override { return 0; }

 private:
  void Run() {
    std::vector<float> frames;
    Clock::time_point start = Clock::now();
    double pulled = 0;  // seconds since the start
    bool plays = true;
    std::unique_lock lock(mutex_);
    while (!wake_.wait_for(lock, plays ? kPause : kSilentPause, [this] { return stop_; })) {
      const double passed = std::chrono::duration<double>(Clock::now() - start).count();
      if (passed - pulled > kMostBehind) {
        start = Clock::now() - std::chrono::milliseconds(500);
        pulled = 0;
      }
      const double due = std::min(passed - pulled, kMostBehind);
      const auto count = static_cast<std::size_t>(std::max(due, 0.0) * rate_);
      frames.resize(2 * count);
      const auto from = start + std::chrono::duration_cast<Clock::duration>(
                                    std::chrono::duration<double>(pulled));
      lock.unlock();
      plays = pull_(frames.data(), count, from);
      lock.lock();
      pulled += static_cast<double>(count) / rate_;
    }
  }

  const int rate_;
  PullFunction pull_;
  std::mutex mutex_;
  std::condition_variable wake_;
  bool stop_ = false;
  std::thread thread_;  // last: it runs as soon as it is made
};

}  // namespace

std::unique_ptr<Output> OpenClock(int rate, PullFunction pull) {
  return std::make_unique<ClockOutput>(rate, std::move(pull));
}

}  // namespace orvane
