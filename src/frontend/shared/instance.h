// One running game for each game folder.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace orvane {

// A lock that the system itself holds for the process and lets go at its end, however that comes. A
// process needs no more than one. Each front end has its own.
class Instance {
 public:
  // Takes the folder, unless a game of this player runs in it. What a crash has left is no
  // hindrance, nor is a place for locks that cannot be written.
  explicit Instance(const std::filesystem::path& folder);
  ~Instance();
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  bool IsFirst() const;
  // What the system knows the lock by; every start in the folder has the same.
  const std::string& Name() const { return name_; }
  // Asks the game that runs in the folder to come to the front.
  void CallFirst() const;

 private:
  struct Lock;

  std::string name_;
  std::unique_ptr<Lock> lock_;
};

}  // namespace orvane
