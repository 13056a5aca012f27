#include "src/sound/recorder.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "src/platform/path_text.h"

namespace orvane {
namespace {

constexpr std::uint32_t kHeaderBytes = 44;
constexpr std::uint32_t kFrameBytes = 4;
constexpr float kFullScale = 32767.0F;

// Numbers in a WAV file have their least significant byte first.
void Put(std::array<char, kHeaderBytes>& header, size_t place, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) {
    header.at(place + static_cast<size_t>(i)) = static_cast<char>((value >> (8 * i)) & 0xffU);
  }
}

}  // namespace

Recorder::Recorder(const std::string& path, int rate)
    : file_(PathOf(path), std::ios::binary | std::ios::trunc), rate_(rate) {
  WriteHeader();
}

Recorder::~Recorder() {
  WriteHeader();
}

void Recorder::WriteHeader() {
  if (!file_.is_open()) return;
  std::array<char, kHeaderBytes> header{'R', 'I', 'F', 'F', 0,  0, 0, 0, 'W', 'A', 'V', 'E',
                                        'f', 'm', 't', ' ', 16, 0, 0, 0, 1,   0,   2,   0};
  const auto rate = static_cast<std::uint32_t>(rate_);
  const std::uint32_t bytes = frames_ * kFrameBytes;
  Put(header, 4, bytes + kHeaderBytes - 8, 4);
  Put(header, 24, rate, 4);
  Put(header, 28, rate * kFrameBytes, 4);
  Put(header, 32, kFrameBytes, 2);
  Put(header, 34, 16, 2);
  std::copy_n("data", 4, header.begin() + 36);
  Put(header, 40, bytes, 4);
  file_.seekp(0);
  file_.write(header.data(), static_cast<std::streamsize>(header.size()));
  file_.seekp(0, std::ios::end);
  file_.flush();
  frames_at_header_ = frames_;
}

void Recorder::Write(const float* samples, size_t frames) {
  if (!file_.is_open()) return;
  bytes_.clear();
  for (size_t i = 0; i < 2 * frames; ++i) {
    const float sample = std::clamp(samples[i], -1.0F, 1.0F) * kFullScale;
    const auto level = static_cast<std::uint16_t>(static_cast<std::int16_t>(std::lround(sample)));
    // The file's order of bytes, whatever the machine's.
    const std::array<char, 2> bytes{static_cast<char>(level & 0xffU),
                                    static_cast<char>(level >> 8U)};
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
  }
  file_.write(bytes_.data(), static_cast<std::streamsize>(bytes_.size()));
  frames_ += static_cast<std::uint32_t>(frames);
  if (frames_ - frames_at_header_ >= static_cast<std::uint32_t>(rate_)) WriteHeader();
}

}  // namespace orvane
