// From ticks to seconds.
#pragma once

#include <cstdint>
#include <vector>

namespace orvane {

// How a MIDI file counts: ticks to a beat, and microseconds to a beat from given ticks on.
class TempoMap {
 public:
  // Ticks to a beat, from 1 on, and the tempo at the start, 120 beats a minute unless told.
  explicit TempoMap(std::int64_t ticks_per_beat, std::int64_t microseconds_per_beat = 500000);

  // Changes the tempo from a tick on; in any order, but quickest from first to last. Of
  // several at one tick the last holds; a tempo of 0 is passed over.
  void Add(std::int64_t tick, std::int64_t microseconds_per_beat);
  // The time of a tick, exact up to the rounding of the result, for ticks from 0 to 2^32.
  double Seconds(std::int64_t tick) const;

 private:
  struct Change {
    std::int64_t Tick = 0;
    std::int64_t Tempo = 0;
    std::int64_t Before = 0;  // time up to the tick, in microseconds times ticks to a beat
  };

  std::int64_t ticks_per_beat_;
  std::vector<Change> changes_;  // in order of ticks, the first at 0
};

}  // namespace orvane
