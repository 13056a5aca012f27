#include "src/frontend/web/services/page_sound.h"

#include <algorithm>

#include "src/platform/path_text.h"
#include "src/platform/sound_channels.h"

namespace orvane {
namespace {

// Time enough for a late tick to ask for the next round of a piece.
constexpr double kLeadMs = 150;
// A short piece has less of it.
constexpr double kLeadPart = 0.125;

}  // namespace

std::string PageSound::Send(const std::string& text) {
  const SoundCommand command = ParseSoundCommand(text);
  if (command.What == SoundCommand::Verb::Open) return Open(command.Alias, command.File);
  const auto found = channels_.find(command.Alias);
  if (found == channels_.end()) return {};
  Channel& channel = found->second;
  switch (command.What) {
    case SoundCommand::Verb::Status: {
      const double end = channel.Start + channel.Length - channel.Lead;
      return channel.HasPlayed && page_.Now() < end ? "playing" : "stopped";
    }
    case SoundCommand::Verb::Play:
      Play(command.Alias, channel);
      return {};
    case SoundCommand::Verb::Close:
      channels_.erase(found);
      page_.DropSound(command.Alias);
      return {};
    default:
      return {};
  }
}

std::string PageSound::Open(const std::string& alias, const std::string& file) {
  const std::string name = TextOf(PathOf(file).stem());
  const auto length = lengths_.find(name);
  if (length == lengths_.end() || channels_.contains(alias)) return {};
  // An effect is as long as it is; what is a piece, its repetition follows on.
  const bool repeats = file.ends_with(".mid");
  const double lead = repeats ? std::min(kLeadMs, length->second * kLeadPart) : 0;
  channels_[alias] = {.Length = length->second, .Lead = lead};
  page_.LoadSound(alias, name);
  return "1";
}

void PageSound::Play(const std::string& alias, Channel& channel) {
  const double now = page_.Now();
  const double end = channel.Start + channel.Length;
  const bool joins = channel.HasPlayed && now >= end - channel.Lead && now < end;
  channel.Start = joins ? end : now;
  channel.HasPlayed = true;
  page_.StartSound(alias, channel.Start - now);
}

}  // namespace orvane
