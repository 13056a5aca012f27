#include "tools/effects/synth.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "tools/effects/filter.h"
#include "tools/effects/loudness.h"

namespace orvane::effects {
namespace {

constexpr double kPi = 3.14159265358979;

// White noise, -1 to 1, from a seed.
class Noise {
 public:
  explicit Noise(uint32_t seed) : state_(seed * 2654435761U + 1) {}
  double Next() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return static_cast<double>(state_) / 2147483647.5 - 1;
  }

 private:
  uint32_t state_;
};

double Wave(Source source, double phase) {
  const double turn = phase - std::floor(phase);
  switch (source) {
    case Source::Sine:
      return std::sin(2 * kPi * turn);
    case Source::Triangle:
      return 1 - 4 * std::abs(turn - 0.5);
    case Source::Square:
      // Corners a little rounded: less of the harsh overtones that fold back.
      return std::tanh(6 * std::sin(2 * kPi * turn));
    case Source::Saw:
      return 2 * turn - 1;
    case Source::Noise:
    case Source::Crackle:
      break;
  }
  return 0;
}

double Envelope(const Layer& layer, double time, double length) {
  if (time < layer.Attack) return 0.5 - 0.5 * std::cos(kPi * time / layer.Attack);
  const double falling = time - layer.Attack - layer.Hold;
  if (falling < 0) return 1;
  const double whole = length - layer.Attack - layer.Hold;
  return whole <= 0 ? 0 : std::pow(std::max(0.0, 1 - falling / whole), layer.Fall);
}

// One sounding of a layer: from a moment, over a time, at a level, its pitch multiplied.
struct Sounding {
  double At;
  double Length;
  double Level;
  double Pitch;
};

void Render(const Layer& layer, const Sounding& sounding, uint32_t seed, std::vector<double>& mix) {
  Noise noise(seed);
  std::vector<Biquad> filters(layer.Filters.size());
  double phase = 0;
  double second = 0.37;
  double modulator = 0;
  double pop = 0;
  const auto start = static_cast<size_t>(sounding.At * kRate);
  const auto count = static_cast<size_t>(sounding.Length * kRate);
  const double ratio = std::pow(2.0, layer.Detune / 12);
  for (size_t i = 0; i < count && start + i < mix.size(); ++i) {
    const double time = static_cast<double>(i) / kRate;
    const double share = time / sounding.Length;
    double pitch = layer.Pitch.At(share) * sounding.Pitch;
    pitch *= std::pow(2.0, layer.VibratoDepth / 12 * std::sin(2 * kPi * layer.VibratoRate * time));
    double bend = 0;
    if (layer.FmRatio > 0) {
      modulator += pitch * layer.FmRatio / kRate;
      bend = layer.FmDepth.At(share) * std::sin(2 * kPi * modulator);
    }
    double sample = 0;
    if (layer.source == Source::Noise) {
      sample = noise.Next();
    } else if (layer.source == Source::Crackle) {
      // A pop is a burst of noise that dies within a millisecond or two.
      if (noise.Next() * 0.5 + 0.5 < layer.Density / kRate)
        pop = 0.4 + 0.6 * std::abs(noise.Next());
      sample = pop * noise.Next();
      pop *= 0.985;
    } else {
      phase += pitch / kRate;
      sample = Wave(layer.source, phase + bend);
      if (layer.Detune != 0) {
        second += pitch * ratio / kRate;
        sample = 0.5 * (sample + Wave(layer.source, second + bend));
      }
    }
    for (size_t f = 0; f < filters.size(); ++f) {
      const FilterSetting& setting = layer.Filters[f];
      if (i % 16 == 0) filters[f].Set(setting.Kind, setting.Frequency.At(share), setting.Q);
      sample = filters[f].Next(sample);
    }
    if (layer.Drive > 0) sample = std::tanh(sample * layer.Drive);
    const double tremolo =
        1 - layer.TremoloDepth * (0.5 - 0.5 * std::cos(2 * kPi * layer.TremoloRate * time));
    mix[start + i] += sample * Envelope(layer, time, sounding.Length) * tremolo * sounding.Level;
  }
}

void RenderAll(const Layer& layer, uint32_t seed, std::vector<double>& mix) {
  double level = layer.Level;
  for (int n = 0; n < layer.Repeats; ++n) {
    const double at = layer.At + n * layer.Every;
    const double pitch = std::pow(2.0, n * layer.Rise / 12);
    const uint32_t own_seed = seed * 1000 + static_cast<uint32_t>(n) + 1;
    if (layer.Tune.empty()) {
      Render(layer, {at, layer.Length, level, pitch}, own_seed, mix);
    }
    double moment = at;
    for (const TuneNote& note : layer.Tune) {
      // The notes ring over into each other by the length of the layer, which counts from each.
      const double ring = std::max(note.Seconds, layer.Length);
      if (note.Frequency > 0) {
        Render(layer, {moment, ring, level, note.Frequency / 440 * pitch}, own_seed, mix);
      }
      moment += note.Seconds;
    }
    level *= layer.Fade;
  }
}

// Four combs and two all-passes: the plainest reverberation that does not ring.
std::vector<double> Room(const std::vector<double>& dry, double seconds) {
  std::vector<double> wet(dry.size(), 0);
  for (const size_t delay : {1557U, 1617U, 1491U, 1422U}) {
    const double feedback = std::pow(0.001, static_cast<double>(delay) / kRate / seconds);
    std::vector<double> line(delay, 0);
    double damped = 0;
    for (size_t i = 0; i < dry.size(); ++i) {
      double& cell = line[i % delay];
      wet[i] += 0.25 * cell;
      damped = cell * 0.7 + damped * 0.3;
      cell = dry[i] + damped * feedback;
    }
  }
  for (const size_t delay : {225U, 556U}) {
    std::vector<double> line(delay, 0);
    for (size_t i = 0; i < wet.size(); ++i) {
      double& cell = line[i % delay];
      const double out = cell - 0.5 * wet[i];
      cell = wet[i] + 0.5 * out;
      wet[i] = out;
    }
  }
  return wet;
}

// Bends what exceeds two thirds of the ceiling so that nothing goes beyond the ceiling.
double Bend(double sample) {
  const double knee = kCeiling * 0.66;
  const double size = std::abs(sample);
  if (size <= knee) return sample;
  const double over = (size - knee) / (kCeiling - knee);
  return std::copysign(knee + (kCeiling - knee) * std::tanh(over), sample);
}

}  // namespace

