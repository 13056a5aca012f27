#include "src/frontend/script/calls/call.h"
#include "src/frontend/script/calls/calls.h"
#include "src/frontend/script/run/script_error.h"
#include "src/frontend/script/run/session.h"

namespace orvane {
namespace {

constexpr int kUsualLimit = 100000;
constexpr const char* kTimer = "a timer's name";
constexpr const char* kCount = "a number of ticks";

// A number of ticks, which may be left out.
int CountAt(const Call& call, int at, int usual) {
  const int count = call.Has(at) ? call.Whole(at, kCount) : usual;
  if (count < 0) throw ScriptError(kCount, call.Shown(at));
  return count;
}

// tick(timer [, n])
int Tick(Call& call) {
  Session& session = call.TheSession();
  Timer& timer = session.TheNames().FindTimer(call.Text(1, kTimer));
  const int count = CountAt(call, 2, 1);
  for (int done = 0; done < count; ++done) {
    const bool ended = session.HasEnded();
    if (!ended && timer.Ticks()) {
      session.Tick(timer);
      continue;
    }
    throw ScriptError(
        call.Shown(1) + " to be on for " + std::to_string(count) + " ticks",
        (ended ? "the program ended after " : "it off after ") + std::to_string(done));
  }
  return 0;
}

// run(timer [, limit])
int Run(Call& call) {
  Session& session = call.TheSession();
  Timer& timer = session.TheNames().FindTimer(call.Text(1, kTimer));
  const int limit = CountAt(call, 2, kUsualLimit);
  int done = 0;
  while (!session.HasEnded() && timer.Ticks()) {
    if (done == limit) {
      throw ScriptError(call.Shown(1) + " to be off within " + std::to_string(limit) + " ticks",
                        "it on");
    }
    session.Tick(timer);
    ++done;
  }
  return call.Return(done);
}

// wait(ms)
int Wait(Call& call) {
  const double milliseconds = call.Number(1, "a time in milliseconds");
  if (milliseconds < 0) throw ScriptError("a time in milliseconds", call.Shown(1));
  call.TheSession().Wait(milliseconds);
  return 0;
}

// clock()
int Clock(Call& call) {
  return call.Return(call.TheSession().Clock.Now());
}

}  // namespace

void RegisterTimeCalls(lua_State* lua) {
  Register<&Tick>(lua, "tick");
  Register<&Run>(lua, "run");
  Register<&Wait>(lua, "wait");
  Register<&Clock>(lua, "clock");
}

}  // namespace orvane
