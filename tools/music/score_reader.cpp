#include <algorithm>
#include <array>
#include <charconv>
#include <sstream>

#include "tools/music/score.h"

namespace orvane::music {
namespace {

std::vector<std::string> Words(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

// Splits a bar into tokens: at blanks, but not inside [ ].
std::vector<std::string> Tokens(const std::string& text) {
  std::vector<std::string> tokens;
  std::string token;
  int depth = 0;
  for (const char c : text) {
    if (c == '[') ++depth;
    if (c == ']') --depth;
    if (c == ' ' && depth == 0) {
      if (!token.empty()) tokens.push_back(token);
      token.clear();
    } else {
      token += c;
    }
  }
  if (!token.empty()) tokens.push_back(token);
  return tokens;
}

class Reader {
 public:
  Score Read(std::string_view text) {
    std::istringstream in{std::string(text)};
    for (std::string row; std::getline(in, row);) {
      ++line_;
      const size_t comment = row.find("//");
      if (comment != std::string::npos) row.resize(comment);
      std::replace(row.begin(), row.end(), '\t', ' ');
      const std::vector<std::string> words = Words(row);
      if (words.empty()) continue;
      if (row.front() != ' ') {
        TopLevel(words, row);
      } else if (pattern_ != nullptr) {
        DrumCells(words);
      } else if (section_ != nullptr) {
        SectionLine(words, row);
      } else {
        Fail("an indented line belongs to a pattern or a section");
      }
    }
    Finish();
    return score_;
  }

 private:
  [[noreturn]] void Fail(const std::string& what) const { throw ScoreError(line_, what); }

  int Number(const std::string& word, int low, int high) const {
    int value = 0;
    const char* first = word.data() + (word.front() == '+' ? 1 : 0);
    const auto result = std::from_chars(first, word.data() + word.size(), value);
    if (result.ec != std::errc() || result.ptr != word.data() + word.size() || value < low ||
        value > high) {
      Fail("a number from " + std::to_string(low) + " to " + std::to_string(high) +
           " is wanted and not " + word);
    }
    return value;
  }

  const std::string& Word(const std::vector<std::string>& words, size_t index) const {
    if (index >= words.size()) Fail("something is missing behind " + words.front());
    return words[index];
  }

  Key KeyOf(const std::vector<std::string>& words) const {
    try {
      return ReadKey(Word(words, 1), Word(words, 2));
    } catch (const std::invalid_argument& problem) {
      Fail(problem.what());
    }
  }

  Meter MeterOf(const std::string& word) const {
    const size_t slash = word.find('/');
    if (slash == std::string::npos || slash == 0) Fail("a meter is written as 4/4");
    Meter meter;
    meter.Beats = Number(word.substr(0, slash), 1, 16);
    meter.Unit = Number(word.substr(slash + 1), 2, 16);
    if (kWhole % meter.Unit != 0) Fail("no such note value in the meter");
    return meter;
  }

  void TopLevel(const std::vector<std::string>& words, const std::string& row) {
    pattern_ = nullptr;
    section_ = nullptr;
    const std::string& keyword = words.front();
    if (keyword == "piece") {
      score_.Name = Word(words, 1);
      const size_t open = row.find('"');
      const size_t close = row.rfind('"');
      if (open != std::string::npos && close > open) {
        score_.Title = row.substr(open + 1, close - open - 1);
      }
    } else if (keyword == "key") {
      score_.key = KeyOf(words);
    } else if (keyword == "tempo") {
      score_.Tempo = Number(Word(words, 1), 20, 300);
    } else if (keyword == "meter") {
      score_.meter = MeterOf(Word(words, 1));
    } else if (keyword == "level") {
      score_.Level = Number(Word(words, 1), -200, 60) / 10.0;
    } else if (keyword == "poll") {
      score_.Poll = Number(Word(words, 1), 0, 200);
    } else if (keyword == "form") {
      score_.Form.insert(score_.Form.end(), words.begin() + 1, words.end());
    } else if (keyword == "part") {
      AddPart(words);
    } else if (keyword == "pattern") {
      pattern_ = &score_.Patterns[Word(words, 1)];
      if (!pattern_->empty()) Fail("a second pattern " + words[1]);
    } else if (keyword == "section") {
      AddSection(words);
    } else {
      Fail("unknown word " + keyword);
    }
  }

  void AddPart(const std::vector<std::string>& words) {
    Part part;
    part.Name = Word(words, 1);
    part.instrument = FindInstrument(Word(words, 2));
    if (part.instrument == nullptr) Fail("unknown instrument " + words[2]);
    struct Option {
      std::string_view Name;
      int Part::*Field;
      int Low;
      int High;
    };
    static const std::array<Option, 11> options = {{{"home", &Part::Home, 0, 8},
                                                    {"volume", &Part::Volume, 0, 127},
                                                    {"pan", &Part::Pan, -63, 63},
                                                    {"reverb", &Part::Reverb, 0, 127},
                                                    {"chorus", &Part::Chorus, 0, 127},
                                                    {"feel", &Part::Feel, 0, 30},
                                                    {"vibrato", &Part::Vibrato, 0, 127},
                                                    {"gate", &Part::Gate, 10, 100},
                                                    {"roll", &Part::Roll, 0, 120},
                                                    {"touch", &Part::touch, -40, 40},
                                                    {"voices", &Part::Voices, 2, 5}}};
    for (size_t i = 3; i < words.size(); i += 2) {
      const std::string& value = Word(words, i + 1);
      if (words[i] == "floor") {
        try {
          part.Floor = ReadPitch(value);
        } catch (const std::invalid_argument& problem) {
          Fail(problem.what());
        }
        continue;
      }
      const auto* option = std::find_if(options.begin(), options.end(), [&](const Option& known) {
        return known.Name == words[i];
      });
      if (option == options.end()) Fail("unknown option " + words[i]);
      part.*(option->Field) = Number(value, option->Low, option->High);
    }
    part.Channel = part.instrument->Drums ? 9 : next_channel_;
    if (!part.instrument->Drums && ++next_channel_ == 9) ++next_channel_;
    if (part.Channel > 15) Fail("more parts than channels");
    score_.Parts.push_back(part);
  }

  void AddSection(const std::vector<std::string>& words) {
    Section section;
    section.key = score_.key;
    section.Tempo = section.TempoEnd = score_.Tempo;
    section.meter = score_.meter;
    const std::string& name = Word(words, 1);
    for (size_t i = 2; i < words.size(); ++i) {
      if (words[i] == "like") {
        const auto model = score_.sections.find(Word(words, ++i));
        if (model == score_.sections.end()) Fail("no section " + words[i] + " before this one");
        section = model->second;
      } else if (words[i].front() == '+' || words[i].front() == '-') {
        section.Transpose += Number(words[i], -24, 24);
      } else {
        section.Bars = Number(words[i], 1, 64);
      }
    }
    section.Name = name;
    section.line = line_;
    if (section.Bars == 0) Fail("a section needs its number of bars");
    if (!score_.sections.emplace(name, section).second) Fail("a second section " + name);
    section_ = &score_.sections[name];
    fresh_.clear();
  }

  void DrumCells(const std::vector<std::string>& words) {
    DrumRow row;
    row.key = FindDrum(words.front());
    if (row.key < 0) Fail("unknown drum " + words.front());
    for (size_t i = 1; i < words.size(); ++i) row.Cells += words[i];
    if (row.Cells.empty() || row.Cells.find_first_not_of(".oxX") != std::string::npos) {
      Fail("drum cells are . o x and X");
    }
    std::replace(row.Cells.begin(), row.Cells.end(), '.', ' ');
    pattern_->push_back(row);
  }

  void SectionLine(const std::vector<std::string>& words, const std::string& row) {
    const std::string& keyword = words.front();
    if (keyword == "key") {
      section_->key = KeyOf(words);
    } else if (keyword == "meter") {
      section_->meter = MeterOf(Word(words, 1));
    } else if (keyword == "tempo") {
      const std::string& value = Word(words, 1);
      const size_t dots = value.find("..");
      section_->Tempo = Number(value.substr(0, dots), 20, 300);
      section_->TempoEnd =
          dots == std::string::npos ? section_->Tempo : Number(value.substr(dots + 2), 20, 300);
    } else if (keyword == "silent") {
      for (size_t i = 1; i < words.size(); ++i) section_->lines.erase(words[i]);
    } else {
      AddBars(keyword, row.substr(row.find(keyword) + keyword.size()));
    }
  }

  void AddBars(const std::string& name, const std::string& text) {
    const bool known =
        name == "chords" || std::any_of(score_.Parts.begin(), score_.Parts.end(),
                                        [&](const Part& p) { return p.Name == name; });
    if (!known) Fail("no part " + name);
    // The first line of a part in a section replaces what the section took from its model.
    if (std::find(fresh_.begin(), fresh_.end(), name) == fresh_.end()) {
      section_->lines[name] = Line();
      fresh_.push_back(name);
    }
    Line& line = section_->lines[name];
    std::istringstream in(text);
    for (std::string bar; std::getline(in, bar, '|');) {
      std::vector<std::string> tokens = Tokens(bar);
      if (tokens.empty()) continue;
      if (tokens.size() == 1 && tokens.front() == "...") {
        line.Repeats = true;
        continue;
      }
      if (tokens.size() == 1 && tokens.front() == "%") {
        if (line.Bars.empty()) Fail("nothing to repeat");
        tokens = line.Bars.back().Tokens;
      }
      line.Bars.push_back({tokens, line_});
    }
  }

  void Finish() {
    ++line_;
    if (score_.Name.empty()) Fail("no piece line");
    if (score_.Form.empty()) Fail("no form line");
    for (const std::string& name : score_.Form) {
      if (score_.sections.count(name) == 0) Fail("the form names no section: " + name);
    }
    for (auto& [name, section] : score_.sections) {
      for (auto& [part, line] : section.lines) {
        const auto bars = static_cast<size_t>(section.Bars);
        const size_t given = line.Bars.size();
        if (line.Repeats && given > 0) {
          for (size_t i = given; i < bars; ++i) line.Bars.push_back(line.Bars[i - given]);
        }
        if (line.Bars.size() != bars) {
          std::ostringstream what;
          what << "section " << name << ": " << part << " has " << line.Bars.size()
               << " bars and not " << bars;
          throw ScoreError(section.line, what.str());
        }
      }
    }
  }

  Score score_;
  int line_ = 0;
  int next_channel_ = 0;
  std::vector<DrumRow>* pattern_ = nullptr;
  Section* section_ = nullptr;
  std::vector<std::string> fresh_;  // parts that have a line of their own in this section
};

}  // namespace

Score ReadScore(std::string_view text) {
  return Reader().Read(text);
}

}  // namespace orvane::music
