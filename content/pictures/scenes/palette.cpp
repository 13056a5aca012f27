#include "content/pictures/scenes/palette.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>

namespace orvane::paint::scene {
namespace {

// Differences in green are seen most, in blue least.
constexpr std::array<int, 3> kWeight{3, 5, 2};
constexpr int kSettlingRounds = 8;

struct Bin {
  uint32_t Colour;
  int64_t Count;
};

int Channel(uint32_t colour, int channel) {
  return static_cast<int>(colour >> (16 - 8 * channel) & 0xFF);
}

int Distance(uint32_t a, uint32_t b) {
  int sum = 0;
  for (int channel = 0; channel < 3; ++channel) {
    const int difference = Channel(a, channel) - Channel(b, channel);
    sum += kWeight[static_cast<size_t>(channel)] * difference * difference;
  }
  return sum;
}

size_t NearestIndex(const std::vector<uint32_t>& palette, uint32_t pixel) {
  size_t best = 0;
  int best_distance = std::numeric_limits<int>::max();
  for (size_t i = 0; i < palette.size(); ++i) {
    const int distance = Distance(palette[i], pixel);
    if (distance < best_distance) {
      best = i;
      best_distance = distance;
    }
  }
  return best;
}

// A run of bins, its spread along its widest channel, and its mean.
struct Box {
  size_t Begin;
  size_t End;
  int Channel = 0;
  double Spread = 0;
  uint32_t Mean = 0;
};

Box MeasureBox(const std::vector<Bin>& bins, size_t begin, size_t end) {
  Box box{begin, end};
  uint32_t mean = 0;
  for (int channel = 0; channel < 3; ++channel) {
    double count = 0;
    double sum = 0;
    double squares = 0;
    for (size_t i = begin; i < end; ++i) {
      const double value = Channel(bins[i].Colour, channel);
      const double times = static_cast<double>(bins[i].Count);
      count += times;
      sum += times * value;
      squares += times * value * value;
    }
    const double spread = (squares - sum * sum / count) * kWeight[static_cast<size_t>(channel)];
    if (spread > box.Spread) {
      box.Spread = spread;
      box.Channel = channel;
    }
    mean = mean << 8 | static_cast<uint32_t>(std::lround(sum / count));
  }
  box.Mean = mean;
  return box;
}

// Cuts the box at its mean; both parts hold at least one bin.
std::array<Box, 2> Split(std::vector<Bin>& bins, const Box& box) {
  const auto first = bins.begin() + static_cast<std::ptrdiff_t>(box.Begin);
  const auto last = bins.begin() + static_cast<std::ptrdiff_t>(box.End);
  const int level = Channel(box.Mean, box.Channel);
  const auto middle = std::stable_partition(
      first, last, [&](const Bin& bin) { return Channel(bin.Colour, box.Channel) <= level; });
  const size_t cut =
      std::clamp(static_cast<size_t>(middle - bins.begin()), box.Begin + 1, box.End - 1);
  return {MeasureBox(bins, box.Begin, cut), MeasureBox(bins, cut, box.End)};
}

std::vector<Bin> Count(const Image& image) {
  std::map<uint32_t, int64_t> counts;
  for (const uint32_t pixel : image.Pixels) ++counts[pixel];
  std::vector<Bin> bins;
  bins.reserve(counts.size());
  for (const auto& [colour, count] : counts) bins.push_back({colour, count});
  return bins;
}

void Settle(const std::vector<Bin>& bins, std::vector<uint32_t>& palette) {
  struct Sum {
    std::array<int64_t, 3> Channels{};
    int64_t Count = 0;
  };
  std::vector<Sum> sums(palette.size());
  for (const Bin& bin : bins) {
    Sum& sum = sums[NearestIndex(palette, bin.Colour)];
    for (int channel = 0; channel < 3; ++channel) {
      sum.Channels[static_cast<size_t>(channel)] += bin.Count * Channel(bin.Colour, channel);
    }
    sum.Count += bin.Count;
  }
  for (size_t i = 0; i < palette.size(); ++i) {
    if (sums[i].Count == 0) continue;
    uint32_t mean = 0;
    for (const int64_t sum : sums[i].Channels) {
      mean = mean << 8 | static_cast<uint32_t>((sum + sums[i].Count / 2) / sums[i].Count);
    }
    palette[i] = mean;
  }
}

}  // namespace

std::vector<uint32_t> MakePalette(const Image& image, int colours) {
  std::vector<Bin> bins = Count(image);
  std::vector<Box> boxes{MeasureBox(bins, 0, bins.size())};
  while (boxes.size() < static_cast<size_t>(colours)) {
    const auto widest = std::max_element(
        boxes.begin(), boxes.end(), [](const Box& a, const Box& b) { return a.Spread < b.Spread; });
    if (widest->End - widest->Begin < 2) break;
    const std::array<Box, 2> halves = Split(bins, *widest);
    *widest = halves[0];
    boxes.push_back(halves[1]);
  }
  std::vector<uint32_t> palette;
  palette.reserve(boxes.size());
  for (const Box& box : boxes) palette.push_back(box.Mean);
  for (int round = 0; round < kSettlingRounds; ++round) Settle(bins, palette);
  return palette;
}

uint32_t Nearest(const std::vector<uint32_t>& palette, uint32_t pixel) {
  return palette[NearestIndex(palette, pixel)];
}

}  // namespace orvane::paint::scene
