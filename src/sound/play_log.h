// Tells beside a recording what was asked for and shown, and when: to compare with what is heard.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>

namespace orvane {

// A text file. Its first line is "delay SECONDS": by how much the player hears what is recorded
// later than its place in the recording says. Every other line is the place in the recording, in
// seconds, that stands for the moment of writing, then what happened at that moment.
class PlayLog {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  // `rate` is in frames a second. What cannot be written is left out.
  PlayLog(const std::string& path, int rate);

  // The recording begins; from any thread, once.
  void Begin(double delay);
  // The next `frames` of the recording are made now and stand for the time that begins at `from`.
  void Pulled(std::size_t frames, TimePoint from);
  // Adds a line; from any thread. Nothing before the recording has begun.
  void Write(const std::string& what);

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  std::mutex mutex_;
  std::unique_ptr<std::FILE, Closer> file_;
  double rate_;
  std::size_t recorded_ = 0;  // frames before those that were made last
  std::size_t last_ = 0;      // frames that were made last
  TimePoint from_;            // what the first of those stands for
  bool begun_ = false;
};

}  // namespace orvane
