#include "tools/music/instruments.h"

#include <algorithm>

namespace orvane::music {

const std::vector<Instrument>& Instruments() {
  static const std::vector<Instrument> table = {
      {"piano", 0, 21, 108},
      {"electric-piano", 4, 28, 103},
      {"harpsichord", 6, 29, 89},
      {"celesta", 8, 60, 108},
      {"glockenspiel", 9, 67, 108},
      {"music-box", 10, 60, 100},
      {"vibraphone", 11, 53, 89},
      {"marimba", 12, 45, 96},
      {"xylophone", 13, 60, 108},
      {"tubular-bells", 14, 53, 79},
      {"dulcimer", 15, 48, 84},
      {"rock-organ", 18, 36, 96},
      {"church-organ", 19, 29, 96},
      {"nylon-guitar", 24, 40, 84},
      {"steel-guitar", 25, 40, 84},
      {"clean-guitar", 27, 40, 86},
      {"muted-guitar", 28, 40, 81},
      {"overdriven-guitar", 29, 40, 86},
      {"distortion-guitar", 30, 38, 86},
      {"acoustic-bass", 32, 28, 60},
      {"finger-bass", 33, 28, 60},
      {"pick-bass", 34, 28, 60},
      {"fretless-bass", 35, 28, 60},
      {"slap-bass", 36, 28, 60},
      {"synth-bass", 38, 24, 60},
      {"violin", 40, 55, 100},
      {"viola", 41, 48, 88},
      {"cello", 42, 36, 76},
      {"contrabass", 43, 26, 60},
      {"tremolo-strings", 44, 28, 96},
      {"pizzicato", 45, 28, 96},
      {"harp", 46, 24, 103},
      {"timpani", 47, 36, 57},
      {"strings", 48, 28, 98},
      {"slow-strings", 49, 28, 98},
      {"choir", 52, 43, 79},
      {"voices", 53, 43, 79},
      {"orchestra-hit", 55, 36, 84},
      {"trumpet", 56, 54, 84},
      {"trombone", 57, 34, 72},
      {"tuba", 58, 26, 58},
      {"muted-trumpet", 59, 54, 82},
      {"horn", 60, 34, 77},
      {"brass", 61, 34, 84},
      {"oboe", 68, 58, 91},
      {"english-horn", 69, 52, 81},
      {"bassoon", 70, 34, 75},
      {"clarinet", 71, 50, 94},
      {"piccolo", 72, 74, 108},
      {"flute", 73, 60, 96},
      {"recorder", 74, 60, 96},
      {"pan-flute", 75, 60, 96},
      {"shakuhachi", 77, 55, 84},
      {"ocarina", 79, 69, 89},
      {"square-lead", 80, 48, 96},
      {"saw-lead", 81, 36, 96},
      {"warm-pad", 89, 36, 96},
      {"choir-pad", 91, 36, 90},
      {"bowed-pad", 92, 36, 96},
      {"halo-pad", 94, 36, 96},
      {"sweep-pad", 95, 36, 96},
      {"crystal", 98, 48, 100},
      {"koto", 107, 48, 88},
      {"taiko", 116, 36, 72},
      {"standard-kit", 0, 27, 87, true},
      {"power-kit", 16, 27, 87, true},
      {"orchestra-kit", 48, 27, 87, true},
  };
  return table;
}

const Instrument* FindInstrument(std::string_view name) {
  const auto& all = Instruments();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const Instrument& known) { return known.Name == name; });
  return found == all.end() ? nullptr : &*found;
}

const Instrument* FindProgram(int program, bool drums) {
  const auto& all = Instruments();
  const auto found = std::find_if(all.begin(), all.end(), [&](const Instrument& known) {
    return known.Program == program && known.Drums == drums;
  });
  return found == all.end() ? nullptr : &*found;
}

int FindDrum(std::string_view name) {
  struct Drum {
    std::string_view Name;
    int key;
  };
  static const std::vector<Drum> table = {
      {"kick", 36},     {"rim", 37},        {"snare", 38},     {"clap", 39},
      {"floortom", 41}, {"hat", 42},        {"lowtom", 45},    {"pedalhat", 44},
      {"openhat", 46},  {"midtom", 47},     {"crash", 49},     {"hightom", 50},
      {"ride", 51},     {"china", 52},      {"bell", 53},      {"tambourine", 54},
      {"splash", 55},   {"cowbell", 56},    {"crash2", 57},    {"highbongo", 60},
      {"lowbongo", 61}, {"mutedconga", 62}, {"highconga", 63}, {"lowconga", 64},
      {"cabasa", 69},   {"maracas", 70},    {"guiro", 73},     {"claves", 75},
      {"block", 76},    {"lowblock", 77},   {"triangle", 81},  {"shaker", 82},
      {"jingle", 83},
  };
  const auto found =
      std::find_if(table.begin(), table.end(), [&](const Drum& drum) { return drum.Name == name; });
  return found == table.end() ? -1 : found->key;
}

}  // namespace orvane::music
