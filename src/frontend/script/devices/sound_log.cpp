#include "src/frontend/script/devices/sound_log.h"

#include "src/platform/path_text.h"

namespace orvane {
namespace {

std::string WithoutFolder(std::string command, const std::string& folder) {
  const size_t at = folder.empty() ? std::string::npos : command.find(folder);
  return at == std::string::npos ? command : command.replace(at, folder.size(), "PATH");
}

bool IsFile(const std::string& path) {
  std::error_code failed;
  return std::filesystem::is_regular_file(PathOf(path), failed);
}

}  // namespace

void SoundLog::Restart(const std::filesystem::path& folder) {
  folder_ = TextOf(folder);
  numbers_.clear();
  known_.clear();
  sent_.clear();
  playing_.clear();
}

uint32_t SoundLog::Number(const std::string& command) {
  const auto found = numbers_.find(command);
  if (found != numbers_.end()) return found->second;
  const auto number = static_cast<uint32_t>(known_.size());
  known_.push_back({ParseSoundCommand(command), WithoutFolder(command, folder_)});
  numbers_.emplace(command, number);
  return number;
}

std::string SoundLog::Send(const std::string& command) {
  const uint32_t number = Number(command);
  sent_.push_back(number);
  const SoundCommand& parsed = known_[number].Parsed;
  const auto channel = playing_.find(parsed.Alias);
  const bool open = channel != playing_.end();
  switch (parsed.What) {
    case SoundCommand::Verb::Open:
      if (!open && IsFile(parsed.File)) playing_.emplace(parsed.Alias, false);
      break;
    case SoundCommand::Verb::Play:
      if (open) channel->second = true;
      break;
    case SoundCommand::Verb::Close:
      if (open) playing_.erase(channel);
      break;
    case SoundCommand::Verb::Status:
      return Mode(parsed.Alias);
    case SoundCommand::Verb::Unknown:
      break;
  }
  return "";
}

std::vector<std::string> SoundLog::Commands(bool with_status) const {
  std::vector<std::string> commands;
  for (const uint32_t number : sent_) {
    const Known& command = known_[number];
    if (!with_status && command.Parsed.What == SoundCommand::Verb::Status) continue;
    commands.push_back(command.Shown);
  }
  return commands;
}

std::string SoundLog::Mode(const std::string& alias) const {
  const auto channel = playing_.find(alias);
  if (channel == playing_.end()) return "";
  return channel->second ? "playing" : "stopped";
}

void SoundLog::EndPiece(const std::string& alias) {
  const auto channel = playing_.find(alias);
  if (channel != playing_.end()) channel->second = false;
}

}  // namespace orvane
