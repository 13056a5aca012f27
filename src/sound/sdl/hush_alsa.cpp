#include <dlfcn.h>

#include "src/sound/sdl/hush.h"

namespace orvane {
namespace {

void SayNothing(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                const char* /*format*/, ...) {}

}  // namespace

// The library that would talk is loaded only if SDL uses it, so it is looked up at run time.
void HushSound() {
  using Handler = void (*)(const char*, int, const char*, int, const char*, ...);
  using SetHandler = int (*)(Handler);
  const auto set = reinterpret_cast<SetHandler>(dlsym(RTLD_DEFAULT, "snd_lib_error_set_handler"));
  if (set != nullptr) set(&SayNothing);
}

}  // namespace orvane
