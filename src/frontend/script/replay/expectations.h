// What a script expects of a program, as a play has left it.
#pragma once

#include <string>

namespace orvane {

class Program;

// Calls of expect, a line each: for the state, the active screen, which screens can be seen, which
// timers are on, the error if one has ended it, and a grid of pixels of what can be seen.
// `with_status` expects MciStatus too, which tells of the sound device.
std::string ExpectationsOf(Program& program, bool with_status);

}  // namespace orvane
