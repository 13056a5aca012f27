// orvane-check-music: proves the pieces and describes them.
#include <algorithm>
#include <cmath>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "src/platform/whole_file.h"
#include "tools/effects/loudness.h"
#include "tools/effects/wav_file.h"
#include "tools/music/checks.h"
#include "tools/music/render.h"
#include "tools/music/roll.h"

namespace {

using orvane::music::Rendering;

struct Options {
  std::string Pictures;  // a folder for piano rolls and WAV files, or empty
  bool Frictions = false;
  bool Stems = false;   // the loudness of each part by itself
  bool Silent = false;  // no rendering
  std::vector<std::string> Files;
};

struct Loudness {
  std::string Name;
  double Value;
};

std::string ReadAll(const std::string& file) {
  std::optional<std::string> text = orvane::ReadWholeFile(file);
  if (!text) throw std::runtime_error("cannot be read");
  return *std::move(text);
}

void Save(const std::filesystem::path& file, const std::string& bytes) {
  if (orvane::WriteWholeFile(file, bytes)) return;
  throw std::runtime_error("no way to write " + file.filename().string());
}

void SaveRendering(const std::filesystem::path& file, const Rendering& rendering) {
  orvane::effects::Wav wav;
  wav.Channels = 2;
  for (size_t i = 0; i < rendering.Left.size(); ++i) {
    wav.Samples.push_back(rendering.Left[i]);
    wav.Samples.push_back(rendering.Right[i]);
  }
  Save(file, orvane::effects::WriteWav(wav));
}

float Peak(const Rendering& rendering) {
  float peak = 0;
  for (const auto* side : {&rendering.Left, &rendering.Right}) {
    for (const float sample : *side) peak = std::max(peak, std::abs(sample));
  }
  return peak;
}

double LoudnessOf(const Rendering& rendering) {
  return orvane::effects::WholeLoudness(rendering.Left, rendering.Right);
}

// The loudness of each section: the shape of the piece.
void PrintSections(const orvane::music::PieceNotes& piece, const Rendering& rendering) {
  std::cout << "  sections";
  for (size_t i = 0; i < piece.sections.size(); ++i) {
    const int end = i + 1 < piece.sections.size() ? piece.sections[i + 1].Tick : piece.End;
    const auto from = static_cast<std::ptrdiff_t>(piece.Seconds(piece.sections[i].Tick) * 44100);
    const auto to = std::min(static_cast<std::ptrdiff_t>(piece.Seconds(end) * 44100),
                             static_cast<std::ptrdiff_t>(rendering.Left.size()));
    Rendering slice;
    slice.Left.assign(rendering.Left.begin() + from, rendering.Left.begin() + to);
    slice.Right.assign(rendering.Right.begin() + from, rendering.Right.begin() + to);
    std::cout << " " << piece.sections[i].Text << " " << std::round(LoudnessOf(slice) * 10) / 10;
  }
  std::cout << "\n";
}

void PrintStems(const orvane::music::MidiFile& midi, const orvane::music::PieceNotes& piece) {
  for (size_t track = 1; track < midi.Tracks.size(); ++track) {
    orvane::music::MidiFile stem = midi;
    stem.Tracks = {midi.Tracks.front(), midi.Tracks[track]};
    const Rendering rendering =
        orvane::music::Render(orvane::music::WriteMidi(stem), orvane::music::FindSoundFont(), 0.5);
    std::cout << "  part " << piece.Names[track] << " " << LoudnessOf(rendering) << " LUFS\n";
  }
}

// Checks one file and prints what it is; returns the number of its faults.
int CheckFile(const std::string& file, const Options& options, std::vector<Loudness>& all) {
  const std::string name = std::filesystem::path(file).stem().string();
  const std::string bytes = ReadAll(file);
  const orvane::music::MidiFile midi = orvane::music::ReadMidi(bytes);
  const orvane::music::PieceNotes piece = orvane::music::CollectNotes(midi);
  std::vector<std::string> faults = orvane::music::CheckPiece(name, midi);
  std::cout << orvane::music::Describe(name, piece);
  const std::filesystem::path folder(options.Pictures);
  if (!options.Pictures.empty()) Save(folder / (name + ".png"), orvane::music::DrawRoll(piece));
  if (options.Frictions) {
    for (const std::string& friction : orvane::music::Frictions(piece)) {
      std::cout << "  friction " << friction << "\n";
    }
  }
  if (!options.Silent) {
    const Rendering rendering = orvane::music::Render(bytes, orvane::music::FindSoundFont(), 0.5);
    const double loudness = LoudnessOf(rendering);
    const float peak = Peak(rendering);
    std::cout << "  loudness " << loudness << " LUFS, peak " << peak << ", " << rendering.Voices
              << " voices of the synthesizer\n";
    PrintSections(piece, rendering);
    if (options.Stems) PrintStems(midi, piece);
    if (peak >= 1) faults.emplace_back("clips");
    all.push_back({name, loudness});
    if (!options.Pictures.empty()) SaveRendering(folder / (name + ".wav"), rendering);
  }
  for (const std::string& fault : faults) std::cout << "  FAULT " << fault << "\n";
  return static_cast<int>(faults.size());
}

int Run(const Options& options) {
  int faults = 0;
  std::vector<Loudness> all;
  for (const std::string& file : options.Files) {
    try {
      faults += CheckFile(file, options, all);
    } catch (const std::exception& problem) {
      std::cout << file << ": FAULT " << problem.what() << "\n";
      ++faults;
    }
  }
  if (all.size() > 1) {
    const auto [quiet, loud] =
        std::minmax_element(all.begin(), all.end(),
                            [](const Loudness& a, const Loudness& b) { return a.Value < b.Value; });
    const double spread = loud->Value - quiet->Value;
    std::cout << "loudness from " << quiet->Value << " (" << quiet->Name << ") to " << loud->Value
              << " (" << loud->Name << ")\n";
    if (spread > 3) {
      std::cout << "FAULT the pieces differ by " << spread << " dB\n";
      ++faults;
    }
  }
  std::cout << (faults == 0 ? "all pieces are sound\n" : "there are faults\n");
  return faults == 0 ? 0 : 1;
}

}  // namespace

int main(int count, char** words) {
  Options options;
  for (int i = 1; i < count; ++i) {
    const std::string word = words[i];
    if (word == "--frictions") {
      options.Frictions = true;
    } else if (word == "--stems") {
      options.Stems = true;
    } else if (word == "--silent") {
      options.Silent = true;
    } else if (word == "--pictures" && i + 1 < count) {
      options.Pictures = words[++i];
    } else {
      options.Files.push_back(word);
    }
  }
  if (options.Files.empty()) {
    std::cerr << "usage: orvane-check-music [--silent] [--frictions] [--stems] [--pictures FOLDER] "
                 "MIDI...\n";
    return 2;
  }
  return Run(options);
}
