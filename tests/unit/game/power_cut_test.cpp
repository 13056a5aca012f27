// The whole game on a disk whose power fails: a player saves ten times in a row, starts the game
// anew where a save has failed, and after the cut finds what the game has told.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "src/core/save_file.h"
#include "src/core/state_table.h"
#include "src/platform/path_text.h"
#include "src/platform/temporary_folder.h"
#include "src/platform/whole_file.h"
#include "tests/game_files.h"
#include "tests/power/computer.h"
#include "tests/power/player.h"

namespace orvane::power {
namespace {

// Fills a record with anything.
class AnyValues {
 public:
  explicit AnyValues(std::mt19937& random) : random_(random) {}

  void operator()(const char*, Int16& field) { field = static_cast<std::int16_t>(random_()); }
  void operator()(const char*, Int32& field) { field = static_cast<std::int32_t>(random_()); }
  template <int N>
  void operator()(const char*, FixedText<N>& field) {
    std::string text;
    for (int i = 0; i < N; ++i) text += static_cast<char>('A' + random_() % 26);
    field = text;
  }
  template <class T, std::size_t N>
  void operator()(const char* name, Array<T, N>& fields) {
    for (T& field : fields) (*this)(name, field);
  }

 private:
  std::mt19937& random_;
};

// A game that is none of the others in any of its bytes, but for where the party stands.
void PlayOn(GameRecord& record, std::mt19937& random) {
  VisitRecord(record, AnyValues(random));
  record.SaveMapA = record.SaveMapB = 3;
  record.SaveX = static_cast<int>(random() % 20) * 16;
  record.SaveY = static_cast<int>(random() % 16) * 16;
}

// What a longer file holds behind the record.
std::string BehindRecord(const std::optional<std::string>& held) {
  return held && held->size() > kSaveFileSize ? held->substr(kSaveFileSize) : std::string();
}

// The game folder but for its saves and sounds.
class PlayedPowerCut : public testing::Test {
 protected:
  PlayedPowerCut() {
    for (const auto& [name, bytes] : test::ReadGameFiles(PathOf(ORVANE_GAME_FOLDER))) {
      if (name.ends_with(".sav")) continue;
      const std::filesystem::path file = folder_ / PathOf(name);
      std::filesystem::create_directories(file.parent_path());
      WriteWholeFile(file, bytes);
    }
  }
  ~PlayedPowerCut() override { RemoveFolder(folder_); }

  const std::filesystem::path folder_ = MakeTemporaryFolder("orvane-power-");
};

// One series of saves, which a cut ends.
class PlayedSeries {
 public:
  PlayedSeries(std::uint32_t seed, const std::filesystem::path& folder, const Way& way)
      : random_(seed), disk_(seed + 1, RoomFor(seed)), folder_(folder) {
    GameRecord record;
    for (int slot = 0; slot < kSlots; ++slot) {
      PlayOn(record, random_);
      // One file is longer than the record, and stays so.
      disk_.Put(SlotName(slot), PackRecord(record) + (slot == 0 ? "and more" : ""));
    }
    promises_.emplace(disk_);
    computer_.emplace(folder, way, disk_, trouble_);
  }

  void Run(CutCount& count) {
    ASSERT_TRUE(Start(false));
    trouble_.StepsLeft = static_cast<int>(random_() % 150);
    trouble_.Fails = random_() % 2 == 0;
    try {
      for (int save = 0; save < kSaves; ++save) SaveAny(count);
    } catch (const PowerCut&) {
      ++count.Cuts;
      promises_->CutOff(slot_, computer_->Asked());
    }
    trouble_.StepsLeft = -1;
    trouble_.Fails = false;
    count.Unread += computer_->Files().FailedReads();
    player_.reset();
    computer_->LosePower();
    promises_->Look("a power cut");
    for (const auto& [name, bytes] : disk_.Files()) count.Strays += name.ends_with(".new") ? 1 : 0;
    (disk_.Held(slot_) == computer_->Asked() ? count.New : count.Old) += 1;
    ASSERT_TRUE(Start(true));
    if (random_() % 20 == 0) SaveOverStrays();
    SaveOnceMore();
  }

 private:
  // Some disks have hardly room for one record more than the slots hold, and some have none.
  static std::size_t RoomFor(std::uint32_t seed) {
    if (seed % 12 == 0) return 5600;
    return seed % 3 == 0 ? 6000 : std::size_t{1} << 20;
  }

