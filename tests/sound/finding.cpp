#include "tests/sound/finding.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace orvane::test {
namespace {

constexpr size_t kOrder = 32;
constexpr double kLearned = 0.3;  // seconds
// The part of the loudest that counts as silence: it keeps the filter finite.
constexpr double kFloor = 1e-4;

std::vector<double> Likeness(std::span<const float> part) {
  std::vector<double> shaped(part.size());
  for (size_t i = 0; i < part.size(); ++i) {
    const double turn =
        2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(part.size());
    shaped[i] = part[i] * (0.5 - 0.5 * std::cos(turn));
  }
  std::vector<double> likeness(kOrder + 1);
  for (size_t lag = 0; lag <= kOrder && lag < shaped.size(); ++lag) {
    likeness[lag] = std::inner_product(shaped.begin() + static_cast<std::ptrdiff_t>(lag),
                                       shaped.end(), shaped.begin(), 0.0);
  }
  likeness[0] = likeness[0] * (1 + kFloor) + 1e-9;
  return likeness;
}

// The filter that makes white noise of what sounds like `part`: linear prediction by Levinson's
// recursion.
std::vector<double> Whitener(std::span<const float> part) {
  const std::vector<double> likeness = Likeness(part);
  std::vector<double> filter(kOrder + 1, 0.0);
  filter[0] = 1;
  double error = likeness[0];
  for (size_t i = 1; i <= kOrder; ++i) {
    double sum = 0;
    for (size_t j = 0; j < i; ++j) sum += filter[j] * likeness[i - j];
    const double step = -sum / error;
    const std::vector<double> before = filter;
    for (size_t j = 1; j <= i; ++j) filter[j] += step * before[i - j];
    error *= 1 - step * step;
  }
  return filter;
}

// The part of `whole` from `first` on, filtered; silence stands before and behind the whole.
std::vector<float> Filtered(std::span<const float> whole, std::ptrdiff_t first, size_t count,
                            const std::vector<double>& filter) {
  const auto size = static_cast<std::ptrdiff_t>(whole.size());
  std::vector<float> out(count);
  for (size_t i = 0; i < count; ++i) {
    double sum = 0;
    for (size_t j = 0; j < filter.size(); ++j) {
      const std::ptrdiff_t place =
          first + static_cast<std::ptrdiff_t>(i) - static_cast<std::ptrdiff_t>(j);
      if (place >= 0 && place < size) sum += filter[j] * whole[static_cast<size_t>(place)];
    }
    out[i] = static_cast<float>(sum);
  }
  return out;
}

}  // namespace

Finding Find(std::span<const float> recording, int rate, std::span<const float> sound, double from,
             double to, double quiet) {
  const auto place = [&](double seconds) {
    return std::clamp<std::ptrdiff_t>(std::llround(seconds * rate), 0,
                                      static_cast<std::ptrdiff_t>(recording.size()));
  };
  const std::ptrdiff_t learned = place(quiet - kLearned);
  const std::vector<double> filter = Whitener(
      recording.subspan(static_cast<size_t>(learned), static_cast<size_t>(place(quiet) - learned)));
  const std::ptrdiff_t first = place(from);
  const auto lags = static_cast<size_t>(std::max<std::ptrdiff_t>(place(to) - first, 1));
  const std::vector<float> wanted = Filtered(sound, 0, sound.size(), filter);
  const std::vector<float> heard = Filtered(recording, first, lags + sound.size(), filter);
  const auto energy = std::inner_product(wanted.begin(), wanted.end(), wanted.begin(), 1e-12F);
  std::vector<double> gains(lags);
  for (size_t lag = 0; lag < lags; ++lag) {
    gains[lag] = std::inner_product(wanted.begin(), wanted.end(),
                                    heard.begin() + static_cast<std::ptrdiff_t>(lag), 0.0F) /
                 energy;
  }
  const auto best =
      static_cast<size_t>(std::max_element(gains.begin(), gains.end()) - gains.begin());
  Finding finding{static_cast<double>(first + static_cast<std::ptrdiff_t>(best)) / rate,
                  gains[best], 0};
  const auto near = static_cast<size_t>(rate / 500);
  for (size_t lag = 0; lag < lags; ++lag) {
    const size_t away = lag > best ? lag - best : best - lag;
    if (away > near) finding.Doubt = std::max(finding.Doubt, gains[lag]);
  }
  return finding;
}

}  // namespace orvane::test
