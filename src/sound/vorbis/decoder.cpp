#include "src/sound/vorbis/decoder.h"

#define STB_VORBIS_HEADER_ONLY
#include <stb/stb_vorbis.h>

namespace orvane {
namespace {

constexpr int kChannels = 2;

}  // namespace

void Decoder::Closer::operator()(stb_vorbis* handle) const {
  stb_vorbis_close(handle);
}

std::unique_ptr<Decoder> Decoder::Open(std::span<const std::uint8_t> file, int rate) {
  int error = 0;
  stb_vorbis* const handle =
      stb_vorbis_open_memory(file.data(), static_cast<int>(file.size()), &error, nullptr);
  if (handle == nullptr) return nullptr;
  std::unique_ptr<Decoder> decoder(new Decoder(handle));
  const stb_vorbis_info info = stb_vorbis_get_info(handle);
  if (info.channels != kChannels || info.sample_rate != static_cast<unsigned>(rate)) return nullptr;
  decoder->frames_ = stb_vorbis_stream_length_in_samples(handle);
  decoder->Rewind();
  return decoder;
}

void Decoder::Rewind() {
  stb_vorbis_seek_start(handle_.get());
}

bool Decoder::Mix(Block& block, float from, float to) {
  Block decoded{};
  const int frames = stb_vorbis_get_samples_float_interleaved(
      handle_.get(), kChannels, decoded.data(), static_cast<int>(decoded.size()));
  const float step = (to - from) / kBlockFrames;
  float level = from;
  for (size_t i = 0; i < decoded.size(); i += kChannels) {
    block[i] += decoded[i] * level;
    block[i + 1] += decoded[i + 1] * level;
    level += step;
  }
  return frames == kBlockFrames;
}

}  // namespace orvane
