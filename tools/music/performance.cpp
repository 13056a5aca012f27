#include "tools/music/performance.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace orvane::music {
namespace {

constexpr int kStep = kWhole / 16;          // between two values of a controller that moves
constexpr double kRestingExpression = 104;  // leaves room above for the middle of a phrase
constexpr uint8_t kModulation = 1;
constexpr uint8_t kVolume = 7;
constexpr uint8_t kPan = 10;
constexpr uint8_t kExpression = 11;
constexpr uint8_t kReverb = 91;
constexpr uint8_t kChorus = 93;

uint8_t Seven(double value) {
  return static_cast<uint8_t>(std::lround(std::clamp(value, 0.0, 127.0)));
}

// A well-mixed number for a place in the score, -1 to 1: the freedom of the players.
double Freedom(uint32_t part, uint32_t note, uint32_t what) {
  uint32_t x = part * 0x9E3779B1U ^ note * 0x85EBCA77U ^ what * 0xC2B2AE3DU;
  x ^= x >> 15;
  x *= 0x2C1B3C6DU;
  x ^= x >> 12;
  x *= 0x297A2D39U;
  x ^= x >> 15;
  return static_cast<double>(x) / 2147483647.5 - 1;
}

MidiEvent Meta(int tick, uint8_t type, const std::string& text) {
  return {tick, 0xFF, type, 0, text};
}

MidiEvent TempoEvent(int tick, double tempo) {
  const auto micros = static_cast<uint32_t>(std::lround(60000000.0 / tempo));
  return Meta(tick, kMetaTempo,
              {static_cast<char>(micros >> 16), static_cast<char>((micros >> 8) & 0xFF),
               static_cast<char>(micros & 0xFF)});
}

char Log2(int unit) {
  char power = 0;
  while (unit > 1) {
    unit /= 2;
    ++power;
  }
  return power;
}

// What the end loses so that a player who notices it late still repeats in time, on average.
int CutAtEnd(const Sheet& sheet) {
  const double beats = sheet.score->Poll / 2.0 / 60000.0 * sheet.sections.back().section->TempoEnd;
  return static_cast<int>(beats * kQuarter);
}

MidiTrack Conductor(const Sheet& sheet, int end) {
  MidiTrack track;
  track.End = end;
  track.events.push_back(Meta(0, kMetaName, sheet.score->Name));
  track.events.push_back(Meta(0, kMetaText, sheet.score->Title));
  const Section* before = nullptr;
  for (const PlacedSection& placed : sheet.sections) {
    const Section& now = *placed.section;
    track.events.push_back(Meta(placed.Start, kMetaMarker, now.Name));
    if (before == nullptr || before->key.Name != now.key.Name) {
      track.events.push_back(
          Meta(placed.Start, kMetaKey,
               {static_cast<char>(now.key.Sharps), static_cast<char>(now.key.Minor ? 1 : 0)}));
    }
    if (before == nullptr || before->meter.Beats != now.meter.Beats ||
        before->meter.Unit != now.meter.Unit) {
      track.events.push_back(
          Meta(placed.Start, kMetaMeter,
               {static_cast<char>(now.meter.Beats), Log2(now.meter.Unit), 24, 8}));
    }
    if (before == nullptr || before->TempoEnd != now.Tempo) {
      track.events.push_back(TempoEvent(placed.Start, now.Tempo));
    }
    if (now.Tempo != now.TempoEnd) {
      const int step = kQuarter / 2;
      for (int tick = placed.Start + step; tick < std::min(placed.End, end); tick += step) {
        const double share = static_cast<double>(tick - placed.Start) /
                             static_cast<double>(placed.End - placed.Start);
        track.events.push_back(TempoEvent(tick, now.Tempo + (now.TempoEnd - now.Tempo) * share));
      }
    }
    before = &now;
  }
  return track;
}

// A note as it will sound.
struct Sounding {
  int Start = 0;
  int End = 0;
  int Pitch = 0;
  int Velocity = 64;
};

class Player {
 public:
  Player(const Sheet& sheet, size_t index, int end)
      : sheet_(sheet),
        part_(sheet.score->Parts[index]),
        own_(sheet.Parts[index]),
        index_(static_cast<uint32_t>(index)),
        end_(end) {}

