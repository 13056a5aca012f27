#include "tests/fuzz/memory.h"

#include <algorithm>
#include <atomic>
#include <fstream>
#include <string>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ORVANE_COUNTS_MEMORY
#endif
#endif

#ifdef ORVANE_COUNTS_MEMORY
#include <sanitizer/allocator_interface.h>
#endif

namespace orvane::fuzz {

#ifdef ORVANE_COUNTS_MEMORY

namespace {

std::atomic<std::size_t> now = 0;  // may pass 0 where what is older is given back
std::atomic<std::size_t> most = 0;

void Taken(const volatile void* /*place*/, std::size_t size) {
  const std::size_t sum = now.fetch_add(size) + size;
  std::size_t known = most.load();
  while (sum > known && sum <= SIZE_MAX / 2 && !most.compare_exchange_weak(known, sum)) continue;
}

void GivenBack(const volatile void* place) {
  if (place == nullptr) return;
  now.fetch_sub(__sanitizer_get_allocated_size(const_cast<const void*>(place)));
}

}  // namespace

MemoryWatch::MemoryWatch() : before_(0) {
  [[maybe_unused]] static const int hooked =
      __sanitizer_install_malloc_and_free_hooks(&Taken, &GivenBack);
  now = 0;
  most = 0;
}

std::size_t MemoryWatch::Most() const {
  return most - before_;
}

#else

namespace {

// A number of the process's own, in bytes.
std::size_t OwnNumber(const std::string& name) {
  std::ifstream file("/proc/self/status");
  for (std::string word; file >> word;) {
    std::size_t kilobytes = 0;
    if (word == name + ":" && file >> kilobytes) return kilobytes << 10;
  }
  return 0;
}

}  // namespace

MemoryWatch::MemoryWatch() : before_(OwnNumber("VmRSS")) {
  std::ofstream("/proc/self/clear_refs") << "5";  // the most is counted from now on
}

std::size_t MemoryWatch::Most() const {
  return std::max(OwnNumber("VmHWM"), before_) - before_;
}

#endif

}  // namespace orvane::fuzz
