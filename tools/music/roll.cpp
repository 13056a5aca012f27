#include "tools/music/roll.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace orvane::music {
namespace {

constexpr int kBarsInRow = 16;
constexpr int kBarWidth = 96;
constexpr int kLowPitch = 24;
constexpr int kHighPitch = 103;
constexpr int kPitchHeight = 3;
constexpr int kRowHeight = (kHighPitch - kLowPitch + 1) * kPitchHeight + 12;

struct Canvas {
  int Width;
  int Height;
  std::vector<uint32_t> Pixels;

  void Box(int x, int y, int wide, int high, uint32_t colour) {
    for (int row = std::max(y, 0); row < std::min(y + high, Height); ++row) {
      for (int column = std::max(x, 0); column < std::min(x + wide, Width); ++column) {
        Pixels[static_cast<size_t>(row) * static_cast<size_t>(Width) +
               static_cast<size_t>(column)] = colour;
      }
    }
  }
};

uint32_t Shade(uint32_t colour, int velocity) {
  const auto light = static_cast<uint32_t>(64 + velocity * 3 / 2);
  uint32_t out = 0;
  for (const int shift : {0, 8, 16}) {
    out |= std::min(255U, ((colour >> shift) & 0xFF) * light / 224) << shift;
  }
  return out;
}

void PutBig(std::string& out, uint32_t value) {
  for (const int shift : {24, 16, 8, 0}) out += static_cast<char>((value >> shift) & 0xFF);
}

void PutChunk(std::string& out, const std::string& kind, const std::string& body) {
  PutBig(out, static_cast<uint32_t>(body.size()));
  std::string checked(kind);
  checked += body;
  uint32_t crc = 0xFFFFFFFF;
  for (const char c : checked) {
    crc ^= static_cast<uint8_t>(c);
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320U : 0U);
  }
  out += checked;
  PutBig(out, ~crc);
}

// Stored without compression: these pictures are looked at and thrown away.
std::string Png(const Canvas& canvas) {
  std::string raw;
  for (int y = 0; y < canvas.Height; ++y) {
    raw += '\0';
    for (int x = 0; x < canvas.Width; ++x) {
      const uint32_t pixel =
          canvas.Pixels[static_cast<size_t>(y) * static_cast<size_t>(canvas.Width) +
                        static_cast<size_t>(x)];
      for (const int shift : {16, 8, 0}) raw += static_cast<char>((pixel >> shift) & 0xFF);
    }
  }
  std::string packed("\x78\x01", 2);
  uint32_t a = 1;
  uint32_t b = 0;
  for (const char c : raw) {
    a = (a + static_cast<uint8_t>(c)) % 65521;
    b = (b + a) % 65521;
  }
  for (size_t at = 0; at < raw.size(); at += 65535) {
    const size_t size = std::min<size_t>(65535, raw.size() - at);
    packed += static_cast<char>(at + size == raw.size() ? 1 : 0);
    for (const size_t word : {size, ~size}) {
      packed += static_cast<char>(word & 0xFF);
      packed += static_cast<char>((word >> 8) & 0xFF);
    }
    packed.append(raw, at, size);
  }
  PutBig(packed, b << 16 | a);
  std::string head;
  PutBig(head, static_cast<uint32_t>(canvas.Width));
  PutBig(head, static_cast<uint32_t>(canvas.Height));
  head += std::string("\x08\x02\x00\x00\x00", 5);
  std::string out("\x89PNG\r\n\x1A\n");
  PutChunk(out, "IHDR", head);
  PutChunk(out, "IDAT", packed);
  PutChunk(out, "IEND", {});
  return out;
}

}  // namespace

std::string DrawRoll(const PieceNotes& piece) {
  static constexpr std::array<uint32_t, 12> colours = {0xFF5050, 0x50C8FF, 0x60E060, 0xFFC040,
                                                       0xC080FF, 0xFF80C0, 0x40E0D0, 0xA0A0FF,
                                                       0xE0E060, 0xFF9060, 0x90D090, 0xC0C0C0};
  const int bars = (piece.End + piece.BarTicks - 1) / piece.BarTicks;
  const int rows = (bars + kBarsInRow - 1) / kBarsInRow;
  Canvas canvas{kBarsInRow * kBarWidth, rows * kRowHeight, {}};
  canvas.Pixels.assign(static_cast<size_t>(canvas.Width) * static_cast<size_t>(canvas.Height),
                       0x101018);
  const int row_ticks = kBarsInRow * piece.BarTicks;
  const auto x_of = [&](int tick) { return tick % row_ticks * kBarWidth / piece.BarTicks; };
  for (int bar = 0; bar < bars; ++bar) {
    canvas.Box(bar % kBarsInRow * kBarWidth, bar / kBarsInRow * kRowHeight, 1, kRowHeight - 4,
               0x303040);
  }
  for (const Mark& section : piece.sections) {
    canvas.Box(x_of(section.Tick), section.Tick / row_ticks * kRowHeight, 2, kRowHeight - 4,
               0xFFFFFF);
  }
  for (const FileNote& note : piece.Notes) {
    const int top = note.Start / row_ticks * kRowHeight;
    const int x = x_of(note.Start);
    const int wide = std::max(2, (note.End - note.Start) * kBarWidth / piece.BarTicks - 1);
    const int y = top + (kHighPitch - std::clamp(note.Pitch, kLowPitch, kHighPitch)) * kPitchHeight;
    canvas.Box(x, y, wide, kPitchHeight,
               Shade(colours[note.Track % colours.size()], note.Velocity));
  }
  return Png(canvas);
}

}  // namespace orvane::music
