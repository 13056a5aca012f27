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
  std::vector<double> Points;

  // The value at a share of the layer, 0 to 1.
  double At(double share) const;
};

enum class FilterKind { Lowpass, Highpass, Bandpass };

struct FilterSetting {
  FilterKind Kind = FilterKind::Lowpass;
  Glide Frequency;  // Hz
  double Q = 0.7;
};

// One tone of a layer that plays a tune.
struct TuneNote {
  double Frequency = 0;  // Hz; 0: a rest
  double Seconds = 0;
};

// One layer. Seconds, Hz, and levels from 0 to 1 (more is allowed before `drive`).
struct Layer {
  Source source = Source::Sine;
  double At = 0;        // when it starts in the effect
  double Length = 0.5;  // how long it lasts
  double Level = 1;
  double Attack = 0.005;  // rises over this time, along a half cosine
  double Hold = 0;        // stays
  double Fall = 3;  // then falls to nothing at the end of the layer, by this power of the rest
  Glide Pitch = {{440}};
  double Detune = 0;  // semitones between a second, equal voice and this one; 0: none
  double VibratoRate = 0;
  double VibratoDepth = 0;  // semitones
  double TremoloRate = 0;
  double TremoloDepth = 0;  // 0 to 1
  double FmRatio = 0;       // a sine at this ratio of the pitch bends it
  Glide FmDepth = {{0}};
  double Density = 60;  // pops in a second, of a crackle
  double Drive = 0;     // above 0: pushed into soft saturation by this factor
  int Repeats = 1;      // how many times the layer sounds
  double Every = 0.1;   // seconds from one time to the next
  double Fade = 1;      // level of one time against the time before
  double Rise = 0;      // semitones from one time to the next
  std::vector<FilterSetting> Filters;
  std::vector<TuneNote> Tune;  // not empty: the layer is played once for each note, with its pitch
};

struct Recipe {
  std::string Name;
  double Length = 1;       // seconds of the whole effect
  double EchoSeconds = 0;  // a repeat of the whole after this time ...
  double EchoLevel = 0;    // ... at this level, and again at its square, and so on
  double Room = 0;         // level of a small reverberation
  double RoomSeconds = 0.5;
  std::vector<Layer> Layers;
};

// Reads a recipe; docs/music.md describes the words. Throws std::runtime_error with the number of
// the line for anything that is not part of the notation.
Recipe ReadRecipe(std::string_view text);

}  // namespace orvane::effects
