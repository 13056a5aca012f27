// A game folder of a test's own, with saves to begin from.
#pragma once

#include <QTemporaryDir>
#include <filesystem>
#include <string>

namespace orvane::test {

// The rows of the saves in the lists of files.
constexpr int kTravellersRow = 0;  // Save01.sav: a party of the second round with things and skills
constexpr int kBeforeDragonRow = 1;  // Save02.sav: heroes that no enemy withstands before a dragon
constexpr int kFirstFreeRow = 2;     // Save03.sav, as the game was installed with it

class GameFolder {
 public:
  // A copy of the build's folder, with the saves that tests/parties/parties.lua makes.
  GameFolder();

  std::filesystem::path Path() const { return path_; }
  // All bytes of a file, of which there must be one.
  std::string Bytes(const std::string& name) const;
  // The 16-bit number at that place of a file.
  int Number(const std::string& name, size_t offset) const;
  void Write(const std::string& name, const std::string& bytes) const;

 private:
  QTemporaryDir folder_;
  std::filesystem::path path_;
};

// Expects in Save03.sav what the traveller's party has when it has worn and used its things and has
// changed its settings.
void HoldsWhatWasDone(const GameFolder& folder);

}  // namespace orvane::test
