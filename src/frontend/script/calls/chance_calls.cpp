#include "src/frontend/script/calls/call.h"
#include "src/frontend/script/calls/calls.h"
#include "src/frontend/script/run/script_error.h"
#include "src/frontend/script/run/session.h"

namespace orvane {
namespace {

constexpr const char* kDraw = "a number from 0 to below 1, in single precision too";

// random(v, ...)
int Random(Call& call) {
  std::vector<float> values;
  for (int at = 1; at <= call.Count(); ++at) {
    const double value = call.Number(at, kDraw);
    const bool fits = value >= 0 && value < 1 && static_cast<float>(value) < 1.0F;
    if (!fits) throw ScriptError(kDraw, call.Shown(at));
    values.push_back(static_cast<float>(value));
  }
  for (const float value : values) call.TheSession().Luck.Queue(value);
  return 0;
}

// random_left()
int RandomLeft(Call& call) {
  return call.Return(static_cast<int64_t>(call.TheSession().Luck.Left()));
}

// random_clear()
int RandomClear(Call& call) {
  call.TheSession().Luck.Clear();
  return 0;
}

// seed(n)
int Seed(Call& call) {
  call.TheSession().Luck.Seed(call.LongWhole(1, "a whole number as a seed"));
  return 0;
}

}  // namespace

void RegisterChanceCalls(lua_State* lua) {
  Register<&Random>(lua, "random");
  Register<&RandomLeft>(lua, "random_left");
  Register<&RandomClear>(lua, "random_clear");
  Register<&Seed>(lua, "seed");
}

}  // namespace orvane
