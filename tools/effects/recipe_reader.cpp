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
        if (recipe_.Layers.empty()) Fail("an indented line belongs to a layer");
        LayerLine(recipe_.Layers.back());
      } else {
        TopLine();
      }
    }
    if (recipe_.Name.empty() || recipe_.Layers.empty()) Fail("a recipe needs a name and a layer");
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
      glide.Points.push_back(Number(word.substr(at, dots - at)));
      at = dots + 2;
    }
    return glide;
  }

  void TopLine() {
    const std::string& keyword = words_.front();
    if (keyword == "effect") {
      recipe_.Name = Word(1);
    } else if (keyword == "length") {
      recipe_.Length = Number(Word(1));
    } else if (keyword == "echo") {
      recipe_.EchoSeconds = Number(Word(1));
      recipe_.EchoLevel = Number(Word(2));
    } else if (keyword == "room") {
      recipe_.Room = Number(Word(1));
      recipe_.RoomSeconds = Number(Word(2));
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
    recipe_.Layers.push_back(layer);
  }

  void LayerLine(Layer& layer) {
    static const std::map<std::string, double Layer::*> numbers = {
        {"at", &Layer::At},         {"for", &Layer::Length},      {"level", &Layer::Level},
        {"attack", &Layer::Attack}, {"hold", &Layer::Hold},       {"fall", &Layer::Fall},
        {"detune", &Layer::Detune}, {"density", &Layer::Density}, {"drive", &Layer::Drive}};
    static const std::map<std::string, FilterKind> filters = {{"lowpass", FilterKind::Lowpass},
                                                              {"highpass", FilterKind::Highpass},
                                                              {"bandpass", FilterKind::Bandpass}};
    const std::string& keyword = words_.front();
    if (const auto number = numbers.find(keyword); number != numbers.end()) {
      layer.*(number->second) = Number(Word(1));
    } else if (const auto filter = filters.find(keyword); filter != filters.end()) {
      layer.Filters.push_back(
          {filter->second, GlideOf(Word(1)), words_.size() > 2 ? Number(words_[2]) : 0.7});
    } else if (keyword == "pitch") {
      layer.Pitch = GlideOf(Word(1));
    } else if (keyword == "vibrato") {
      layer.VibratoRate = Number(Word(1));
      layer.VibratoDepth = Number(Word(2));
    } else if (keyword == "tremolo") {
      layer.TremoloRate = Number(Word(1));
      layer.TremoloDepth = Number(Word(2));
    } else if (keyword == "fm") {
      layer.FmRatio = Number(Word(1));
      layer.FmDepth = GlideOf(Word(2));
    } else if (keyword == "repeat") {
      layer.Repeats = static_cast<int>(Number(Word(1)));
      layer.Every = Number(Word(2));
      layer.Fade = Number(Word(3));
      if (words_.size() > 4) layer.Rise = Number(words_[4]);
      if (layer.Repeats < 1 || layer.Repeats > 200) Fail("1 to 200 repeats");
    } else if (keyword == "tune") {
      for (size_t i = 1; i < words_.size(); ++i) layer.Tune.push_back(NoteOf(words_[i]));
    } else {
      Fail("unknown word " + keyword);
    }
  }

  // "c5:0.12", or "r:0.1" for a rest.
  TuneNote NoteOf(const std::string& word) const {
    const size_t colon = word.find(':');
    if (colon == std::string::npos) Fail("a note of a tune is written as c5:0.12");
    TuneNote note;
    note.Seconds = Number(word.substr(colon + 1));
    if (word.substr(0, colon) == "r") return note;
    try {
      const int pitch = music::ReadPitch(word.substr(0, colon));
      note.Frequency = 440 * std::pow(2.0, (pitch - 69) / 12.0);
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
  if (Points.size() < 2) return Points.empty() ? 0 : Points.front();
  const double place = share * static_cast<double>(Points.size() - 1);
  auto index = static_cast<size_t>(place < 0 ? 0 : place);
  if (index > Points.size() - 2) index = Points.size() - 2;
  const double from = Points[index];
  const double to = Points[index + 1];
  const double rest = place - static_cast<double>(index);
  bool ratios = true;
  for (const double point : Points) ratios = ratios && point > 0;
  return ratios ? from * std::pow(to / from, rest) : from + (to - from) * rest;
}

Recipe ReadRecipe(std::string_view text) {
  return Reader().Read(text);
}

}  // namespace orvane::effects
