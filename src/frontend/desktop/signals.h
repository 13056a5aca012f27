// The system's requests to end.
#pragma once

#include <functional>

namespace orvane {

// Keeps SIGTERM, SIGINT and SIGHUP until someone takes them. Called before any thread is started,
// so that none of them is killed by one.
void HoldEndSignals();

// From now on they call `end`, once, from the event loop. Called once, on the thread of the event
// loop.
void OnEndSignals(std::function<void()> end);

}  // namespace orvane