  // Starts the game, which lists the slots and nothing else, and reads what the disk holds; loads
  // one that has been read. Whether the game could read all that it was to.
  bool Start(bool looks_at_all) {
    player_.reset();
    std::filesystem::remove(folder_ / kReplayAfterError);
    player_.emplace(computer_->Files(), folder_ / kReplayAfterError);
    std::vector<std::string> slots;
    for (int slot = 0; slot < kSlots; ++slot) slots.push_back(SlotName(slot));
    EXPECT_EQ(player_->OpenSaves(), slots);
    const int loaded = static_cast<int>(random_() % kSlots);
    for (int turn = 1; turn <= kSlots; ++turn) {
      const int slot = (loaded + turn) % kSlots;
      if (!looks_at_all && slot != loaded) continue;
      const std::string held = disk_.Held(SlotName(slot)).value_or("");
      const std::optional<std::string> seen = player_->Look(slot);
      if (!seen) return false;
      EXPECT_TRUE(seen == held.substr(0, kSaveFileSize)) << SlotName(slot);
    }
    return player_->Load();
  }

  // Saves into a slot what has been played meanwhile. Whether the game has it done.
  bool Save(int slot) {
    State& state = player_->TheState();
    PlayOn(state, random_);
    state.HeroX = state.SaveX;
    state.HeroY = state.SaveY;
    slot_ = SlotName(slot);
    const std::string behind = BehindRecord(disk_.Held(slot_));
    const int failed_reads = computer_->Files().FailedReads();
    const bool done = player_->Save(slot_);
    // What is behind a record stays, as far as it can be read.
    const bool keeps = computer_->Files().FailedReads() == failed_reads;
    EXPECT_TRUE(computer_->Asked() == player_->Record() + (keeps ? behind : ""));
    if (done) {
      promises_->Done(slot_, computer_->Asked());
    } else {
      promises_->Refused(slot_, computer_->Asked());
    }
    promises_->Look("a save");
    return done;
  }

  void SaveAny(CutCount& count) {
    if (Save(static_cast<int>(random_() % kSlots))) {
      ++count.Done;
    } else {
      ++count.Refused;
      while (!Start(false)) promises_->Look("a failed read");
    }
  }

  // Whatever lies about does not keep the next save of each slot from coming to last.
  void SaveOnceMore() {
    for (int slot = 0; slot < kSlots; ++slot) {
      if (!Save(slot)) {
        EXPECT_LT(disk_.Left(), kSaveFileSize) << "a save was refused without reason";
        return;
      }
      Disk later = disk_;
      later.LosePower();
      EXPECT_TRUE(later.Held(slot_) == computer_->Asked())
          << "a save that the game has done is lost";
    }
  }

  // The same by the system itself, in the folder as the cut has left it.
  void SaveOverStrays() {
    FolderStorage files(folder_);
    Player player(files, folder_ / kReplayAfterError);
    player.OpenSaves();
    ASSERT_TRUE(player.Look(0));
    ASSERT_TRUE(player.Load());
    for (int slot = 0; slot < kSlots; ++slot) {
      const std::string name = SlotName(slot);
      if (!disk_.Has(name + ".new")) continue;
      PlayOn(player.TheState(), random_);
      EXPECT_TRUE(player.Save(name));
      EXPECT_TRUE(files.Read(name)->substr(0, kSaveFileSize) == player.Record()) << name;
      EXPECT_EQ(files.Read(name + ".new"), std::nullopt);
    }
  }

  std::mt19937 random_;
  Disk disk_;
  Trouble trouble_{disk_, random_};
  std::filesystem::path folder_;
  std::optional<Promises> promises_;
  std::optional<Computer> computer_;
  std::optional<Player> player_;
  std::string slot_;  // that is saved into, or was last
};

TEST_F(PlayedPowerCut, EverySlotLoadsTheOldOrTheNewGameWhole) {
  const int series = ORVANE_PLAYED_CUTS / static_cast<int>(Ways().size());
  for (const Way& way : Ways()) {
    CutCount count;
    for (int seed = 1; seed <= series && !HasFailure(); ++seed) {
      SCOPED_TRACE(std::string(way.Name) + ", series " + std::to_string(seed));
      PlayedSeries(static_cast<std::uint32_t>(seed), folder_, way).Run(count);
    }
    EXPECT_GT(count.Cuts, series / 2);
    EXPECT_GT(count.Old, series / 3);
    EXPECT_GT(count.New, series / 15);
    EXPECT_GT(count.Done, series * 2);
    EXPECT_GT(count.Refused, series / 2);
    EXPECT_GT(count.Unread, series / 5);
    EXPECT_GT(count.Strays, series / 10);
  }
}

}  // namespace
}  // namespace orvane::power
