#include "src/sound/tempo_map.h"

#include <algorithm>

namespace orvane {

TempoMap::TempoMap(std::int64_t ticks_per_beat, std::int64_t microseconds_per_beat)
    : ticks_per_beat_(ticks_per_beat), changes_{{0, microseconds_per_beat, 0}} {}

void TempoMap::Add(std::int64_t tick, std::int64_t microseconds_per_beat) {
  if (microseconds_per_beat <= 0) return;
  const auto later = std::upper_bound(
      changes_.begin(), changes_.end(), tick,
      [](std::int64_t wanted, const Change& change) { return wanted < change.Tick; });
  const auto place = static_cast<size_t>(later - changes_.begin());
  changes_.insert(later, {tick, microseconds_per_beat, 0});
  // Whole numbers all the way: a piece of an hour must not end a beat early.
  for (size_t i = place; i < changes_.size(); ++i) {
    const Change& last = changes_[i - 1];
    changes_[i].Before = last.Before + (changes_[i].Tick - last.Tick) * last.Tempo;
  }
}

double TempoMap::Seconds(std::int64_t tick) const {
  const auto later = std::upper_bound(
      changes_.begin() + 1, changes_.end(), tick,
      [](std::int64_t wanted, const Change& change) { return wanted < change.Tick; });
  const Change& change = *(later - 1);
  const std::int64_t time = change.Before + (tick - change.Tick) * change.Tempo;
  return static_cast<double>(time) / (static_cast<double>(ticks_per_beat_) * 1e6);
}

}  // namespace orvane
