// Writes what is played to a file, to look at it afterwards.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>

namespace orvane {

// A WAV file of two channels and 16 bits. Its header is kept true about once a second, so that a
// program that is stopped in the middle leaves a file that can be read.
class Recorder {
 public:
  Recorder(const std::string& path, int rate);
  ~Recorder();
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  // Whether the file could be opened. Writing to one that could not does nothing.
  bool Open() const { return file_.is_open(); }
  // Adds frames, left and right in turn, within -1 to 1.
  void Write(const float* samples, size_t frames);

 private:
  void WriteHeader();

  std::ofstream file_;
  int rate_;
  std::uint32_t frames_ = 0;
  std::uint32_t frames_at_header_ = 0;
  std::string bytes_;
};

}  // namespace orvane
