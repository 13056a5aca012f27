#include "tools/effects/wav_file.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string_view>

#include "src/base/little_endian.h"

namespace orvane::effects {
namespace {

uint32_t Get(const std::string& bytes, size_t at, size_t count) {
  if (at + count > bytes.size()) throw std::runtime_error("the file is cut off");
  return static_cast<uint32_t>(FromLittleEndian(std::string_view(bytes).substr(at, count)));
}

}  // namespace

std::string WriteWav(const Wav& wav) {
  const auto channels = static_cast<uint32_t>(wav.Channels);
  const auto rate = static_cast<uint32_t>(wav.Rate);
  const auto size = static_cast<uint32_t>(wav.Samples.size() * 2);
  std::string out = "RIFF";
  AppendLittleEndian(out, 36 + size, 4);
  out += "WAVEfmt ";
  AppendLittleEndian(out, 16, 4);
  AppendLittleEndian(out, 1, 2);
  AppendLittleEndian(out, channels, 2);
  AppendLittleEndian(out, rate, 4);
  AppendLittleEndian(out, rate * channels * 2, 4);
  AppendLittleEndian(out, channels * 2, 2);
  AppendLittleEndian(out, 16, 2);
  out += "data";
  AppendLittleEndian(out, size, 4);
  for (const float sample : wav.Samples) {
    const auto value =
        static_cast<int16_t>(std::lround(std::clamp(sample, -1.0F, 1.0F) * 32767.0F));
    AppendLittleEndian(out, static_cast<uint16_t>(value), 2);
  }
  return out;
}

Wav ReadWav(const std::string& bytes) {
  if (bytes.size() < 12 || bytes.substr(0, 4) != "RIFF" || bytes.substr(8, 4) != "WAVE") {
    throw std::runtime_error("no WAV file");
  }
  Wav wav;
  bool described = false;
  size_t at = 12;
  while (at + 8 <= bytes.size()) {
    const std::string kind = bytes.substr(at, 4);
    const size_t size = Get(bytes, at + 4, 4);
    at += 8;
    if (size > bytes.size() - at) throw std::runtime_error("the file is cut off");
    if (kind == "fmt ") {
      if (Get(bytes, at, 2) != 1) throw std::runtime_error("not plain PCM");
      wav.Channels = static_cast<int>(Get(bytes, at + 2, 2));
      wav.Rate = static_cast<int>(Get(bytes, at + 4, 4));
      wav.Bits = static_cast<int>(Get(bytes, at + 14, 2));
      if (wav.Bits != 16) throw std::runtime_error("not 16 bits");
      described = true;
    } else if (kind == "data") {
      if (!described) throw std::runtime_error("data before its description");
      for (size_t i = 0; i + 2 <= size; i += 2) {
        const auto value = static_cast<int16_t>(Get(bytes, at + i, 2));
        wav.Samples.push_back(static_cast<float>(value) / 32767.0F);
      }
      return wav;
    }
    at += size + size % 2;
  }
  throw std::runtime_error("no data");
}

}  // namespace orvane::effects
