#include "src/sound/play_log.h"

namespace orvane {

PlayLog::PlayLog(const std::string& path, int rate)
    : file_(std::fopen(path.c_str(), "wb")), rate_(rate) {}

void PlayLog::Begin(double delay) {
  const std::scoped_lock lock(mutex_);
  if (file_ == nullptr || begun_) return;
  begun_ = true;
  if (last_ == 0) from_ = std::chrono::steady_clock::now();
  std::fprintf(file_.get(), "delay %.6f\n", delay);
}

void PlayLog::Pulled(std::size_t frames, TimePoint from) {
  const std::scoped_lock lock(mutex_);
  recorded_ += last_;
  last_ = frames;
  from_ = from;
}

void PlayLog::Write(const std::string& what) {
  const std::scoped_lock lock(mutex_);
  if (!begun_) return;
  const auto passed = std::chrono::steady_clock::now() - from_;
  const double place =
      static_cast<double>(recorded_) / rate_ + std::chrono::duration<double>(passed).count();
  std::fprintf(file_.get(), "%.6f %s\n", place, what.c_str());
  std::fflush(file_.get());  // a program that is stopped in the middle leaves it whole
}

}  // namespace orvane
