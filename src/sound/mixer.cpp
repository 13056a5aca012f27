#include "src/sound/mixer.h"

#include <algorithm>
#include <iterator>

namespace orvane {
namespace {

// After so many seconds without music its last notes and their echo are gone.
constexpr int kRingSeconds = 8;
constexpr auto kBlock = static_cast<size_t>(kBlockFrames);

}  // namespace

void Mixer::Open(int channel, Sound sound) {
  const auto index = static_cast<size_t>(channel);
  started_.at(index) = 0;
  Post({Message::Kind::Open, index, 0, std::move(sound)});
}

void Mixer::Play(int channel) {
  const auto index = static_cast<size_t>(channel);
  started_.at(index) = ++starts_;
  Post({Message::Kind::Play, index, starts_, {}});
}

void Mixer::Close(int channel) {
  const auto index = static_cast<size_t>(channel);
  started_.at(index) = 0;
  Post({Message::Kind::Close, index, 0, {}});
}

bool Mixer::Playing(int channel) const {
  const auto index = static_cast<size_t>(channel);
  return started_.at(index) != 0 &&
         ended_.at(index).load(std::memory_order_acquire) != started_.at(index);
}

void Mixer::Post(Message message) {
  message.At = std::chrono::steady_clock::now();
  std::vector<Sound> garbage;  // freed here, where it costs no sound
  const std::scoped_lock lock(messages_mutex_);
  messages_.push_back(std::move(message));
  garbage.swap(garbage_);
}

void Mixer::TakeMessages() {
  {
    const std::scoped_lock lock(messages_mutex_);
    std::move(messages_.begin(), messages_.end(), std::back_inserter(taken_));
    messages_.clear();
    for (Sound& sound : dropped_) garbage_.push_back(std::move(sound));
  }
  dropped_.clear();
}

void Mixer::CarryUntil(TimePoint now) {
  const auto first = taken_.begin();
  const auto later =
      std::find_if(first, taken_.end(), [now](const Message& message) { return message.At > now; });
  std::for_each(first, later, [this](Message& message) { Carry(message); });
  taken_.erase(first, later);
}

void Mixer::Carry(Message& message) {
  Channel& channel = channels_.at(message.Channel);
  switch (message.What) {
    case Message::Kind::Open:
      Retire(channel);
      channel.Held = message.Opened;
      if (const auto* clip = std::get_if<std::shared_ptr<const Clip>>(&message.Opened)) {
        channel.Effect.emplace(*clip, rate_);
      } else {
        channel.Music.emplace(std::get<std::shared_ptr<const Piece>>(message.Opened), FreeBank(),
                              rate_);
      }
      break;
    case Message::Kind::Play:
      channel.Start = message.Start;
      if (channel.Effect) channel.Effect->Start();
      if (channel.Music) channel.Music->Start();
      break;
    case Message::Kind::Close:
      Retire(channel);
      break;
  }
}

void Mixer::Retire(Channel& channel) {
  if (channel.Effect) channel.Effect->Close();
  if (channel.Music) channel.Music->Close();
  if (channel.Effect || channel.Music) leaving_.push_back(std::move(channel));
  channel = Channel();
}

int Mixer::FreeBank() const {
  std::array<bool, Synth::Banks> used{};
  const auto mark = [&used](const Channel& channel) {
    if (channel.Music && channel.Music->Bank() >= 0) {
      used.at(static_cast<size_t>(channel.Music->Bank())) = true;
    }
  };
  std::for_each(channels_.begin(), channels_.end(), mark);
  std::for_each(leaving_.begin(), leaving_.end(), mark);
  const auto free = std::find(used.begin(), used.end(), false);
  return free == used.end() ? -1 : static_cast<int>(free - used.begin());
}

bool Mixer::StepMusic(Synth* synth) {
  bool sounding = false;
  const auto step = [&sounding, synth](Channel& channel) {
    if (!channel.Music || channel.Music->Silent()) return;
    channel.Music->Step(synth);
    sounding = true;
  };
  std::for_each(channels_.begin(), channels_.end(), step);
  std::for_each(leaving_.begin(), leaving_.end(), step);
  return sounding;
}

void Mixer::MixBlock() {
  block_.fill(0);
  Synth* const synth = synth_.load(std::memory_order_acquire);
  sounds_ = StepMusic(synth);
  if (sounds_) ringing_ = kRingSeconds * rate_ / kBlockFrames;
  if (synth != nullptr && ringing_ > 0) {
    synth->Render(block_);
    --ringing_;
    sounds_ = true;
  }
  for (size_t i = 0; i < channels_.size(); ++i) {
    Channel& channel = channels_[i];
    if (channel.Effect) channel.Effect->Mix(block_);
    const bool playing = (channel.Effect && channel.Effect->Playing()) ||
                         (channel.Music && channel.Music->Playing());
    sounds_ = sounds_ || playing;
    if (!playing) ended_[i].store(channel.Start, std::memory_order_release);
  }
  for (Channel& channel : leaving_) {
    if (channel.Effect) channel.Effect->Mix(block_);
    const bool gone = (!channel.Effect || channel.Effect->Silent()) &&
                      (!channel.Music || channel.Music->Silent());
    if (!gone) continue;
    dropped_.push_back(std::move(channel.Held));
    channel = Channel();
  }
  std::erase_if(leaving_, [](const Channel& channel) { return !channel.Effect && !channel.Music; });
  sounds_ = sounds_ || !leaving_.empty();
  limiter_.Process(block_);
}

bool Mixer::Pull(float* out, size_t frames, TimePoint from) {
  TakeMessages();
  for (size_t done = 0; frames > 0;) {
    if (used_ == kBlock) {
      const std::chrono::duration<double> since(static_cast<double>(done) / rate_);
      CarryUntil(from == TimePoint::max()
                     ? from
                     : from + std::chrono::duration_cast<TimePoint::duration>(since));
      MixBlock();
      used_ = 0;
    }
    const size_t count = std::min(frames, kBlock - used_);
    std::copy_n(block_.begin() + static_cast<std::ptrdiff_t>(2 * used_), 2 * count, out);
    out += 2 * count;
    used_ += count;
    done += count;
    frames -= count;
  }
  return sounds_ || !taken_.empty();
}

}  // namespace orvane
