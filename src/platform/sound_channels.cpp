#include "src/platform/sound_channels.h"

#include <algorithm>
#include <array>

namespace orvane {
namespace {

struct Channel {
  const char* Alias;
  const char* File;
};

constexpr std::array<Channel, 18> kChannels = {{
    {kFirstRoundMusic, "Round1.mid"},
    {kSecondRoundMusic, "Round2.mid"},
    {kThirdRoundMusic, "Round3.mid"},
    {kFightMusic, "Battle1.mid"},
    {kDragonMusic, "Boss.mid"},
    {kLastDragonMusic, "LastBoss.mid"},
    {kEndingMusic, "Ending.mid"},
    {kLastStageMusic, "Doukutu.mid"},
    {kItemGotSound, "ItemGet.wav"},
    {kCutSound, "Cut.wav"},
    {kFireSound, "Fire.wav"},
    {kAtomicSound, "Atomic.wav"},
    {kHealingSound, "Fresh.wav"},
    {kQuakeSound, "Quake.wav"},
    {kVictorySound, "Win.wav"},
    {kThunderSound, "Thunder.wav"},
    {kBlastSound, "Bom.wav"},
    {kIceSound, "Ice.wav"},
}};

// Takes the next word off the front of a command; a word in double quotes loses them.
std::string NextWord(std::string_view& rest) {
  rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
  const bool quoted = !rest.empty() && rest.front() == '"';
  if (quoted) rest.remove_prefix(1);
  const size_t end = std::min(rest.find(quoted ? '"' : ' '), rest.size());
  std::string word(rest.substr(0, end));
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return word;
}

}  // namespace

std::string OpenCommand(const std::string& folder, const std::string& file,
                        const std::string& alias) {
  return "open \"" + folder + "\\Sound\\" + file + "\" alias " + alias;
}

std::string StatusCommand(const std::string& alias) {
  return "status " + alias + " mode";
}

std::string PlayCommand(const std::string& alias) {
  return "play " + alias + " from 0";
}

std::string CloseCommand(const std::string& alias) {
  return "close " + alias;
}

SoundCommand ParseSoundCommand(std::string_view command) {
  const std::string verb = NextWord(command);
  SoundCommand parsed;
  if (verb == "open") {
    parsed.What = SoundCommand::Verb::Open;
    parsed.File = NextWord(command);
    std::replace(parsed.File.begin(), parsed.File.end(), '\\', '/');
    NextWord(command);  // "alias"
  } else if (verb == "status") {
    parsed.What = SoundCommand::Verb::Status;
  } else if (verb == "play") {
    parsed.What = SoundCommand::Verb::Play;
  } else if (verb == "close") {
    parsed.What = SoundCommand::Verb::Close;
  }
  parsed.Alias = NextWord(command);
  return parsed;
}

std::string SoundFile(const std::string& alias) {
  for (const Channel& channel : kChannels) {
    if (alias == channel.Alias) return channel.File;
  }
  return "";
}

void SoundChannels::Open(const std::string& alias) {
  device_.Send(OpenCommand(folder_, SoundFile(alias), alias));
}

}  // namespace orvane
