// What all fuzzers share. A target reads one kind of thing that a player could put in the place of
// ours: it defines Try, which is called again and again with bytes that a fuzzer has made up. An
// input that crashes, breaks what Require says, takes longer than a second of the processor's time
// or more memory than 256 MB is a find.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "src/base/error.h"

namespace orvane::fuzz {

// The bytes of one input, taken off its front. Behind its end all numbers are 0 and all texts
// empty.
class Input {
 public:
  explicit Input(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

  bool AtEnd() const { return rest_.empty(); }
  std::uint8_t Byte();
  // 0 to below `count`, which is 1 to 256.
  int Below(int count) { return Byte() % count; }
  // Any number of 16, of 32 bits.
  int Short();
  int Number();
  // Mostly one that is about as large as a screen, now and then any.
  int Coordinate();
  // As many bytes as its first says.
  std::string Text();
  // As many bytes as its first two say.
  std::string File();
  std::string Rest();

 private:
  std::string Take(size_t size);

  std::span<const std::uint8_t> rest_;
};

// The target. What it throws is a find.
void Try(Input& input);

// Ends the fuzzer unless that holds; `what` says what should.
void Require(bool holds, const char* what);

// Runs code that bad data may end with a run-time error, as is described. Returns whether it came
// to its end.
template <class Code>
bool Allow(const Code& code) {
  try {
    code();
    return true;
  } catch (const RunError&) {
    return false;
  }
}

}  // namespace orvane::fuzz
