#include "tests/windows/game_folder.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace orvane::test {
namespace {

// Lets the script player write the saves, once for all tests of a run.
const QTemporaryDir& Parties() {
  static const QTemporaryDir folder;
  static const bool made = [] {
    QProcess player;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ORVANE_STATES", folder.path());
    environment.insert("ORVANE_PLAY", ORVANE_SOURCE_FOLDER "/tests/play");
    player.setProcessEnvironment(environment);
    player.start(ORVANE_SCRIPT_PLAYER, {ORVANE_SOURCE_FOLDER "/tests/parties/parties.lua"});
    return player.waitForFinished(60000) && player.exitStatus() == QProcess::NormalExit &&
           player.exitCode() == 0;
  }();
  if (!made) throw std::runtime_error("the saves could not be made");
  return folder;
}

std::filesystem::path PathOf(const QTemporaryDir& folder) {
  return folder.path().toStdString();
}

}  // namespace

GameFolder::GameFolder() : path_(PathOf(folder_)) {
  using std::filesystem::copy_options;
  const auto options = copy_options::recursive | copy_options::overwrite_existing;
  std::filesystem::copy(ORVANE_GAME_FOLDER, path_, options);
  std::filesystem::copy(PathOf(Parties()), path_, options);
}

std::string GameFolder::Bytes(const std::string& name) const {
  std::ifstream file(path_ / name, std::ios::binary);
  if (!file) throw std::runtime_error("there is no " + name);
  return {std::istreambuf_iterator<char>(file), {}};
}

int GameFolder::Number(const std::string& name, size_t offset) const {
  const std::string bytes = Bytes(name);
  const auto low = static_cast<unsigned char>(bytes.at(offset));
  const auto high = static_cast<unsigned char>(bytes.at(offset + 1));
  return static_cast<int16_t>(low | high << 8);
}

void GameFolder::Write(const std::string& name, const std::string& bytes) const {
  std::ofstream(path_ / name, std::ios::binary) << bytes;
}

void HoldsWhatWasDone(const GameFolder& folder) {
  constexpr auto saved = "Save03.sav";
  EXPECT_EQ(folder.Number(saved, 82), 19) << "his level";
  EXPECT_EQ(folder.Number(saved, 88), 521) << "his HP after the fruit";
  EXPECT_EQ(folder.Number(saved, 450), 8) << "the number of things";
  EXPECT_EQ(folder.Number(saved, 112), 18) << "his sword";
  EXPECT_EQ(folder.Number(saved, 114), 14) << "her staff";
  EXPECT_EQ(folder.Number(saved, 118), 34) << "his armour";
  EXPECT_EQ(folder.Number(saved, 120), 35) << "her armour";
  EXPECT_EQ(folder.Bytes(saved).substr(58, 4), "Gou ") << "his new name";
}

}  // namespace orvane::test