std::vector<float> Mix(const Recipe& recipe) {
  std::vector<double> mix(static_cast<size_t>(recipe.Length * kRate), 0);
  uint32_t seed = 1;
  for (const Layer& layer : recipe.Layers) RenderAll(layer, seed++, mix);
  if (recipe.EchoSeconds > 0) {
    const auto delay = static_cast<size_t>(recipe.EchoSeconds * kRate);
    for (size_t i = delay; i < mix.size(); ++i) mix[i] += recipe.EchoLevel * mix[i - delay];
  }
  if (recipe.Room > 0) {
    const std::vector<double> wet = Room(mix, recipe.RoomSeconds);
    for (size_t i = 0; i < mix.size(); ++i) mix[i] += recipe.Room * wet[i];
  }
  Biquad rumble;  // what no loudspeaker gives back only eats the headroom
  rumble.Set(FilterKind::Highpass, 28, 0.7);
  std::vector<float> out;
  out.reserve(mix.size());
  for (const double sample : mix) out.push_back(static_cast<float>(rumble.Next(sample)));
  return out;
}

std::vector<float> Finish(const std::vector<float>& mix) {
  std::vector<float> out = mix;
  double gain = 1;
  // Bending takes loudness away, so the gain is sought in a few rounds.
  for (int round = 0; round < 12; ++round) {
    for (size_t i = 0; i < mix.size(); ++i) {
      out[i] = static_cast<float>(Bend(static_cast<double>(mix[i]) * gain));
    }
    gain *= std::pow(10.0, (kTargetLoudness - PeakLoudness(out, 0.2)) / 20);
  }
  const size_t in = std::min<size_t>(kRate / 500, out.size());
  for (size_t i = 0; i < in; ++i) {
    out[i] *= static_cast<float>(
        0.5 - 0.5 * std::cos(kPi * static_cast<double>(i) / static_cast<double>(in)));
  }
  const size_t rest = std::min<size_t>(kRate / 50, out.size());
  for (size_t i = 0; i < rest; ++i) {
    out[out.size() - 1 - i] *= static_cast<float>(
        0.5 - 0.5 * std::cos(kPi * static_cast<double>(i) / static_cast<double>(rest)));
  }
  return out;
}

}  // namespace orvane::effects
