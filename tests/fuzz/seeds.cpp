// Makes what the fuzzers begin with: the files of the game folder, each in the form in which its
// target takes it, and a few things to do.
//   orvane-fuzz-seeds GAME_FOLDER REPLAYS FOLDER
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <string>

#include "src/base/little_endian.h"
#include "src/core/new_game.h"
#include "src/core/save_file.h"
#include "src/frontend/web/services/save_check.h"
#include "src/frontend/web/services/zip.h"
#include "src/platform/path_text.h"
#include "src/platform/whole_file.h"

namespace {

using namespace orvane;

constexpr size_t kMostBytes = 4000;  // of a sound: a fuzzer is quick with small inputs

struct Folders {
  std::filesystem::path Game;
  std::filesystem::path Replays;
  std::filesystem::path Corpora;

  std::string Read(const std::string& name) const {
    return ReadWholeFile(Game / PathOf(name)).value_or("");
  }
  void Write(const std::string& target, const std::string& name, const std::string& bytes) const {
    const std::filesystem::path folder = Corpora / PathOf(target);
    std::filesystem::create_directories(folder);
    if (!WriteWholeFile(folder / PathOf(name), bytes)) std::exit(EXIT_FAILURE);
  }
};

// A text behind the number of its bytes, as Input::Text and Input::File take it.
std::string Sized(const std::string& text, size_t bytes) {
  std::string sized;
  AppendLittleEndian(sized, text.size(), bytes);
  return sized + text;
}

std::string Bytes(std::initializer_list<int> numbers) {
  std::string bytes;
  for (const int number : numbers) bytes += static_cast<char>(number);
  return bytes;
}

// The start of a piece, as a whole piece: header and first track, cut and closed.
std::string ShortPiece(const std::string& piece) {
  constexpr size_t header = 14;
  constexpr size_t events_at = header + 8;
  if (piece.size() < events_at + kMostBytes) return piece;
  const std::string last("\x00\xff\x2f\x00", 4);
  return piece.substr(0, header) + piece.substr(header, 8) + piece.substr(events_at, kMostBytes) +
         last;
}

// The start of an effect: a reader takes what is there.
std::string ShortEffect(const std::string& wave) {
  return wave.substr(0, kMostBytes);
}

// A game that has gone some way.
GameRecord Played(int round) {
  GameRecord record;
  FreshRecord(record);
  record.HeroName[0] = "カイ";
  record.HeroName[1] = "リナ";
  for (int hero = 0; hero < 2; ++hero) {
    record.SaveName[hero] = record.HeroName[hero];
    record.SaveLevel[hero] = record.Level[hero];
  }
  record.SaveRound = record.Round = round;
  record.StoryNo = round;
  record.Items[0] = 1;
  record.ItemCount = 1;
  return record;
}

void WriteSaves(const Folders& folders) {
  for (int round = 1; round <= 4; ++round) {
    const std::string save = PackRecord(Played(round));
    if (!SaveProblem(save).empty()) std::exit(EXIT_FAILURE);  // what is refused is no beginning
    for (const char* target : {"save", "import"}) {
      folders.Write(target, "round" + std::to_string(round), save);
      folders.Write(target, "short" + std::to_string(round), save.substr(0, 100));
    }
  }
}

void WriteArchives(const Folders& folders) {
  const std::string save = PackRecord(Played(2));
  folders.Write("archive", "one", WriteZip({{"Save01.sav", save}}));
  folders.Write("archive", "more", WriteZip({{"mine/Save01.sav", save}, {"read me", "words"}}));
}

// The kept ones, and the beginning of each, which is quicker.
void WriteReplays(const Folders& folders) {
  for (const char* name : {"first_round.replay", "last_stage.replay"}) {
    const std::string bytes = ReadWholeFile(folders.Replays / name).value_or("");
    if (bytes.empty()) std::exit(EXIT_FAILURE);
    folders.Write("replay", name, bytes);
    folders.Write("replay", std::string("begin_") + name, bytes.substr(0, 1000));
  }
}

void WriteFiles(const Folders& folders) {
  for (const auto& entry : std::filesystem::directory_iterator(folders.Game / "Mapdata")) {
    const std::string name = TextOf(entry.path().filename());
    folders.Write("map", name, folders.Read("Mapdata/" + name));
  }
  folders.Write("items", "Item.dat", folders.Read("Item.dat"));
  folders.Write("cp932", "Item.dat", "\x14" + folders.Read("Item.dat"));
  folders.Write("cp932", "letters", "\x08カイとリナ ｶﾅ ~\\ １２ ①Ⅳ髙﨑");
  folders.Write("names", "save", Sized("Save01.sav", 1) + Sized("*.sav", 1));
  folders.Write("names", "folder", Sized("Mapdata/map0-0.dat", 1) + Sized("*a*b*.*", 1));
}

void WriteSounds(const Folders& folders) {
  for (const auto& entry : std::filesystem::directory_iterator(folders.Game / "Sound")) {
    const std::string name = TextOf(entry.path().filename());
    const std::string bytes = folders.Read("Sound/" + name);
    if (name.ends_with(".mid")) folders.Write("song", name, ShortPiece(bytes));
    if (name.ends_with(".wav"))
      folders.Write("clip", name, Sized(Bytes({1, 0, 8, 1, 2, 0, 0}), 1) + ShortEffect(bytes));
  }
  // Two pieces, two effects; then each is opened on its channel, played, asked for, pulled and
  // closed.
  const std::string piece = Sized(ShortPiece(folders.Read("Sound/Round1.mid")), 2);
  const std::string effect = Sized(ShortEffect(folders.Read("Sound/Cut.wav")), 2);
  std::string commands;
  for (const int channel : {0, 2}) {
    for (const int command : {2, 4, 6, 7, 3}) {
      if (command == 2) commands += Bytes({channel, 0, channel});
      commands += Bytes({channel, command});
    }
  }
  for (const int kind : {0, 1, 2}) {
    folders.Write("engine", "all" + std::to_string(kind),
                  Bytes({kind}) + piece + piece + effect + effect + commands);
  }
}

// Actions of the program's player: which key, what to do, and what that needs.
void WriteActions(const Folders& folders) {
  const std::string nothing_broken = Bytes({0, 7, 0, 0, 0});
  std::string touches;
  for (int control = 0; control < 40; ++control) touches += Bytes({0, 15, control, 1, 0, 0, 0, 40});
  folders.Write("program", "touches", nothing_broken + touches);
  std::string walk;
  for (int turn = 0; turn < 40; ++turn) walk += Bytes({turn % 4, 4, 0, 0, 60, 0, 7, 0, 8});
  folders.Write("program", "walk", nothing_broken + touches + walk);
  std::string draws;
  for (int draw = 0; draw < 60; ++draw) {
    draws += Bytes({draw, draw / 2, draw, draw});
    for (int number = 0; number < 8; ++number) draws += Bytes({7, 64 + 5 * number});
  }
  folders.Write("surface", "draws", Bytes({64, 40, 1, 2, 32, 32, 3, 4}) + draws);
}

}  // namespace

int main(int count, char** words) {
  if (count != 4) return EXIT_FAILURE;
  const Folders folders{PathOf(words[1]), PathOf(words[2]), PathOf(words[3])};
  WriteSaves(folders);
  WriteArchives(folders);
  WriteReplays(folders);
  WriteFiles(folders);
  WriteSounds(folders);
  WriteActions(folders);
  return EXIT_SUCCESS;
}
