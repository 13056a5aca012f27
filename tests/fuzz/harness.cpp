#include "tests/fuzz/harness.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "src/base/little_endian.h"
#include "tests/fuzz/memory.h"

namespace orvane::fuzz {
namespace {

constexpr double kMostSeconds = 1;
constexpr std::size_t kMostMemory = std::size_t{256} << 20;

}  // namespace

std::string Input::Take(size_t size) {
  const auto taken = rest_.first(std::min(size, rest_.size()));
  rest_ = rest_.subspan(taken.size());
  return {taken.begin(), taken.end()};
}

std::uint8_t Input::Byte() {
  if (rest_.empty()) return 0;
  const std::uint8_t byte = rest_.front();
  rest_ = rest_.subspan(1);
  return byte;
}

int Input::Short() {
  return static_cast<std::int16_t>(FromLittleEndian(Take(2)));
}

int Input::Number() {
  return static_cast<std::int32_t>(FromLittleEndian(Take(4)));
}

int Input::Coordinate() {
  const int kind = Below(8);
  if (kind == 0) return Number();
  if (kind == 1) return Short();
  return Byte() - 64;
}

std::string Input::Text() {
  return Take(Byte());
}

std::string Input::File() {
  return Take(FromLittleEndian(Take(2)));
}

std::string Input::Rest() {
  return Take(rest_.size());
}

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "fuzz: not so: %s\n", what);
  std::abort();
}

}  // namespace orvane::fuzz

// The name by which a fuzzer calls a target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace orvane::fuzz;
  const MemoryWatch memory;
  const std::clock_t begin = std::clock();
  {
    Input input({bytes, size});
    Try(input);
  }
  const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
  Require(seconds <= kMostSeconds, "an input takes at most a second");
  Require(memory.Most() <= kMostMemory, "an input takes at most 256 MB");
  return 0;
}
