// orvane-check-music: proves the pieces and describes them.
#include <algorithm>
#include <cmath>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <utility>

#include "src/platform/whole_file.h"
#include "tools/effects/loudness.h"
#include "tools/effects/wav_file.h"
#include "tools/music/checks.h"
#include "tools/music/render.h"
#include "tools/music/roll.h"

namespace {

using orvane::music::Rendering;

struct Options {
  std::string pictures;  // a folder for piano rolls and WAV files, or empty
  bool frictions = false;
  bool stems = false;   // the loudness of each part by itself
  bool silent = false;  // no rendering
  std::vector<std::string> files;
};

struct Loudness {
  std::string name;
  double value;
};

std::string ReadAll(const std::string& file) {
  std::optional<std::string> text = orvane::ReadWholeFile(file);
  if (!text) throw std::runtime_error("cannot be read");
  return *std::move(text);
}

void WriteAll(const std::filesystem::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

void SaveRendering(const std::filesystem::path& file, const Rendering& rendering) {
  orvane::effects::Wav wav;
  wav.channels = 2;
  for (size_t i = 0; i < rendering.left.size(); ++i) {
    wav.samples.push_back(rendering.left[i]);
    wav.samples.push_back(rendering.right[i]);
  }
  WriteAll(file, orvane::effects::WriteWav(wav));
}

float Peak(const Rendering& rendering) {
  float peak = 0;
  for (const auto* side : {&rendering.left, &rendering.right}) {
    for (const float sample : *side) peak = std::max(peak, std::abs(sample));
  }
  return peak;
}

double LoudnessOf(const Rendering& rendering) {
  return orvane::effects::WholeLoudness(rendering.left, rendering.right);
}

// The loudness of each section: the shape of the piece.
void PrintSections(const orvane::music::PieceNotes& piece, const Rendering& rendering) {
  std::cout << "  sections";
  for (size_t i = 0; i < piece.sections.size(); ++i) {
    const int end = i + 1 < piece.sections.size() ? piece.sections[i + 1].tick : piece.end;
    const auto from = static_cast<std::ptrdiff_t>(piece.Seconds(piece.sections[i].tick) * 44100);
    const auto to = std::min(static_cast<std::ptrdiff_t>(piece.Seconds(end) * 44100),
                             static_cast<std::ptrdiff_t>(rendering.left.size()));
    Rendering slice;
    slice.left.assign(rendering.left.begin() + from, rendering.left.begin() + to);
    slice.right.assign(rendering.right.begin() + from, rendering.right.begin() + to);
    std::cout << " " << piece.sections[i].text << " " << std::round(LoudnessOf(slice) * 10) / 10;
  }
  std::cout << "\n";
}

void PrintStems(const orvane::music::MidiFile& midi, const orvane::music::PieceNotes& piece) {
  for (size_t track = 1; track < midi.tracks.size(); ++track) {
    orvane::music::MidiFile stem = midi;
    stem.tracks = {midi.tracks.front(), midi.tracks[track]};
    const Rendering rendering =
        orvane::music::Render(orvane::music::WriteMidi(stem), orvane::music::FindSoundFont(), 0.5);
    std::cout << "  part " << piece.names[track] << " " << LoudnessOf(rendering) << " LUFS\n";
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
  const std::filesystem::path folder(options.pictures);
  if (!options.pictures.empty()) WriteAll(folder / (name + ".png"), orvane::music::DrawRoll(piece));
  if (options.frictions) {
    for (const std::string& friction : orvane::music::Frictions(piece)) {
      std::cout << "  friction " << friction << "\n";
    }
  }
  if (!options.silent) {
    const Rendering rendering = orvane::music::Render(bytes, orvane::music::FindSoundFont(), 0.5);
    const double loudness = LoudnessOf(rendering);
    const float peak = Peak(rendering);
    std::cout << "  loudness " << loudness << " LUFS, peak " << peak << ", " << rendering.voices
              << " voices of the synthesizer\n";
    PrintSections(piece, rendering);
    if (options.stems) PrintStems(midi, piece);
    if (peak >= 1) faults.emplace_back("clips");
    all.push_back({name, loudness});
    if (!options.pictures.empty()) SaveRendering(folder / (name + ".wav"), rendering);
  }
  for (const std::string& fault : faults) std::cout << "  FAULT " << fault << "\n";
  return static_cast<int>(faults.size());
}

int Run(const Options& options) {
  int faults = 0;
  std::vector<Loudness> all;
  for (const std::string& file : options.files) {
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
                            [](const Loudness& a, const Loudness& b) { return a.value < b.value; });
    const double spread = loud->value - quiet->value;
    std::cout << "loudness from " << quiet->value << " (" << quiet->name << ") to " << loud->value
              << " (" << loud->name << ")\n";
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
      options.frictions = true;
    } else if (word == "--stems") {
      options.stems = true;
    } else if (word == "--silent") {
      options.silent = true;
    } else if (word == "--pictures" && i + 1 < count) {
      options.pictures = words[++i];
    } else {
      options.files.push_back(word);
    }
  }
  if (options.files.empty()) {
    std::cerr << "usage: orvane-check-music [--silent] [--frictions] [--stems] [--pictures FOLDER] "
                 "MIDI...\n";
    return 2;
  }
  return Run(options);
}
