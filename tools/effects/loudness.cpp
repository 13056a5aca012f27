#include "tools/effects/loudness.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "tools/effects/filter.h"

namespace orvane::effects {
namespace {

// The squares of the samples behind the two filters of BS.1770, for 44100 Hz.
std::vector<double> WeightedPower(const std::vector<float>& samples) {
  Biquad shelf;
  shelf.Set(1.5308412300503478, -2.6509799951547297, 1.1690790799215869, -1.6636551132560204,
            0.7125954280732254);
  Biquad low_cut;
  low_cut.Set(1, -2, 1, -1.9891696736297957, 0.9891990357870394);
  std::vector<double> power;
  power.reserve(samples.size());
  for (const float sample : samples) {
    const double weighted = low_cut.Next(shelf.Next(static_cast<double>(sample)));
    power.push_back(weighted * weighted);
  }
  return power;
}

double Decibels(double mean_power) {
  return mean_power <= 1e-10 ? -100 : -0.691 + 10 * std::log10(mean_power);
}

double Mean(const std::vector<double>& values, size_t from, size_t count) {
  double sum = 0;
  for (size_t i = from; i < from + count; ++i) sum += values[i];
  return count == 0 ? 0 : sum / static_cast<double>(count);
}

double MeanAbove(const std::vector<double>& blocks, double gate) {
  double sum = 0;
  int count = 0;
  for (const double block : blocks) {
    if (Decibels(block) <= gate) continue;
    sum += block;
    ++count;
  }
  return count == 0 ? 0 : sum / count;
}

}  // namespace

double PeakLoudness(const std::vector<float>& samples, double seconds) {
  const std::vector<double> power = WeightedPower(samples);
  const size_t window = std::min(static_cast<size_t>(seconds * kRate), power.size());
  double best = 0;
  for (size_t from = 0; from + window <= power.size(); from += 441) {
    best = std::max(best, Mean(power, from, window));
  }
  return Decibels(best);
}

double WholeLoudness(const std::vector<float>& left, const std::vector<float>& right) {
  std::vector<double> power = WeightedPower(left);
  const std::vector<double> other = WeightedPower(right);
  for (size_t i = 0; i < std::min(power.size(), other.size()); ++i) power[i] += other[i];
  const size_t window = kRate * 4 / 10;
  std::vector<double> blocks;
  for (size_t from = 0; from + window <= power.size(); from += window / 4) {
    blocks.push_back(Mean(power, from, window));
  }
  const double first = MeanAbove(blocks, -70);
  return Decibels(MeanAbove(blocks, Decibels(first) - 10));
}

}  // namespace orvane::effects
