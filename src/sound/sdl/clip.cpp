#include "src/sound/clip.h"

#include <SDL.h>

#include <algorithm>
#include <vector>

#include "src/sound/wave_claims.h"

namespace orvane {
namespace {

struct FreeWave {
  void operator()(Uint8* wave) const { SDL_FreeWAV(wave); }
};
struct FreeStream {
  void operator()(SDL_AudioStream* stream) const { SDL_FreeAudioStream(stream); }
};

// Beyond these a header is not to be believed.
constexpr int kLeastRate = 1000;
constexpr int kMostRate = 400000;
constexpr double kMostSeconds = 120;

}  // namespace

std::shared_ptr<const Clip> ReadClip(std::span<const std::uint8_t> file, int rate) {
  const std::vector<std::uint8_t> checked = ClipWaveClaims(file);
  if (checked.empty()) return nullptr;
  SDL_RWops* source = SDL_RWFromConstMem(checked.data(), static_cast<int>(checked.size()));
  if (source == nullptr) return nullptr;
  SDL_AudioSpec layout{};
  Uint8* bytes = nullptr;
  Uint32 size = 0;
  if (SDL_LoadWAV_RW(source, 1, &layout, &bytes, &size) == nullptr) return nullptr;
  const std::unique_ptr<Uint8, FreeWave> wave(bytes);
  if (layout.freq < kLeastRate || layout.freq > kMostRate || layout.channels == 0) return nullptr;
  const double frame_bytes = SDL_AUDIO_BITSIZE(layout.format) / 8 * layout.channels;
  if (size > kMostSeconds * layout.freq * frame_bytes) return nullptr;

  auto clip = std::make_shared<Clip>();
  clip->Channels = std::min<int>(layout.channels, 2);
  const std::unique_ptr<SDL_AudioStream, FreeStream> stream(
      SDL_NewAudioStream(layout.format, layout.channels, layout.freq, AUDIO_S16SYS,
                         static_cast<Uint8>(clip->Channels), rate));
  if (!stream || SDL_AudioStreamPut(stream.get(), wave.get(), static_cast<int>(size)) != 0 ||
      SDL_AudioStreamFlush(stream.get()) != 0) {
    return nullptr;
  }
  const int available = SDL_AudioStreamAvailable(stream.get());
  clip->Samples.resize(static_cast<size_t>(std::max(available, 0)) / sizeof(std::int16_t));
  const auto wanted = static_cast<int>(clip->Samples.size() * sizeof(std::int16_t));
  if (SDL_AudioStreamGet(stream.get(), clip->Samples.data(), wanted) != wanted) return nullptr;
  return clip;
}

}  // namespace orvane
