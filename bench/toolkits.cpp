// The same tiles drawn by the toolkits' own blits, to measure ours against.
#include <SDL.h>
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "src/core/sheets.h"

namespace orvane::bench {
namespace {

constexpr int kColumns = 30;
constexpr int kRows = 16;
constexpr int kTile = 16;

void FieldTilesSdl(benchmark::State& loop) {
  SDL_Surface* field = SDL_CreateRGBSurfaceWithFormat(0, 480, 256, 32, SDL_PIXELFORMAT_RGB888);
  const Surface& tiles = Sheet("tiles");
  SDL_Surface* sheet = SDL_CreateRGBSurfaceWithFormat(0, 480, 128, 32, SDL_PIXELFORMAT_RGB888);
  for (int y = 0; y < 128; ++y) {
    SDL_memcpy(static_cast<char*>(sheet->pixels) + y * sheet->pitch, tiles.Row(y), 480 * 4);
  }
  for (auto _ : loop) {
    for (int column = 0; column < kColumns; ++column) {
      for (int row = 0; row < kRows; ++row) {
        const int code = (column * kRows + row) % 240;
        SDL_Rect from{code % 30 * kTile, code / 30 * kTile, kTile, kTile};
        SDL_Rect to{column * kTile, row * kTile, kTile, kTile};
        SDL_BlitSurface(sheet, &from, field, &to);
      }
    }
    benchmark::DoNotOptimize(field->pixels);
  }
  SDL_FreeSurface(sheet);
  SDL_FreeSurface(field);
}
BENCHMARK(FieldTilesSdl)->Unit(benchmark::kMicrosecond);

void FieldTilesQPainter(benchmark::State& loop) {
  QImage field(480, 256, QImage::Format_RGB32);
  const Surface& tiles = Sheet("tiles");
  QImage sheet(480, 128, QImage::Format_RGB32);
  for (int y = 0; y < 128; ++y)
    std::copy_n(tiles.Row(y), 480, reinterpret_cast<Colour*>(sheet.scanLine(y)));
  for (auto _ : loop) {
    QPainter painter(&field);
    for (int column = 0; column < kColumns; ++column) {
      for (int row = 0; row < kRows; ++row) {
        const int code = (column * kRows + row) % 240;
        painter.drawImage(QPoint(column * kTile, row * kTile), sheet,
                          QRect(code % 30 * kTile, code / 30 * kTile, kTile, kTile));
      }
    }
    painter.end();
    benchmark::DoNotOptimize(field.bits());
  }
}
BENCHMARK(FieldTilesQPainter)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orvane::bench