  MidiTrack Play() {
    track_.End = end_;
    SetUp();
    std::vector<Sounding> notes = Soundings();
    PartSamePitches(notes);
    for (const Sounding& note : notes) {
      Send(note.Start, 0x90, static_cast<uint8_t>(note.Pitch), static_cast<uint8_t>(note.Velocity));
      Send(note.End, 0x80, static_cast<uint8_t>(note.Pitch), 0);
    }
    Breathe();
    if (part_.Vibrato > 0) Vibrate();
    return track_;
  }

 private:
  void Send(int tick, int kind, uint8_t data1, uint8_t data2) {
    track_.events.push_back({tick, static_cast<uint8_t>(kind | part_.Channel), data1, data2, {}});
  }

  void SetUp() {
    track_.events.push_back(Meta(0, kMetaName, part_.Name));
    Send(0, 0xC0, static_cast<uint8_t>(part_.instrument->Program), 0);
    // A synthesizer makes 40 dB of each tenfold volume.
    Send(0, 0xB0, kVolume, Seven(part_.Volume * std::pow(10.0, sheet_.score->Level / 40)));
    Send(0, 0xB0, kPan, Seven(64 + part_.Pan));
    Send(0, 0xB0, kExpression, Seven(kRestingExpression));
    Send(0, 0xB0, kReverb, Seven(part_.Reverb));
    Send(0, 0xB0, kChorus, Seven(part_.Chorus));
    Send(0, 0xB0, kModulation, 0);
  }

  // How much the place in the bar weighs: the first beat leads, off-beats are lighter.
  int Weight(int tick) const {
    for (const PlacedSection& placed : sheet_.sections) {
      if (tick < placed.Start || tick >= placed.End) continue;
      const Meter& meter = placed.section->meter;
      const int in_bar = (tick - placed.Start) % meter.BarTicks();
      if (in_bar == 0) return 4;
      if (in_bar % meter.BeatTicks() != 0) return -3;
      return meter.Beats % 2 == 0 && in_bar == meter.BarTicks() / 2 ? 2 : 0;
    }
    return 0;
  }

  static double Sounds(const Note& note, int gate) {
    switch (note.touch) {
      case Touch::Staccato:
        return 0.5 * note.Length;
      case Touch::Tenuto:
      case Touch::Slurred:
        return note.Length;
      case Touch::Plain:
        break;
    }
    return note.Length * gate / 100.0;
  }

  std::vector<Sounding> Soundings() const {
    std::vector<Sounding> notes;
    int in_chord = 0;
    for (size_t i = 0; i < own_.Notes.size(); ++i) {
      const Note& written = own_.Notes[i];
      in_chord = i > 0 && own_.Notes[i - 1].Start == written.Start ? in_chord + 1 : 0;
      // The tones of a chord are struck together, so their freedom hangs on the place, not the
      // tone.
      const auto place = static_cast<uint32_t>(written.Start);
      const auto number = static_cast<uint32_t>(i);
      const double early = Freedom(index_, place, 1) * part_.Feel;
      Sounding note;
      note.Pitch = written.Pitch;
      note.Start = written.Start + static_cast<int>(early) + in_chord * part_.Roll;
      note.Start = std::clamp(note.Start, written.Start == 0 ? 0 : 1, end_ - 2);
      note.End = written.Start + static_cast<int>(Sounds(written, part_.Gate));
      note.End = std::clamp(note.End, note.Start + 1, end_ - 1);
      const double velocity = written.Loudness + written.Stress + part_.touch +
                              Weight(written.Start) + Freedom(index_, number, 2) * 3;
      note.Velocity = std::max<int>(1, Seven(velocity));
      if (written.Start < end_ - 2) notes.push_back(note);
    }
    return notes;
  }

