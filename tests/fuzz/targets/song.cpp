// A piece of music: read, its instruments looked up, and played without an orchestra.
#include "src/sound/song.h"

#include "src/sound/song_player.h"
#include "src/sound/tempo_map.h"
#include "tests/fuzz/harness.h"

namespace orvane::fuzz {
namespace {

constexpr int kRate = 44100;

void PlayABit(Song song) {
  auto piece = std::make_shared<Piece>();
  piece->Notes = std::move(song);
  piece->Ready = true;
  SongPlayer player(piece, -1, kRate);
  player.Start();
  for (int block = 0; block < 2000; ++block) {
    player.Step(nullptr);
    if (block % 500 == 0) player.Start();
  }
  player.Close();
  player.Step(nullptr);
  Require(player.Silent(), "what is closed falls silent");
}

}  // namespace

void Try(Input& input) {
  const std::string bytes = input.Rest();
  std::optional<Song> song =
      ReadSong({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
  if (!song) return;
  Require(song->Ticks >= 0 && song->Seconds >= 0, "no piece is shorter than nothing");
  double before = 0;
  for (const SongEvent& event : song->Events) {
    Require(event.Kind() >= 8 && event.Kind() <= 14, "an event is a channel's message");
    Require(event.First < 128 && event.Second < 128, "its values are of seven bits");
    Require(event.Seconds >= before && event.Seconds <= song->Seconds,
            "events stand in order of time");
    before = event.Seconds;
  }
  for (const Patch& patch : PatchesOf(*song)) {
    Require(patch.Bank >= 0 && patch.Bank <= kDrumBank && patch.Program >= 0 && patch.Program < 128,
            "an instrument has a place");
  }
  PlayABit(*std::move(song));
}

}  // namespace orvane::fuzz
