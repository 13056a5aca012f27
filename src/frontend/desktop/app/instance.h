// One running game for each game folder.
#pragma once

#include <filesystem>
#include <string>

namespace orvane {

// A lock that the system itself holds for the process and lets go at its end, however that comes. A
// process needs no more than one.
class Instance {
 public:
  // Takes the folder, unless a game of this player runs in it. What a crash has left is no
  // hindrance, nor is a place for locks that cannot be written.
  explicit Instance(const std::filesystem::path& folder);
  ~Instance();
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  bool IsFirst() const { return first_; }
  // Asks the game that runs in the folder to come to the front.
  void CallFirst() const;

 private:
  std::string name_;
  int file_ = -1;
  bool first_ = true;
};

}  // namespace orvane
