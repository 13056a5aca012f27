#include "src/frontend/shared/texts/translator.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "src/base/text.h"
#include "src/ui/screen.h"

namespace orvane {
namespace {

// Numbers make new texts without end; more than a battle shows need not be kept.
constexpr size_t kMostKnown = 2000;

struct NamePlace {
  const char* Screen;
  const char* Control;
};

constexpr NamePlace kNamePlaces[] = {
    {"Battle", "SSTab1"},       {"Battle", "List4"},   {"Wepon", "SSTab1"},
    {"Chardata", "SSTab1"},     {"Load", "Label2(0)"}, {"Load", "Label2(1)"},
    {"Save", "Label2(0)"},      {"Save", "Label2(1)"}, {"ItemUse", "Command1(0)"},
    {"ItemUse", "Command1(1)"},
};
// A fainted hero's tab, and the way back of the list of heroes.
constexpr std::string_view kAmongNames[] = {"気絶", "キャンセル"};

}  // namespace

bool HoldsNames(const Control& control) {
  return std::any_of(
      std::begin(kNamePlaces), std::end(kNamePlaces), [&control](const NamePlace& place) {
        return control.Name() == place.Control && control.Owner().Name() == place.Screen;
      });
}

Translator::Translator(const std::vector<CatalogueData>& catalogues) : catalogues_(catalogues) {
  languages_.emplace_back(kOwnLanguage);
  for (const CatalogueData& each : catalogues_) languages_.emplace_back(each.Code);
}

bool Translator::Has(std::string_view code) const {
  return std::find(languages_.begin(), languages_.end(), code) != languages_.end();
}

std::string Translator::NameOf(std::string_view code) const {
  if (code == kOwnLanguage) return kOwnLanguageName;
  for (const CatalogueData& each : catalogues_) {
    if (each.Code != code) continue;
    for (const CatalogueEntry& entry : ReadCatalogue(each.Bytes)) {
      if (entry.Text == kOwnLanguageName) return std::string(entry.Translation);
    }
  }
  return std::string(code);
}

void Translator::Choose(std::string_view code) {
  if (!Has(code) || code == language_) return;
  language_ = code;
  texts_.clear();
  patterns_.clear();
  known_.clear();
  for (const CatalogueData& each : catalogues_) {
    if (each.Code == code) Read(each.Bytes);
  }
}

void Translator::Read(std::string_view bytes) {
  for (const CatalogueEntry& entry : ReadCatalogue(bytes)) {
    if (TextPattern::IsOne(entry.Text)) {
      patterns_.push_back({entry.Text, TextPattern(entry.Text, entry.Translation)});
    } else {
      texts_[entry.Text] = entry.Translation;
    }
  }
  std::stable_sort(patterns_.begin(), patterns_.end(),
                   [](const Pattern& one, const Pattern& other) {
                     return one.Form.Weight() > other.Form.Weight();
                   });
}

std::string Translator::Of(std::string_view text) const {
  if (IsOwn() || text.empty()) return std::string(text);
  std::string asked(text);
  const auto found = known_.find(asked);
  if (found != known_.end()) return found->second;
  if (known_.size() >= kMostKnown) known_.clear();
  std::string shown = Find(text);
  known_.emplace(std::move(asked), shown);
  return shown;
}

std::string Translator::Of(const Control& control, std::string_view text) const {
  if (IsOwn()) return std::string(text);
  const bool is_name =
      HoldsNames(control) &&
      std::find(std::begin(kAmongNames), std::end(kAmongNames), text) == std::end(kAmongNames);
  return is_name ? std::string(text) : Of(text);
}

Box Translator::Of(const Box& box) const {
  Box shown = box;
  for (std::string* text : {&shown.Text, &shown.Title, &shown.Note}) *text = Of(*text);
  return shown;
}

std::string Translator::Find(std::string_view text) const {
  const std::string bare = Trim(text);
  const auto exact = texts_.find(bare);
  if (exact != texts_.end()) return std::string(exact->second);
  for (const Pattern& pattern : patterns_) {
    const auto shown = pattern.Form.Apply(bare, [this](std::string_view part) { return Of(part); });
    if (shown) return *shown;
  }
  return std::string(text);
}

std::vector<std::string> Translator::SourcesOf(std::string_view text) const {
  const std::string bare = Trim(text);
  const auto exact = texts_.find(bare);
  if (exact != texts_.end()) return {std::string(exact->first)};
  for (const Pattern& pattern : patterns_) {
    std::vector<std::string> sources = {std::string(pattern.Source)};
    const auto note = [this, &sources](std::string_view part) {
      for (std::string& each : SourcesOf(part)) sources.push_back(std::move(each));
      return std::string();
    };
    if (pattern.Form.Apply(bare, note)) return sources;
  }
  return {};
}

}  // namespace orvane
