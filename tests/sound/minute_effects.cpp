#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>

#include "src/platform/sound_channels.h"
#include "tests/sound/finding.h"
#include "tests/sound/minute.h"

namespace orvane::test {
namespace {

constexpr double kMostApart = 0.02;  // seconds between an effect and its frame
// Starts of one effect that follow each other closer than that are a roll, in which those after the
// first come softer, from left and right in turn.
constexpr double kRoll = 0.1;
// In a roll other starts of the same effect take something away from what is found.
constexpr double kLeastGain = 0.5;
constexpr double kLeastGainInRoll = 0.4;
// Of so many frames one may be painted late: on a machine that has much else to do painting waits,
// and sound does not.
constexpr int kFramesToOneLate = 10;
// About how long a start goes on, ever softer, under those that follow it.
constexpr double kFade = 0.1;
// How far from its request a start is looked for, in seconds; in a roll not as far as its
// neighbours.
constexpr double kReach = 0.04;
constexpr double kReachInRoll = 0.012;
// Starts closer than that are one.
constexpr double kSame = 0.004;

struct Start {
  std::string Channel;
  double Asked = 0;    // in seconds
  double Painted = 0;  // the first painting after it
  double Closes = 0;   // when its channel is closed
  int Again = 0;       // how many starts of its roll came before it
  double Rolls = 0;    // when its roll began
};

bool IsEffect(const Note& note, const char* verb) {
  return note.Verb == verb && note.Name.rfind("snd", 0) == 0;
}

// The time of the first note behind `place` that passes, or far away.
template <typename Passes>
double NextTime(const std::vector<Note>& notes, size_t place, const Passes& passes) {
  const auto next =
      std::find_if(notes.begin() + static_cast<std::ptrdiff_t>(place) + 1, notes.end(), passes);
  return next == notes.end() ? 1e9 : next->At;
}

std::vector<Start> CollectStarts(const std::vector<Note>& notes) {
  std::vector<Start> starts;
  std::map<std::string, Start> last;
  for (size_t i = 0; i < notes.size(); ++i) {
    const Note& note = notes[i];
    if (IsEffect(note, "close")) last.erase(note.Name);
    if (!IsEffect(note, "play")) continue;
    Start start{note.Name, note.At, 0, 0, 0, note.At};
    if (const auto before = last.find(note.Name); before != last.end()) {
      const double since = note.At - before->second.Asked;
      if (since < kSame) continue;
      if (since < kRoll) {
        start.Again = before->second.Again + 1;
        start.Rolls = before->second.Rolls;
      }
    }
    start.Painted = NextTime(notes, i, [](const Note& each) { return each.Verb == "painted"; });
    start.Closes = NextTime(notes, i, [&note](const Note& each) {
      return each.Verb == "close" && each.Name == note.Name;
    });
    last[note.Name] = start;
    starts.push_back(start);
  }
  return starts;
}

std::vector<float> Mixed(const Recording& recording, float right) {
  std::vector<float> mixed(recording.Left.size());
  for (size_t i = 0; i < mixed.size(); ++i) {
    mixed[i] = (recording.Left[i] + right * recording.Right[i]) / 2;
  }
  return mixed;
}

std::vector<float> Opening(const std::vector<float>& clip, int rate, double seconds) {
  const auto count = std::min(clip.size(), static_cast<size_t>(std::max(seconds, 0.008) * rate));
  return {clip.begin(), clip.begin() + static_cast<std::ptrdiff_t>(count)};
}

// What an ear finds of a start: in a roll, the difference of the sides tells its starts apart, as
// neighbours stand on opposite sides.
struct Ear {
  std::vector<float> Middle;
  std::vector<float> Difference;
  int Rate = 0;

