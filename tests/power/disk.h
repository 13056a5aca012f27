// A disk in memory whose power can fail: what was written but not flushed is kept apart, and when
// the power fails any part of it is on the disk, in any order, and any part is not.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace orvane::power {

// What a step throws at which the power fails.
struct PowerCut {};

class Disk {
 public:
  // Room for so many bytes in all.
  Disk(std::uint32_t seed, std::size_t room) : random_(seed), room_(room) {}

  // Makes a file that has always been there.
  void Put(const std::string& name, const std::string& bytes);
  bool Has(const std::string& name) const { return names_.contains(name); }
  // What a program reads now; nothing where there is no such file.
  std::optional<std::string> Held(const std::string& name) const;
  // All files, as a program sees them now, by their names.
  std::map<std::string, std::string> Files() const;
  // What an open file is called now.
  std::string NameOf(int file) const;
  // Bytes that there is room for.
  std::size_t Left() const;

  // Makes an empty file, or empties the one that is there. Returns what it is known by.
  int Create(const std::string& name);
  // Writes as many of the bytes behind what is written as there is room for. Returns how many.
  std::size_t Write(int file, const std::string& bytes);
  // What a file holds is on the disk from now on.
  void Flush(int file);
  // What a failed flush leaves: nobody knows how much, and no later one tells.
  void FlushBadly(int file);
  void Rename(const std::string& from, const std::string& to);
  void Delete(const std::string& name);
  // What names there are is on the disk from now on.
  void FlushNames();
  // What a file holds, and the name that it has got.
  void FlushNameOf(int file);

  // The power fails and comes back: what was not flushed is there or not, as it comes.
  void LosePower();

 private:
  struct Writing {
    std::size_t At = 0;
    std::string Bytes;
    bool Empties = false;
  };
  struct File {
    std::string Now;                 // as programs see it
    std::string Flushed;             // as it is on the disk for sure
    std::vector<Writing> Unflushed;  // in the order in which they came
  };
  // A change of a name: which file it stands for from then on, or -1.
  struct Naming {
    std::string Name;
    int File = -1;
    int Step = 0;  // changes of one step come together
  };

  bool Toss() { return random_() % 2 == 0; }
  void Note(const std::string& name, int file, int step);
  // What is on the disk of a file, after all, when the power fails.
  std::string Remains(const File& file);

  std::mt19937 random_;
  std::size_t room_;
  std::map<int, File> files_;
  std::map<std::string, int> names_;
  std::map<std::string, int> flushed_names_;
  std::vector<Naming> unflushed_names_;
  int made_ = 0;
  int steps_ = 0;
};

}  // namespace orvane::power
