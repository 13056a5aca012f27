#include "src/sound/sdl/hush.h"

namespace orvane {

void HushSound() {
  // Nothing there talks.
}

}  // namespace orvane