  Finding Hear(const Start& start, const std::vector<float>& clip) const {
    if (start.Again == 0) {
      const double known = std::min(0.4, start.Closes - start.Asked);
      return Find(Middle, Rate, Opening(clip, Rate, known), start.Asked - kReach,
                  start.Asked + kReach, start.Asked);
    }
    std::vector<float> opening = Opening(clip, Rate, std::min(kFade, start.Closes - start.Asked));
    const float side = start.Again % 2 == 1 ? 0.1F : -0.1F;  // half of 0.6 less 0.4
    for (size_t i = 0; i < opening.size(); ++i) {
      opening[i] *= side * (1 - static_cast<float>(i) / static_cast<float>(kFade * Rate));
    }
    return Find(Difference, Rate, opening, start.Asked - kReachInRoll, start.Asked + kReachInRoll,
                start.Rolls);
  }
};

// The worst of a channel's starts.
struct Row {
  int Starts = 0;
  double Latest = -1;  // seconds behind the frame
  double Earliest = 1;
  double Slowest = 0;  // seconds from the request
  double Faintest = 9;
  int PaintedLate = 0;  // frames that came on the display long after their effect
};

int JudgeStart(const Start& start, const Finding& found, double delay, Row& row) {
  const double behind_frame = found.At + delay - start.Painted;
  const double behind_asking = found.At + delay - start.Asked;
  ++row.Starts;
  row.Latest = std::max(row.Latest, behind_frame);
  row.Earliest = std::min(row.Earliest, behind_frame);
  row.Slowest = std::max(row.Slowest, std::fabs(behind_asking));
  row.Faintest = std::min(row.Faintest, found.Gain);
  const char* fault = nullptr;
  if (found.Gain < (start.Again == 0 ? kLeastGain : kLeastGainInRoll)) {
    fault = "is not heard";
  } else if (std::fabs(behind_asking) > kMostApart) {
    fault = "does not come when it is asked for";
  } else if (behind_frame > kMostApart) {
    fault = "comes after its frame";
  }
  if (behind_frame < -kMostApart) ++row.PaintedLate;
  if (fault == nullptr) return 0;
  std::printf(
      "FAULT %s at %.3f s %s: gain %.2f (doubt %.2f), %.1f ms behind asking, %.1f ms behind "
      "painting\n",
      start.Channel.c_str(), start.Asked, fault, found.Gain, found.Doubt, behind_asking * 1000,
      behind_frame * 1000);
  return 1;
}

}  // namespace

int JudgeEffects(const Minute& minute) {
  const Ear ear{Mixed(minute.Heard, 1), Mixed(minute.Heard, -1), minute.Heard.Rate};
  std::map<std::string, std::vector<float>> clips;
  std::map<std::string, Row> rows;
  int faults = 0;
  for (const Start& start : CollectStarts(minute.Noted.All)) {
    auto& clip = clips[start.Channel];
    if (clip.empty()) {
      const auto file = ReadRecording(minute.Sounds + "/" + SoundFile(start.Channel));
      if (file) clip = file->Left;
    }
    if (clip.empty()) continue;
    faults += JudgeStart(start, ear.Hear(start, clip), minute.Noted.Delay, rows[start.Channel]);
  }
  int starts = 0;
  int painted_late = 0;
  for (const auto& [channel, row] : rows) {
    starts += row.Starts;
    painted_late += row.PaintedLate;
    std::printf(
        "%-5s %3d starts, %5.1f to %5.1f ms behind their frames, at most %4.1f ms from their "
        "asking, gain %.2f and more\n",
        channel.c_str(), row.Starts, row.Earliest * 1000, row.Latest * 1000, row.Slowest * 1000,
        row.Faintest);
  }
  std::printf("%d of %d frames were painted more than %.0f ms after their effect\n", painted_late,
              starts, kMostApart * 1000);
  if (painted_late * kFramesToOneLate > starts) {
    std::printf("FAULT those are too many\n");
    ++faults;
  }
  for (int i = 1; i <= 10; ++i) {
    const std::string channel = "snd" + std::to_string(i);
    if (rows.count(channel) != 0) continue;
    std::printf("FAULT %s was never asked for\n", channel.c_str());
    ++faults;
  }
  return faults;
}

}  // namespace orvane::test