  // A pitch that is struck again ends first; one struck twice at once sounds once.
  static void PartSamePitches(std::vector<Sounding>& notes) {
    std::stable_sort(notes.begin(), notes.end(), [](const Sounding& a, const Sounding& b) {
      return a.Pitch != b.Pitch ? a.Pitch < b.Pitch : a.Start < b.Start;
    });
    const auto twice = [](const Sounding& a, const Sounding& b) {
      return a.Pitch == b.Pitch && b.Start - a.Start < 2;
    };
    notes.erase(std::unique(notes.begin(), notes.end(), twice), notes.end());
    for (size_t i = 0; i + 1 < notes.size(); ++i) {
      if (notes[i].Pitch == notes[i + 1].Pitch) {
        notes[i].End = std::min(notes[i].End, notes[i + 1].Start - 1);
      }
    }
  }

  double LoudnessAt(int tick) const {
    for (const Dynamic& dynamic : own_.Dynamics) {
      if (tick < dynamic.Start || tick >= dynamic.End) continue;
      return dynamic.From +
             (dynamic.To - dynamic.From) * (tick - dynamic.Start) / (dynamic.End - dynamic.Start);
    }
    return 75;
  }

  // A slur swells a little to its middle and falls to its end.
  double Arc(int tick) const {
    for (const Phrase& phrase : own_.Phrases) {
      if (tick < phrase.Start || tick >= phrase.End) continue;
      const double share =
          static_cast<double>(tick - phrase.Start) / static_cast<double>(phrase.End - phrase.Start);
      return 0.92 + 0.14 * std::sin(3.14159265 * std::pow(share, 0.8));
    }
    return 1;
  }

  // Expression follows slurs, and carries a growing dynamic on inside of held notes.
  void Breathe() {
    if (part_.instrument->Drums) return;
    size_t next = 0;
    const Note* held = nullptr;
    int last = static_cast<int>(kRestingExpression);
    for (int tick = 0; tick < end_ - 1; tick += kStep) {
      while (next < own_.Notes.size() && own_.Notes[next].Start <= tick) held = &own_.Notes[next++];
      if (held == nullptr) continue;
      double ratio = 1;
      if (held->Length >= kQuarter && tick < held->Start + held->Length) {
        ratio = LoudnessAt(tick) / std::max(1.0, held->Loudness);
      }
      const int value = Seven(kRestingExpression * Arc(tick) * ratio);
      if (std::abs(value - last) < 2) continue;
      Send(tick, 0xB0, kExpression, static_cast<uint8_t>(value));
      last = value;
    }
  }

  // Long notes begin straight and grow a vibrato.
  void Vibrate() {
    for (const Note& note : own_.Notes) {
      if (note.Length < kQuarter * 3 / 2) continue;
      const int from = note.Start + note.Length / 3;
      for (int i = 1; i <= 4; ++i) {
        const int tick = from + (i - 1) * kStep / 2;
        if (tick < end_ - 1) Send(tick, 0xB0, kModulation, Seven(part_.Vibrato * i / 4.0));
      }
      const int stop = note.Start + note.Length - 8;
      if (stop < end_ - 1) Send(stop, 0xB0, kModulation, 0);
    }
  }

  const Sheet& sheet_;
  const Part& part_;
  const PartSheet& own_;
  uint32_t index_;
  int end_;
  MidiTrack track_;
};

}  // namespace

MidiFile Perform(const Sheet& sheet) {
  MidiFile file;
  file.TicksPerQuarter = kQuarter;
  const int end = sheet.End - CutAtEnd(sheet);
  file.Tracks.push_back(Conductor(sheet, end));
  for (size_t i = 0; i < sheet.Parts.size(); ++i) {
    file.Tracks.push_back(Player(sheet, i, end).Play());
  }
  return file;
}

}  // namespace orvane::music
