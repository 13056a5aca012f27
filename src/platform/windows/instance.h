// One running game for each game folder.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace orvane {

// A name that the system itself holds for the process and lets go at its end, however that comes.
class Instance {
 public:
  // Takes the folder, unless a game of this player runs in it, however either has written its name.
  // A folder that cannot be looked at is free.
  explicit Instance(const std::filesystem::path& folder);
  ~Instance();
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  bool IsFirst() const { return first_; }

  // Asks the game that runs in the folder to come to the front, and lets it.
  void CallFirst() const;

  // Runs `called`, on a thread of the system's, each time that a later game calls the first. Once;
  // destroying the instance ends it and waits for a call that is under way.
  void WhenCalled(std::function<void()> called);

 private:
  std::string name_;
  void* holder_ = nullptr;  // handles of the system's
  void* call_ = nullptr;
  void* wait_ = nullptr;
  std::function<void()> called_;
  bool first_ = true;
};

}  // namespace orvane
