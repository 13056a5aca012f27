// A WAV file says how long its parts are: what it says is not believed before it is looked at.
#include "src/sound/wave_claims.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "src/sound/clip.h"
#include "tests/unit/sound/sound_files.h"

namespace orvane {
namespace {

using test::Bytes;

constexpr size_t kRiffLength = 4;
constexpr size_t kFormatLength = 16;
constexpr size_t kDataLength = 40;

Bytes SmallWave() {
  return test::Wave(22050, 1, test::Tone(440, 22050, 0.004, 0.5));
}

Bytes Claiming(size_t at, std::uint32_t length) {
  Bytes file = SmallWave();
  Bytes number;
  test::PutLittle(number, length, 4);
  std::copy(number.begin(), number.end(), file.begin() + static_cast<std::ptrdiff_t>(at));
  return file;
}

TEST(WaveClaims, WhatIsTrueStays) {
  const Bytes whole = SmallWave();
  EXPECT_EQ(ClipWaveClaims(whole), whole);
  const Bytes noise{'n', 'o', 'i', 's', 'e', 255, 255, 255, 255, 255, 255, 255, 255, 255};
  EXPECT_TRUE(ClipWaveClaims(noise).empty());
  EXPECT_TRUE(ClipWaveClaims({}).empty());
}

TEST(WaveClaims, WhatIsTooLongBecomesWhatIsThere) {
  EXPECT_EQ(ClipWaveClaims(Claiming(kRiffLength, 0xffffffff)), SmallWave());
  EXPECT_EQ(ClipWaveClaims(Claiming(kDataLength, 0xfffffff0)), SmallWave());
  const Bytes clipped = ClipWaveClaims(Claiming(kFormatLength, 0x80000000));
  EXPECT_EQ(clipped[kFormatLength], SmallWave().size() - kFormatLength - 4);
  EXPECT_EQ(clipped[kFormatLength + 3], 0);
}

TEST(WaveClaims, EveryCutComesBackWithinItself) {
  const Bytes whole = SmallWave();
  for (size_t size = 0; size < whole.size(); ++size) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_EQ(ClipWaveClaims(cut).size(), size < 12 ? 0 : size);
  }
}

// The memory that SDL asks for, of which the largest piece is kept.
SDL_malloc_func ask = nullptr;            // NOLINT: SDL calls it without a place for our own
SDL_realloc_func ask_for_more = nullptr;  // NOLINT: the same
size_t largest = 0;                       // NOLINT: the same

void* SDLCALL Ask(size_t size) {
  largest = std::max(largest, size);
  return ask(size);
}

void* SDLCALL AskForMore(void* old, size_t size) {
  largest = std::max(largest, size);
  return ask_for_more(old, size);
}

TEST(WaveClaims, NobodyMakesRoomForWhatIsNotThere) {
  SDL_calloc_func clear = nullptr;
  SDL_free_func give_back = nullptr;
  SDL_GetMemoryFunctions(&ask, &clear, &ask_for_more, &give_back);
  SDL_SetMemoryFunctions(&Ask, clear, &AskForMore, give_back);
  for (const size_t at : {kRiffLength, kFormatLength, kDataLength}) {
    ReadClip(Claiming(at, 0xfffffff0), 44100);
  }
  const Bytes whole = Claiming(kDataLength, 0xfffffff0);
  ReadClip(std::span(whole).subspan(8), 44100);  // a reader may take it from "WAVE" on
  SDL_SetMemoryFunctions(ask, clear, ask_for_more, give_back);
  EXPECT_GT(largest, 0U);
  EXPECT_LT(largest, size_t{1} << 20);
}

}  // namespace
}  // namespace orvane
