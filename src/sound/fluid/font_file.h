// A sound font's file, as the synthesizer reads it.
#pragma once

#include <fluidsynth.h>

#include <stop_token>
#include <string>
#include <utility>

namespace orvane {

// Reading an instrument takes up to a tenth of a second, most of it to unpack its samples, so it
// can be stopped between any two reads. An instrument that lacks samples then must not be played.
class FontFile {
 public:
  explicit FontFile(std::string path) : path_(std::move(path)) {}
  FontFile(const FontFile&) = delete;
  FontFile& operator=(const FontFile&) = delete;

  // Gives the font to a synthesizer that has none yet, and reads by this file as long as it lives.
  // Returns the font's number there; FLUID_FAILED if the file is missing or no sound font.
  int LoadInto(fluid_synth_t* synth, fluid_settings_t* settings);

  // All reads fail once this one asks for it. By the thread that reads.
  void StopBy(const std::stop_token& stop) { stop_ = stop; }
  bool IsStopped() const { return stop_.stop_requested(); }

  const std::string& Path() const { return path_; }

 private:
  const std::string path_;
  std::stop_token stop_;
};

}  // namespace orvane
