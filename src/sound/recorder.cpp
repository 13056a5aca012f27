#include "src/sound/recorder.h"

#include <algorithm>
#include <cmath>

#include "src/base/little_endian.h"
#include "src/platform/path_text.h"

namespace orvane {
namespace {

constexpr std::uint32_t kHeaderBytes = 44;
constexpr std::uint32_t kFrameBytes = 4;
constexpr float kFullScale = 32767.0F;

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
  const auto rate = static_cast<std::uint32_t>(rate_);
  const std::uint32_t bytes = frames_ * kFrameBytes;
  std::string header = "RIFF";
  AppendLittleEndian(header, bytes + kHeaderBytes - 8, 4);
  header += "WAVEfmt ";
  AppendLittleEndian(header, 16, 4);  // bytes of the description
  AppendLittleEndian(header, 1, 2);   // plain numbers
  AppendLittleEndian(header, 2, 2);   // channels
  AppendLittleEndian(header, rate, 4);
  AppendLittleEndian(header, rate * kFrameBytes, 4);
  AppendLittleEndian(header, kFrameBytes, 2);
  AppendLittleEndian(header, 16, 2);  // bits
  header += "data";
  AppendLittleEndian(header, bytes, 4);
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
    AppendLittleEndian(bytes_, static_cast<std::uint16_t>(std::lround(sample)), 2);
  }
  file_.write(bytes_.data(), static_cast<std::streamsize>(bytes_.size()));
  frames_ += static_cast<std::uint32_t>(frames);
  if (frames_ - frames_at_header_ >= static_cast<std::uint32_t>(rate_)) WriteHeader();
}

}  // namespace orvane
