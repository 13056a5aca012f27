#include "tests/sound/recording.h"

#include <algorithm>
#include <cstdint>

#include "src/platform/whole_file.h"

namespace orvane::test {
namespace {

using Bytes = std::vector<unsigned char>;

std::uint32_t Number(const Bytes& bytes, size_t place, size_t count) {
  std::uint32_t number = 0;
  for (size_t i = 0; i < count; ++i) {
    number |= static_cast<std::uint32_t>(bytes.at(place + i)) << (8 * i);
  }
  return number;
}

// Where the chunk of a name begins, after its size; 0 if there is none.
size_t FindChunk(const Bytes& bytes, const std::string& name, size_t& size) {
  for (size_t place = 12; place + 8 <= bytes.size();) {
    size = Number(bytes, place + 4, 4);
    const std::string found(bytes.begin() + static_cast<std::ptrdiff_t>(place),
                            bytes.begin() + static_cast<std::ptrdiff_t>(place + 4));
    place += 8;
    if (found == name) {
      size = std::min(size, bytes.size() - place);
      return place;
    }
    place += size + size % 2;
  }
  return 0;
}

float Sample(const Bytes& bytes, size_t place) {
  return static_cast<float>(static_cast<std::int16_t>(Number(bytes, place, 2))) / 32768.0F;
}

}  // namespace

void Recording::Add(const std::vector<float>& frames) {
  for (size_t i = 0; i + 1 < frames.size(); i += 2) {
    Left.push_back(frames[i]);
    Right.push_back(frames[i + 1]);
  }
}

Recording Recording::Part(double from, double to) const {
  const auto limit = static_cast<double>(Left.size());
  const auto first = static_cast<std::ptrdiff_t>(std::clamp(from * Rate, 0.0, limit));
  const auto last = static_cast<std::ptrdiff_t>(std::clamp(to * Rate, 0.0, limit));
  Recording part;
  part.Rate = Rate;
  if (first >= last) return part;
  part.Left.assign(Left.begin() + first, Left.begin() + last);
  part.Right.assign(Right.begin() + first, Right.begin() + last);
  return part;
}

std::optional<Recording> ReadRecording(const std::string& path) {
  const std::string text = ReadWholeFile(path).value_or("");
  const Bytes bytes(text.begin(), text.end());
  size_t size = 0;
  const size_t format = FindChunk(bytes, "fmt ", size);
  const std::uint32_t channels = format == 0 || size < 16 ? 0 : Number(bytes, format + 2, 2);
  if (channels < 1 || channels > 2 || Number(bytes, format + 14, 2) != 16) return std::nullopt;
  Recording recording;
  recording.Rate = static_cast<int>(Number(bytes, format + 4, 4));
  const size_t data = FindChunk(bytes, "data", size);
  if (data == 0 || recording.Rate <= 0) return std::nullopt;
  const size_t frame = size_t{2} * channels;
  for (size_t place = data; place + frame <= data + size; place += frame) {
    recording.Left.push_back(Sample(bytes, place));
    recording.Right.push_back(Sample(bytes, place + frame - 2));
  }
  return recording;
}

}  // namespace orvane::test
