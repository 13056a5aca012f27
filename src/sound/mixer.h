// Brings all channels together to one stream of sound.
#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <variant>
#include <vector>

#include "src/sound/clip.h"
#include "src/sound/clip_player.h"
#include "src/sound/limiter.h"
#include "src/sound/song_player.h"

namespace orvane {

using Sound = std::variant<std::shared_ptr<const Clip>, std::shared_ptr<const Piece>>;

// Numbered channels for the commanding side, and a stream for the playing side. The two may be
// different threads, one each; neither waits for the other's work, only for the passing of a
// message.
class Mixer {
 public:
  static constexpr int Channels = 18;
  using TimePoint = std::chrono::steady_clock::time_point;

  // `rate` is in frames a second.
  explicit Mixer(int rate) : rate_(rate) {}

  // The commanding side; channels are numbered from 0.
  // Gives a channel its sound, stopped at its beginning.
  void Open(int channel, Sound sound);
  // Starts the channel's sound from the beginning.
  void Play(int channel);
  // Ends the channel's sound and forgets it.
  void Close(int channel);
  // Whether the channel's sound was started and has not ended.
  bool Playing(int channel) const;

  // Where music comes from; without one music is only counted. From any thread, once.
  void UseSynth(Synth* synth) { synth_.store(synth, std::memory_order_release); }

  // The playing side: writes the next frames, left and right in turn, within -1 to 1. `from` is the
  // time that the first of them stands for: a command that came before it takes effect at once, a
  // later one as much later, to the block, or in the pulls to come. Returns whether anything plays,
  // dies away or is still to take effect.
  bool Pull(float* out, size_t frames, TimePoint from = TimePoint::max());

 private:
  struct Message {
    enum class Kind { Open, Play, Close } What = Kind::Play;
    size_t Channel = 0;
    std::uint32_t Start = 0;  // of Play: which start it is
    Sound Opened;
    TimePoint At{};  // when it was asked for
  };
  struct Channel {
    std::optional<ClipPlayer> Effect;
    std::optional<SongPlayer> Music;
    Sound Held;  // kept until the commanding side can free it
    std::uint32_t Start = 0;
  };

  void Post(Message message);
  void TakeMessages();
  void CarryUntil(TimePoint now);
  void Carry(Message& message);
  void Retire(Channel& channel);
  void MixBlock();
  bool StepMusic(Synth* synth);
  int FreeBank() const;

  const int rate_;
  std::atomic<Synth*> synth_ = nullptr;

  std::array<std::uint32_t, Channels> started_{};  // by the commanding side; 0 for never
  std::uint32_t starts_ = 0;
  std::array<std::atomic<std::uint32_t>, Channels> ended_{};  // the last start that has ended

  std::mutex messages_mutex_;
  std::vector<Message> messages_;
  std::vector<Sound> garbage_;

  // The playing side's own.
  std::array<Channel, Channels> channels_;
  std::vector<Channel> leaving_;  // closed, but still fading
  std::vector<Message> taken_;    // not yet carried out
  std::vector<Sound> dropped_;
  Limiter limiter_;
  Block block_{};
  size_t used_ = static_cast<size_t>(kBlockFrames);  // frames of the block that are pulled already
  int ringing_ = 0;                                  // blocks that the last notes may still need
  bool sounds_ = false;                              // whether anything plays in the block
};

}  // namespace orvane
