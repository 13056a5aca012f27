#include "tests/sound/listening.h"

#include <algorithm>
#include <cmath>

namespace orvane::test {
namespace {

// How far around a leap its surroundings reach, and how near they come, in seconds.
constexpr double kAround = 0.005;
constexpr size_t kNear = 4;  // frames: a click rings that long in the differences

double LoudestAt(const Recording& recording, size_t frame) {
  return std::max(std::fabs(recording.Left[frame]), std::fabs(recording.Right[frame]));
}

// By how much each frame bends away from the line through its neighbours: small for whatever
// moves smoothly, however loud, and large where it breaks.
std::vector<double> Bends(const std::vector<float>& side) {
  std::vector<double> bends(side.size(), 0.0);
  for (size_t i = 1; i + 1 < side.size(); ++i) {
    bends[i] = std::fabs(static_cast<double>(side[i - 1]) - 2.0 * side[i] + side[i + 1]);
  }
  return bends;
}

// Running sums of squares, so that the surroundings of every frame are had at once.
std::vector<double> SumSquares(const std::vector<double>& values) {
  std::vector<double> sums(values.size() + 1, 0.0);
  for (size_t i = 0; i < values.size(); ++i) sums[i + 1] = sums[i] + values[i] * values[i];
  return sums;
}

double MeanRoot(const std::vector<double>& sums, size_t from, size_t to) {
  return to > from
             ? std::sqrt(std::max(0.0, sums[to] - sums[from]) / static_cast<double>(to - from))
             : 0.0;
}

void FindClicksOf(const std::vector<float>& side, int rate, double leap, double sharpness,
                  std::vector<Click>& clicks) {
  const std::vector<double> bends = Bends(side);
  const std::vector<double> sums = SumSquares(bends);
  const auto around = static_cast<size_t>(kAround * rate);
  for (size_t i = around + kNear; i + around + kNear < side.size(); ++i) {
    if (bends[i] < leap) continue;
    const double before = MeanRoot(sums, i - kNear - around, i - kNear);
    const double after = MeanRoot(sums, i + kNear, i + kNear + around);
    // What is sharp after it is the attack of a note, what is sharp before it noise.
    const double surroundings = std::max({before, after, leap / 100});
    if (bends[i] < sharpness * surroundings) continue;
    clicks.push_back({static_cast<double>(i) / rate, bends[i], bends[i] / surroundings});
    i += around;
  }
}

}  // namespace

std::vector<Gap> FindGaps(const Recording& recording, double seconds, double level) {
  std::vector<Gap> gaps;
  const size_t frames = recording.Left.size();
  size_t from = 0;
  for (size_t i = 0; i <= frames; ++i) {
    if (i < frames && LoudestAt(recording, i) < level) continue;
    const double length = static_cast<double>(i - from) / recording.Rate;
    if (length >= seconds) gaps.push_back({static_cast<double>(from) / recording.Rate, length});
    from = i + 1;
  }
  return gaps;
}

std::vector<Click> FindClicks(const Recording& recording, double leap, double sharpness) {
  std::vector<Click> clicks;
  FindClicksOf(recording.Left, recording.Rate, leap, sharpness, clicks);
  FindClicksOf(recording.Right, recording.Rate, leap, sharpness, clicks);
  std::sort(clicks.begin(), clicks.end(),
            [](const Click& a, const Click& b) { return a.At < b.At; });
  return clicks;
}

std::vector<double> FindOnsets(const Recording& recording, double level) {
  std::vector<double> onsets;
  const auto rest = static_cast<size_t>(0.05 * recording.Rate);
  size_t quiet = rest;
  for (size_t i = 0; i < recording.Left.size(); ++i) {
    if (LoudestAt(recording, i) < level) {
      ++quiet;
      continue;
    }
    if (quiet >= rest) onsets.push_back(static_cast<double>(i) / recording.Rate);
    quiet = 0;
  }
  return onsets;
}

double PeakOf(const Recording& recording) {
  double peak = 0;
  for (size_t i = 0; i < recording.Left.size(); ++i) peak = std::max(peak, LoudestAt(recording, i));
  return peak;
}

double LevelOf(const Recording& recording) {
  double sum = 0;
  for (const std::vector<float>* side : {&recording.Left, &recording.Right}) {
    for (const float sample : *side) sum += static_cast<double>(sample) * sample;
  }
  const auto count = static_cast<double>(recording.Left.size() + recording.Right.size());
  return count > 0 ? std::sqrt(sum / count) : 0;
}

}  // namespace orvane::test
