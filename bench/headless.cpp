// Field and battle frames, and whole battles, without a window.
#include <benchmark/benchmark.h>

#include <cstring>

#include "bench/headless_services.h"
#include "src/core/sheets.h"

namespace orvane::bench {
namespace {

constexpr int kColumns = 30;
constexpr int kRows = 16;
constexpr int kTile = 16;

// One frame of the field as the game composes it: 480 tiles, the hero's two blits, and the
// publication.
void FieldFrame(benchmark::State& loop) {
  HeadlessGame game;
  auto& timer = game.Get<Timer>("Main", "Timer1");
  for (auto _ : loop) game.TheProgram().Tick(timer);
}
BENCHMARK(FieldFrame)->Unit(benchmark::kMicrosecond);

// The same 480 tiles by BitBlt alone.
void FieldTilesBitBlt(benchmark::State& loop) {
  Surface field(480, 256);
  const Surface& sheet = Sheet("tiles");
  for (auto _ : loop) {
    for (int column = 0; column < kColumns; ++column) {
      for (int row = 0; row < kRows; ++row) {
        const int code = (column * kRows + row) % 240;
        BitBlt(field, column * kTile, row * kTile, kTile, kTile, sheet, code % 30 * kTile,
               code / 30 * kTile, Blit::Copy);
      }
    }
    benchmark::DoNotOptimize(field.Row(0));
  }
}
BENCHMARK(FieldTilesBitBlt)->Unit(benchmark::kMicrosecond);

// The least that any blit must do: copying the rows of the same tiles.
void FieldTilesRowCopies(benchmark::State& loop) {
  std::vector<Colour> field(480 * 256);
  const Surface& sheet = Sheet("tiles");
  for (auto _ : loop) {
    for (int column = 0; column < kColumns; ++column) {
      for (int row = 0; row < kRows; ++row) {
        const int code = (column * kRows + row) % 240;
        for (int line = 0; line < kTile; ++line) {
          std::memcpy(&field[static_cast<size_t>((row * kTile + line) * 480 + column * kTile)],
                      sheet.Row(code / 30 * kTile + line) + code % 30 * kTile,
                      kTile * sizeof(Colour));
        }
      }
    }
    benchmark::DoNotOptimize(field.data());
  }
}
BENCHMARK(FieldTilesRowCopies)->Unit(benchmark::kMicrosecond);

// One frame of a battle: a plain attack's frames, with all that they draw, one after the other.
void BattleFrame(benchmark::State& loop) {
  HeadlessGame game;
  WalkIntoBattle(game);
  State& state = game.TheState();
  auto& timer = game.Get<Timer>("Battle", "Timer1");
  auto& targets = game.Get<ListBox>("Battle", "List2");
  for (auto _ : loop) {
    if (!timer.IsEnabled()) {
      loop.PauseTiming();
      for (int slot = 0; slot < 4; ++slot) state.EnemyLife[slot] = 1000000;
      state.HP[0] = state.HP[1] = state.MaxHP[0] = state.MaxHP[1] = 9999;
      game.TheProgram().Click(game.Get<CommandButton>("Battle", "Command1"));
      game.TheProgram().Choose(targets, 1);
      loop.ResumeTiming();
    }
    game.TheProgram().Tick(timer);
  }
}
BENCHMARK(BattleFrame)->Unit(benchmark::kMicrosecond);

// A thousand battles by sword.
void ThousandBattles(benchmark::State& loop) {
  HeadlessGame game;
  for (auto _ : loop) {
    int rounds = 0;
    for (int battle = 0; battle < 1000; ++battle) rounds += FightBySword(game);
    loop.counters["rounds"] = rounds;
  }
}
BENCHMARK(ThousandBattles)->Unit(benchmark::kSecond)->Iterations(1);

}  // namespace
}  // namespace orvane::bench
