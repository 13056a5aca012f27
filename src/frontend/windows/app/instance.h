// One running game for each game folder.
#pragma once

#include <filesystem>
#include <string>

#include "src/frontend/windows/system/windows_api.h"

namespace orvane {

// A name that the system itself holds for the process and lets go at its end, however that comes.
class Instance {
 public:
  // Takes the folder, unless a game of this player runs in it.
  explicit Instance(const std::filesystem::path& folder);
  ~Instance();
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  bool IsFirst() const { return first_; }
  // Under which the first game listens to calls, by a MessageWindow.
  const std::wstring& Name() const { return name_; }
  // Asks the game that runs in the folder to come to the front.
  void CallFirst() const;

 private:
  std::wstring name_;
  HANDLE mutex_;
  bool first_;
};

// What a second start of the game sends to the first.
constexpr UINT kCallMessage = WM_APP + 1;

}  // namespace orvane
