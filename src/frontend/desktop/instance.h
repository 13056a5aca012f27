// One running game for each game folder.
#pragma once

#include <QLockFile>
#include <filesystem>

namespace orvane {

class Instance {
 public:
  // Takes the folder, unless a game of this player runs in it. A lock that a crash has left is no
  // hindrance, nor is a place for locks that cannot be written.
  explicit Instance(const std::filesystem::path& folder);

  bool IsFirst() const { return first_; }
  // Asks the game that runs in the folder to come to the front.
  void CallFirst() const;

 private:
  QLockFile lock_;
  bool first_;
};

}  // namespace orvane
