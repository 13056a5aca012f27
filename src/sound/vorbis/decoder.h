// Decodes a recording while it plays.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "src/sound/limiter.h"

struct stb_vorbis;

namespace orvane {

class Decoder {
 public:
  // An Ogg Vorbis file of two channels and `rate` frames a second, in memory that outlives the
  // decoder. Takes a few milliseconds. Null for anything else.
  static std::unique_ptr<Decoder> Open(std::span<const std::uint8_t> file, int rate);

  // The length of the whole, in frames.
  std::int64_t Frames() const { return frames_; }

  // The rest asks for no memory, and so may be the audio thread's.
  void Rewind();
  // Adds the next block, with a level that goes evenly from one to the other. False at the
  // recording's end, from where on there is nothing to add.
  bool Mix(Block& block, float from, float to);

 private:
  struct Closer {
    void operator()(stb_vorbis* handle) const;
  };

  explicit Decoder(stb_vorbis* handle) : handle_(handle) {}

  std::unique_ptr<stb_vorbis, Closer> handle_;
  std::int64_t frames_ = 0;
};

}  // namespace orvane
