// What other programs ask of this one: to end, or to come to the front.
#pragma once

#include <csignal>
#include <functional>

namespace orvane {

// A second start of the game sends it to the first.
constexpr int kCallSignal = SIGUSR1;

// Keeps SIGTERM, SIGINT, SIGHUP and CallSignal until they are taken. Called before any thread is
// started, so that none of them is killed by one.
void HoldSignals();

// From now on they call `end`, once, from the event loop. Called once, on the thread of the event
// loop.
void OnEndSignals(std::function<void()> end);

// The same for the call, which may come any number of times.
void OnCallSignal(std::function<void()> come);

}  // namespace orvane
