#include "tools/effects/wav_file.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <stdexcept>

namespace orvane::effects {
namespace {

void Put(std::string& out, uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out += static_cast<char>((value >> (8 * i)) & 0xFF);
}

uint32_t Get(const std::string& bytes, size_t at, size_t count) {
  if (at + count > bytes.size()) throw std::runtime_error("the file is cut off");
  uint32_t value = 0;
  for (size_t i = 0; i < count; ++i) {
    value |= static_cast<uint32_t>(static_cast<uint8_t>(bytes[at + i])) << (8 * i);
  }
  return value;
}

}  // namespace

std::string WriteWav(const Wav& wav) {
  const auto channels = static_cast<uint32_t>(wav.Channels);
  const auto rate = static_cast<uint32_t>(wav.Rate);
  const auto size = static_cast<uint32_t>(wav.Samples.size() * 2);
  std::string out = "RIFF";
  Put(out, 36 + size, 4);
  out += "WAVEfmt ";
  Put(out, 16, 4);
  Put(out, 1, 2);
  Put(out, channels, 2);
  Put(out, rate, 4);
  Put(out, rate * channels * 2, 4);
  Put(out, channels * 2, 2);
  Put(out, 16, 2);
  out += "data";
  Put(out, size, 4);
  for (const float sample : wav.Samples) {
    const auto value =
        static_cast<int16_t>(std::lround(std::clamp(sample, -1.0F, 1.0F) * 32767.0F));
    Put(out, static_cast<uint16_t>(value), 2);
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
