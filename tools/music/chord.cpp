#include "tools/music/chord.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <stdexcept>
#include <string>

#include "tools/music/pitch.h"

namespace orvane::music {
namespace {

struct Quality {
  std::string_view Name;
  std::vector<int> Steps;
};

const std::vector<Quality>& Qualities() {
  static const std::vector<Quality> table = {
      {"", {0, 4, 7}},
      {"m", {0, 3, 7}},
      {"7", {0, 4, 7, 10}},
      {"m7", {0, 3, 7, 10}},
      {"maj7", {0, 4, 7, 11}},
      {"mmaj7", {0, 3, 7, 11}},
      {"6", {0, 4, 7, 9}},
      {"m6", {0, 3, 7, 9}},
      {"sus4", {0, 5, 7}},
      {"sus2", {0, 2, 7}},
      {"7sus4", {0, 5, 7, 10}},
      {"dim", {0, 3, 6}},
      {"dim7", {0, 3, 6, 9}},
      {"m7b5", {0, 3, 6, 10}},
      {"aug", {0, 4, 8}},
      {"add9", {0, 4, 7, 14}},
      {"madd9", {0, 3, 7, 14}},
      {"9", {0, 4, 7, 10, 14}},
      {"m9", {0, 3, 7, 10, 14}},
      {"maj9", {0, 4, 7, 11, 14}},
      {"7b9", {0, 4, 7, 10, 13}},
      {"5", {0, 7, 12}},
      {"7#5", {0, 4, 8, 10}},
      {"maj7#11", {0, 4, 7, 11, 18}},
  };
  return table;
}

// The tones of the chord that a part with `voices` voices plays, as pitch classes.
std::vector<int> Tones(const Chord& chord, int voices) {
  std::vector<int> steps = chord.Steps;
  const auto cap = static_cast<size_t>(std::max(voices, 2));
  if (steps.size() > cap && steps.size() > 3) steps.erase(steps.begin() + 2);
  if (steps.size() > cap && steps.size() > 3) steps.erase(steps.begin());
  while (steps.size() > cap) steps.pop_back();
  std::vector<int> classes;
  for (const int step : steps) {
    const int tone = (chord.Root + step) % 12;
    if (std::find(classes.begin(), classes.end(), tone) == classes.end()) classes.push_back(tone);
  }
  std::sort(classes.begin(), classes.end());
  return classes;
}

// Tones a semitone apart rub against each other: a voicing that parts them is preferred.
int Rubbing(const std::vector<int>& voicing) {
  int sum = 0;
  for (size_t i = 0; i + 1 < voicing.size(); ++i) sum += voicing[i + 1] - voicing[i] == 1 ? 9 : 0;
  return sum;
}

int Movement(const std::vector<int>& from, const std::vector<int>& to) {
  int sum = 0;
  for (size_t i = 0; i < to.size(); ++i) {
    const size_t j = std::min(i, from.size() - 1);
    sum += std::abs(to[i] - from[j]);
  }
  return sum;
}

}  // namespace

int Chord::Third() const {
  return Steps.at(1);
}
int Chord::Fifth() const {
  return Steps.size() > 2 ? Steps.at(2) : 7;
}
int Chord::Seventh() const {
  return Steps.size() > 3 ? Steps.at(3) : 12;
}

Chord ReadChord(std::string_view symbol) {
  Chord chord;
  size_t at = 0;
  chord.Root = ReadPitchClass(symbol, at);
  const std::string whole(symbol);
  if (chord.Root < 0) throw std::invalid_argument("no chord: " + whole);
  chord.Bass = chord.Root;
  std::string_view quality = symbol.substr(at);
  const size_t slash = quality.find('/');
  if (slash != std::string_view::npos) {
    const std::string_view bass = quality.substr(slash + 1);
    size_t bass_at = 0;
    chord.Bass = ReadPitchClass(bass, bass_at);
    if (chord.Bass < 0 || bass_at != bass.size()) throw std::invalid_argument("no bass: " + whole);
    quality = quality.substr(0, slash);
  }
  for (const Quality& known : Qualities()) {
    if (known.Name == quality) {
      chord.Steps = known.Steps;
      return chord;
    }
  }
  throw std::invalid_argument("unknown chord: " + whole);
}

Chord Transposed(Chord chord, int semitones) {
  chord.Root = ((chord.Root + semitones) % 12 + 12) % 12;
  chord.Bass = ((chord.Bass + semitones) % 12 + 12) % 12;
  return chord;
}

std::vector<int> Voice(const Chord& chord, int floor, int voices,
                       const std::vector<int>& previous) {
  const std::vector<int> classes = Tones(chord, voices);
  std::vector<int> best;
  int least = std::numeric_limits<int>::max();
  for (size_t inversion = 0; inversion < classes.size(); ++inversion) {
    std::vector<int> voicing;
    int pitch = floor + ((classes[inversion] - floor) % 12 + 12) % 12;
    for (size_t i = 0; i < classes.size(); ++i) {
      const int tone = classes[(inversion + i) % classes.size()];
      if (i > 0) pitch += ((tone - pitch) % 12 + 12) % 12;
      voicing.push_back(pitch);
    }
    const int cost = Rubbing(voicing) +
                     (previous.empty() ? voicing.front() - floor : Movement(previous, voicing));
    if (cost < least) {
      least = cost;
      best = voicing;
    }
  }
  return best;
}

}  // namespace orvane::music
