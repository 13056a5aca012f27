#include <cmath>
#include <map>
#include <sstream>
#include <stdexcept>

#include "tools/effects/recipe.h"
#include "tools/music/pitch.h"

namespace orvane::effects {
namespace {

class Reader {
 public:
  Recipe Read(std::string_view text) {
    std::istringstream in{std::string(text)};
    for (std::string row; std::getline(in, row);) {
      ++line_;
      const size_t comment = row.find("//");
      if (comment != std::string::npos) row.resize(comment);
      std::istringstream split(row);
      words_.clear();
      for (std::string word; split >> word;) words_.push_back(word);
      if (words_.empty()) continue;
      if (row.front() == ' ') {
        if (recipe_.layers.empty()) Fail("an indented line belongs to a layer");
        LayerLine(recipe_.layers.back());
      } else {
        TopLine();
      }
    }
    if (recipe_.name.empty() || recipe_.layers.empty()) Fail("a recipe needs a name and a layer");
    return recipe_;
  }

 private:
  [[noreturn]] void Fail(const std::string& what) const {
    throw std::runtime_error("line " + std::to_string(line_) + ": " + what);
  }

  const std::string& Word(size_t index) const {
    if (index >= words_.size()) Fail("something is missing behind " + words_.front());
    return words_[index];
  }

  double Number(const std::string& word) const {
    size_t used = 0;
    double value = 0;
    try {
      value = std::stod(word, &used);
    } catch (const std::exception&) {
      Fail("no number: " + word);
    }
    if (used != word.size() || !std::isfinite(value)) Fail("no number: " + word);
    return value;
  }

  // "800..90" or "200..900..60".
  Glide GlideOf(const std::string& word) const {
    Glide glide;
    size_t at = 0;
    while (at <= word.size()) {
      const size_t dots = std::min(word.find("..", at), word.size());
      glide.points.push_back(Number(word.substr(at, dots - at)));
      at = dots + 2;
    }
    return glide;
  }

  void TopLine() {
    const std::string& keyword = words_.front();
    if (keyword == "effect") {
      recipe_.name = Word(1);
    } else if (keyword == "length") {
      recipe_.length = Number(Word(1));
    } else if (keyword == "echo") {
      recipe_.echo_seconds = Number(Word(1));
      recipe_.echo_level = Number(Word(2));
    } else if (keyword == "room") {
      recipe_.room = Number(Word(1));
      recipe_.room_seconds = Number(Word(2));
    } else if (keyword == "layer") {
      AddLayer();
    } else {
      Fail("unknown word " + keyword);
    }
  }

  void AddLayer() {
    static const std::map<std::string, Source> sources = {
        {"sine", Source::Sine}, {"triangle", Source::Triangle}, {"square", Source::Square},
        {"saw", Source::Saw},   {"noise", Source::Noise},       {"crackle", Source::Crackle}};
    const auto source = sources.find(Word(1));
    if (source == sources.end()) Fail("unknown source " + words_[1]);
    Layer layer;
    layer.source = source->second;
    recipe_.layers.push_back(layer);
  }

  void LayerLine(Layer& layer) {
    static const std::map<std::string, double Layer::*> numbers = {
        {"at", &Layer::at},         {"for", &Layer::length},      {"level", &Layer::level},
        {"attack", &Layer::attack}, {"hold", &Layer::hold},       {"fall", &Layer::fall},
        {"detune", &Layer::detune}, {"density", &Layer::density}, {"drive", &Layer::drive}};
    static const std::map<std::string, FilterKind> filters = {{"lowpass", FilterKind::Lowpass},
                                                              {"highpass", FilterKind::Highpass},
                                                              {"bandpass", FilterKind::Bandpass}};
    const std::string& keyword = words_.front();
    if (const auto number = numbers.find(keyword); number != numbers.end()) {
      layer.*(number->second) = Number(Word(1));
    } else if (const auto filter = filters.find(keyword); filter != filters.end()) {
      layer.filters.push_back(
          {filter->second, GlideOf(Word(1)), words_.size() > 2 ? Number(words_[2]) : 0.7});
    } else if (keyword == "pitch") {
      layer.pitch = GlideOf(Word(1));
    } else if (keyword == "vibrato") {
      layer.vibrato_rate = Number(Word(1));
      layer.vibrato_depth = Number(Word(2));
    } else if (keyword == "tremolo") {
      layer.tremolo_rate = Number(Word(1));
      layer.tremolo_depth = Number(Word(2));
    } else if (keyword == "fm") {
      layer.fm_ratio = Number(Word(1));
      layer.fm_depth = GlideOf(Word(2));
    } else if (keyword == "repeat") {
      layer.repeats = static_cast<int>(Number(Word(1)));
      layer.every = Number(Word(2));
      layer.fade = Number(Word(3));
      if (words_.size() > 4) layer.rise = Number(words_[4]);
      if (layer.repeats < 1 || layer.repeats > 200) Fail("1 to 200 repeats");
    } else if (keyword == "tune") {
      for (size_t i = 1; i < words_.size(); ++i) layer.tune.push_back(NoteOf(words_[i]));
    } else {
      Fail("unknown word " + keyword);
    }
  }

  // "c5:0.12", or "r:0.1" for a rest.
  TuneNote NoteOf(const std::string& word) const {
    const size_t colon = word.find(':');
    if (colon == std::string::npos) Fail("a note of a tune is written as c5:0.12");
    TuneNote note;
    note.seconds = Number(word.substr(colon + 1));
    if (word.substr(0, colon) == "r") return note;
    try {
      const int pitch = music::ReadPitch(word.substr(0, colon));
      note.frequency = 440 * std::pow(2.0, (pitch - 69) / 12.0);
    } catch (const std::invalid_argument& problem) {
      Fail(problem.what());
    }
    return note;
  }

  Recipe recipe_;
  std::vector<std::string> words_;
  int line_ = 0;
};

}  // namespace

double Glide::At(double share) const {
  if (points.size() < 2) return points.empty() ? 0 : points.front();
  const double place = share * static_cast<double>(points.size() - 1);
  auto index = static_cast<size_t>(place < 0 ? 0 : place);
  if (index > points.size() - 2) index = points.size() - 2;
  const double from = points[index];
  const double to = points[index + 1];
  const double rest = place - static_cast<double>(index);
  bool ratios = true;
  for (const double point : points) ratios = ratios && point > 0;
  return ratios ? from * std::pow(to / from, rest) : from + (to - from) * rest;
}

Recipe ReadRecipe(std::string_view text) {
  return Reader().Read(text);
}

}  // namespace orvane::effects
