// A recipe of a sound effect: layers of simple sources that are shaped, added and rounded off.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane::effects {

constexpr int kRate = 44100;  // samples in a second

enum class Source { Sine, Triangle, Square, Saw, Noise, Crackle };

// A value that glides through its points, evenly in time over the layer and by equal ratios where
// all points are above 0 (so that a glide of pitch sounds even), else by equal steps.
struct Glide {
  std::vector<double> points;

  // The value at a share of the layer, 0 to 1.
  double At(double share) const;
};

enum class FilterKind { Lowpass, Highpass, Bandpass };

struct FilterSetting {
  FilterKind kind = FilterKind::Lowpass;
  Glide frequency;  // Hz
  double q = 0.7;
};

// One tone of a layer that plays a tune.
struct TuneNote {
  double frequency = 0;  // Hz; 0: a rest
  double seconds = 0;
};

// One layer. Seconds, Hz, and levels from 0 to 1 (more is allowed before `drive`).
struct Layer {
  Source source = Source::Sine;
  double at = 0;        // when it starts in the effect
  double length = 0.5;  // how long it lasts
  double level = 1;
  double attack = 0.005;  // rises over this time, along a half cosine
  double hold = 0;        // stays
  double fall = 3;  // then falls to nothing at the end of the layer, by this power of the rest
  Glide pitch = {{440}};
  double detune = 0;  // semitones between a second, equal voice and this one; 0: none
  double vibrato_rate = 0;
  double vibrato_depth = 0;  // semitones
  double tremolo_rate = 0;
  double tremolo_depth = 0;  // 0 to 1
  double fm_ratio = 0;       // a sine at this ratio of the pitch bends it
  Glide fm_depth = {{0}};
  double density = 60;  // pops in a second, of a crackle
  double drive = 0;     // above 0: pushed into soft saturation by this factor
  int repeats = 1;      // how many times the layer sounds
  double every = 0.1;   // seconds from one time to the next
  double fade = 1;      // level of one time against the time before
  double rise = 0;      // semitones from one time to the next
  std::vector<FilterSetting> filters;
  std::vector<TuneNote> tune;  // not empty: the layer is played once for each note, with its pitch
};

struct Recipe {
  std::string name;
  double length = 1;        // seconds of the whole effect
  double echo_seconds = 0;  // a repeat of the whole after this time ...
  double echo_level = 0;    // ... at this level, and again at its square, and so on
  double room = 0;          // level of a small reverberation
  double room_seconds = 0.5;
  std::vector<Layer> layers;
};

// Reads a recipe; docs/music.md describes the words. Throws std::runtime_error with the number of
// the line for anything that is not part of the notation.
Recipe ReadRecipe(std::string_view text);

}  // namespace orvane::effects
