#include "tools/music/sheet.h"

#include <algorithm>
#include <map>
#include <stdexcept>

#include "tools/music/token.h"

namespace orvane::music {
namespace {

// Ticks of a chord in a bar are given behind a colon ("G:2"), or the bar is shared out evenly.
void PlaceChords(const PlacedSection& placed, std::vector<PlacedChord>& chords) {
  const Section& section = *placed.section;
  const auto line = section.lines.find("chords");
  if (line == section.lines.end()) return;
  int start = placed.Start;
  for (const Bar& bar : line->second.Bars) {
    const int bar_end = start + section.meter.BarTicks();
    const int share = section.meter.BarTicks() / static_cast<int>(bar.Tokens.size());
    for (const std::string& token : bar.Tokens) {
      int length = share;
      const size_t colon = token.find(':');
      PlacedChord chord;
      try {
        if (colon != std::string::npos)
          length = ReadToken(std::string("r").append(token, colon + 1)).Length;
        chord.chord = Transposed(ReadChord(token.substr(0, colon)), section.Transpose);
      } catch (const std::invalid_argument& problem) {
        throw ScoreError(bar.line, problem.what());
      }
      chord.Start = start;
      chord.End = start += length;
      chords.push_back(chord);
    }
    if (start != bar_end) throw ScoreError(bar.line, "the chords do not fill the bar");
  }
}

int AtOrAbove(int floor, int pitch_class) {
  return floor + ((pitch_class - floor) % 12 + 12) % 12;
}

// Reads the lines of one part through the whole form.
class LineReader {
 public:
  LineReader(const Sheet& sheet, const Part& part) : sheet_(sheet), part_(part) {}

  PartSheet Read() {
    for (const PlacedSection& placed : sheet_.sections) {
      section_ = placed.section;
      const auto line = section_->lines.find(part_.Name);
      if (line == section_->lines.end()) continue;
      now_ = placed.Start;
      length_ = kQuarter;
      octave_ = part_.Home;
      slur_ = -1;
      SetDynamic(ReadDynamic("mf"), ReadDynamic("mf"));
      for (const Bar& bar : line->second.Bars) ReadBar(bar);
      if (!tied_.empty()) throw ScoreError(line->second.Bars.back().line, "a tie leads nowhere");
      if (!out_.Dynamics.empty()) out_.Dynamics.back().End = placed.End;
    }
    SetLoudness();
    return out_;
  }

 private:
  void SetDynamic(double from, double to) {
    if (!out_.Dynamics.empty() && out_.Dynamics.back().End > now_) out_.Dynamics.back().End = now_;
    out_.Dynamics.push_back({now_, sheet_.End, from, to});
  }

  void ReadBar(const Bar& bar) {
    const int end = now_ + section_->meter.BarTicks();
    try {
      for (const std::string& token : Unfolded(bar.Tokens)) {
        if (token.front() == '\\') {
          const size_t dots = token.find("..");
          const double from = ReadDynamic(token.substr(1, dots - 1));
          SetDynamic(from, dots == std::string::npos ? from : ReadDynamic(token.substr(dots + 2)));
        } else if (token.front() == 'o' && token.size() == 2) {
          octave_ = token[1] - '0';
        } else if (part_.instrument->Drums) {
          Drum(token, bar.line, end);
        } else {
          Play(ReadToken(token), bar.line);
        }
      }
    } catch (const std::invalid_argument& problem) {
      throw ScoreError(bar.line, part_.Name + ": " + problem.what());
    }
    if (part_.instrument->Drums) now_ = end;
    if (now_ != end) {
      throw ScoreError(bar.line, part_.Name + ": the bar is " + std::to_string(now_ - end) +
                                     " ticks too long in section " + section_->Name);
    }
  }

  const Chord& ChordNow() const {
    for (const PlacedChord& placed : sheet_.chords) {
      if (placed.Start <= now_ && now_ < placed.End) return placed.chord;
    }
    throw std::invalid_argument("no chord stands here");
  }

  // The voicing under the part at this moment; it moves on only where the chord changes.
  const std::vector<int>& VoicingNow() {
    for (const PlacedChord& placed : sheet_.chords) {
      if (placed.Start > now_ || now_ >= placed.End) continue;
      if (placed.Start != voiced_) {
        voicing_ = Voice(placed.chord, part_.Floor, part_.Voices, voicing_);
        voiced_ = placed.Start;
      }
      return voicing_;
    }
    throw std::invalid_argument("no chord stands here");
  }

  int PitchOf(const Tone& tone) {
    if (tone.Kind == ToneKind::Voice) {
      const std::vector<int>& voicing = VoicingNow();
      const auto index = static_cast<size_t>(tone.Voice - 1);
      const auto turns = static_cast<int>(index / voicing.size());
      return voicing[index % voicing.size()] + 12 * (turns + tone.Octaves);
    }
    if (tone.Kind == ToneKind::Bass) {
      const Chord& chord = ChordNow();
      const int root = AtOrAbove(part_.Floor, chord.Root);
      int pitch = AtOrAbove(part_.Floor, chord.Bass);
      if (tone.Degree == 'T') pitch = root + chord.Third();
      if (tone.Degree == 'F') pitch = root + chord.Fifth();
      if (tone.Degree == 'S') pitch = root + chord.Seventh();
      return pitch + 12 * tone.Octaves;
    }
    return 12 * (octave_ + 1 + tone.Octaves) + tone.Semitone + section_->Transpose;
  }

