#include "src/frontend/shared/events.h"

#include <exception>

namespace orvane {

void SendArrow(Events& events, Direction direction, bool down) {
  events.Send([direction, down](Program& program) {
    if (down) return program.KeyDown(direction);
    return program.KeyUp(direction);
  });
}

void ActOn(Program& program, const std::function<void(Program&)>& event) {
  try {
    event(program);
  } catch (const std::exception& failure) {
    program.Break(failure.what());
  }
}

}  // namespace orvane
