// The sound of the desktop game.
#pragma once

#include <memory>
#include <string>

#include "src/platform/services.h"

namespace orvane {

struct SoundOptions {
  enum class Sink {
    Device,  // the machine's audio device, or the clock where there is none
    Clock,   // the clock: time passes, nothing is heard
    Caller   // the caller of Pull
  };
  Sink Plays = Sink::Device;
  // Where to write all that is played, with a log of the commands and notes beside it, under the
  // same name and ".log"; empty for nowhere.
  std::string RecordFile;
  // The sound font; empty for the best that is installed.
  std::string FontFile;

  // The device, and a recording to the file that ORVANE_RECORD names, if it does.
  static SoundOptions FromEnvironment();
};

// Carries out the text commands on the channels "bgm1" to "bgm8" and "snd1" to "snd10", any of
// which takes a standard MIDI file or a WAV file. Every command returns at once.
//
// - open replies "1", or nothing if the channel is open already or the file is missing or broken.
// - status replies "stopped" or "playing", or nothing from a channel that is not open. What was
//   never played or has run to its end is stopped. Music counts as stopped a moment before its end,
//   and a start within that moment follows on its last bar without a gap.
// - play starts from the beginning; no reply.
// - close ends the sound; no reply.
//
// Without a device or a sound font everything goes on in silence, and every piece lasts its time.
class SoundEngine : public SoundDevice {
 public:
  // Frames a second.
  static constexpr int Rate = 44100;

  explicit SoundEngine(const SoundOptions& options = SoundOptions::FromEnvironment());
  ~SoundEngine() override;
  SoundEngine(const SoundEngine&) = delete;
  SoundEngine& operator=(const SoundEngine&) = delete;

  std::string Send(const std::string& command) override;

  // Notes beside the recording, if there is one, what happens at this moment.
  void Note(const std::string& what);

  // Writes the next frames, left and right in turn, within -1 to 1. For an engine that plays to its
  // caller only.
  void Pull(float* out, size_t frames);
  // Waits until all pieces that are open have their instruments, or will never have them.
  void WaitUntilReady();

 private:
  class Machine;
  std::unique_ptr<Machine> machine_;
};

}  // namespace orvane