  // Under a slur the common tones of two chords are held: the note of this pitch that ends now, or
  // the number of notes where there is none.
  size_t HeldUnderSlur(int pitch) const {
    for (size_t i = out_.Notes.size(); slur_ >= 0 && i > 0; --i) {
      const Note& note = out_.Notes[i - 1];
      if (note.Start < slur_) break;
      if (note.Pitch == pitch && note.Start + note.Length == now_) return i - 1;
    }
    return out_.Notes.size();
  }

  void Play(const Token& token, int line) {
    if (token.Length > 0) length_ = token.Length;
    std::vector<int> pitches;
    if (token.whole_chord) pitches = VoicingNow();
    for (const Tone& tone : token.Tones) pitches.push_back(PitchOf(tone));
    if (token.OpensSlur) slur_ = now_;
    std::map<int, size_t> next_tied;
    for (const int pitch : pitches) {
      const auto tie = tied_.find(pitch);
      size_t index = out_.Notes.size();
      if (tie != tied_.end()) {
        index = tie->second;
        tied_.erase(tie);
      } else if (token.whole_chord) {
        index = HeldUnderSlur(pitch);
      }
      if (index < out_.Notes.size()) {
        out_.Notes[index].Length += length_;
      } else {
        if (pitch < 0 || pitch > 127) throw std::invalid_argument("a pitch out of MIDI");
        Note note;
        note.Start = now_;
        note.Length = length_;
        note.Pitch = pitch;
        note.Stress = token.Stress;
        note.touch = slur_ >= 0 && token.touch == Touch::Plain ? Touch::Slurred : token.touch;
        note.line = line;
        out_.Notes.push_back(note);
      }
      if (token.Tied) next_tied[pitch] = index;
    }
    if (!tied_.empty()) throw std::invalid_argument("a tie to another pitch");
    tied_ = next_tied;
    now_ += length_;
    if (token.ClosesSlur && slur_ >= 0) {
      out_.Phrases.push_back({slur_, now_});
      slur_ = -1;
    }
  }

  void Drum(const std::string& token, int line, int bar_end) {
    if (token == "rest") return;
    size_t at = 0;
    while (at <= token.size()) {
      const size_t plus = std::min(token.find('+', at), token.size());
      const std::string name = token.substr(at, plus - at);
      at = plus + 1;
      const auto pattern = sheet_.score->Patterns.find(name);
      if (pattern == sheet_.score->Patterns.end()) {
        throw std::invalid_argument("no pattern " + name);
      }
      for (const DrumRow& row : pattern->second) DrumHits(row, line, bar_end);
    }
  }

  void DrumHits(const DrumRow& row, int line, int bar_end) {
    const auto cells = static_cast<int>(row.Cells.size());
    const int bar_ticks = bar_end - now_;
    if (bar_ticks % cells != 0)
      throw std::invalid_argument("drum cells do not fill the bar evenly");
    for (int i = 0; i < cells; ++i) {
      const char cell = row.Cells[static_cast<size_t>(i)];
      if (cell == ' ') continue;
      Note note;
      note.Start = now_ + bar_ticks / cells * i;
      note.Length = kWhole / 16;
      note.Pitch = row.key;
      note.Stress = cell == 'X' ? 12 : cell == 'o' ? -22 : 0;
      note.touch = Touch::Tenuto;
      note.line = line;
      out_.Notes.push_back(note);
    }
  }

  void SetLoudness() {
    std::stable_sort(out_.Notes.begin(), out_.Notes.end(),
                     [](const Note& a, const Note& b) { return a.Start < b.Start; });
    for (Note& note : out_.Notes) {
      for (const Dynamic& dynamic : out_.Dynamics) {
        if (note.Start < dynamic.Start || note.Start >= dynamic.End) continue;
        const double share = static_cast<double>(note.Start - dynamic.Start) /
                             static_cast<double>(dynamic.End - dynamic.Start);
        note.Loudness = dynamic.From + (dynamic.To - dynamic.From) * share;
      }
    }
  }

  const Sheet& sheet_;
  const Part& part_;
  const Section* section_ = nullptr;
  PartSheet out_;
  int now_ = 0;
  int length_ = kQuarter;
  int octave_ = 4;
  int slur_ = -1;
  std::map<int, size_t> tied_;  // pitch to its note
  std::vector<int> voicing_;
  int voiced_ = -1;
};

}  // namespace

Sheet WriteOut(const Score& score) {
  Sheet sheet;
  sheet.score = &score;
  for (const std::string& name : score.Form) {
    const Section& section = score.sections.at(name);
    const int end = sheet.End + section.Bars * section.meter.BarTicks();
    sheet.sections.push_back({&section, sheet.End, end});
    sheet.End = end;
    PlaceChords(sheet.sections.back(), sheet.chords);
  }
  for (const Part& part : score.Parts) sheet.Parts.push_back(LineReader(sheet, part).Read());
  return sheet;
}

}  // namespace orvane::music
