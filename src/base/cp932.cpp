#include "src/base/cp932.h"

#include <cstdint>
#include <unordered_map>

#include "src/base/cp932_table.h"
#include "src/base/text.h"

namespace orvane {
namespace {

constexpr char16_t kNone = 0xFFFD;
constexpr char32_t kHalfKatakana = 0xFF61;  // the half-width katakana stand at 0xA1 to 0xDF
constexpr std::string_view kUnknown = "？";
constexpr std::string_view kUnknownBytes = "\x81\x48";

bool IsHalfKatakana(unsigned char byte) {
  return byte >= 0xA1 && byte <= 0xDF;
}

// Bytes that neither stand alone nor begin a pair.
bool IsNoLead(unsigned char byte) {
  return byte == 0x80 || byte == 0xA0 || byte >= 0xFD;
}

// Position of a trail byte in its row, or -1.
int TrailIndex(unsigned char trail) {
  if (trail >= 0x40 && trail <= 0x7E) return trail - 0x40;
  if (trail >= 0x80 && trail <= 0xFC) return trail - 0x80 + 63;
  return -1;
}

unsigned char TrailByte(int index) {
  return static_cast<unsigned char>(index < 63 ? 0x40 + index : 0x80 + index - 63);
}

// Of a character that is not ASCII's.
std::string Utf8(char32_t code) {
  if (code < 0x800)
    return {static_cast<char>(0xC0 | code >> 6), static_cast<char>(0x80 | (code & 0x3F))};
  return {static_cast<char>(0xE0 | code >> 12), static_cast<char>(0x80 | (code >> 6 & 0x3F)),
          static_cast<char>(0x80 | (code & 0x3F))};
}

// The two bytes of every double-byte character. Where a character stands twice, the first place in
// the order of the code page counts, the rows 0xED and 0xEE last of all.
std::unordered_map<std::string, std::string> MakeEncoder() {
  std::unordered_map<std::string, std::string> encoder;
  for (const bool late_rows : {false, true}) {
    for (const Cp932Row& row : kCp932Rows) {
      if ((row.Lead == 0xED || row.Lead == 0xEE) != late_rows) continue;
      for (int index = 0; row.Characters[index] != 0; ++index) {
        if (row.Characters[index] == kNone) continue;
        encoder.try_emplace(
            Utf8(row.Characters[index]),
            std::string{static_cast<char>(row.Lead), static_cast<char>(TrailByte(index))});
      }
    }
  }
  return encoder;
}

const Cp932Row* FindRow(unsigned char lead) {
  for (const Cp932Row& row : kCp932Rows) {
    if (row.Lead == lead) return &row;
  }
  return nullptr;
}

std::string EncodeCharacter(std::string_view character) {
  static const std::unordered_map<std::string, std::string> encoder = MakeEncoder();
  if (character.size() == 1 && static_cast<unsigned char>(character[0]) < 0x80) {
    return std::string(character);
  }
  if (character.size() == 3) {
    const auto byte = [character](size_t i) { return static_cast<unsigned char>(character[i]); };
    const char32_t code = (byte(0) & 0x0Fu) << 12 | (byte(1) & 0x3Fu) << 6 | (byte(2) & 0x3Fu);
    if (code >= kHalfKatakana && code <= kHalfKatakana + (0xDF - 0xA1)) {
      return {static_cast<char>(0xA1 + static_cast<int>(code - kHalfKatakana))};
    }
  }
  const auto found = encoder.find(std::string(character));
  return found == encoder.end() ? std::string(kUnknownBytes) : found->second;
}

}  // namespace

std::string ToCp932(std::string_view utf8) {
  std::string bytes;
  for (const std::string_view character : Characters(utf8)) bytes += EncodeCharacter(character);
  return bytes;
}

std::string FromCp932(std::string_view bytes) {
  std::string text;
  for (size_t at = 0; at < bytes.size(); ++at) {
    const auto first = static_cast<unsigned char>(bytes[at]);
    if (first == 0) {
      text += ' ';
    } else if (first < 0x80) {
      text += static_cast<char>(first);
    } else if (IsHalfKatakana(first)) {
      text += Utf8(kHalfKatakana + (first - 0xA1u));
    } else if (IsNoLead(first)) {
      text += kUnknown;
    } else {
      const Cp932Row* row = FindRow(first);
      const int index =
          at + 1 < bytes.size() ? TrailIndex(static_cast<unsigned char>(bytes[at + 1])) : -1;
      const bool known = row != nullptr && index >= 0 && row->Characters[index] != kNone;
      text += known ? Utf8(row->Characters[index]) : std::string(kUnknown);
      if (index >= 0) ++at;
    }
  }
  return text;
}

std::string Cp932Field(std::string_view utf8, int width) {
  std::string field;
  for (const std::string_view character : Characters(utf8)) {
    const std::string bytes = EncodeCharacter(character);
    if (field.size() + bytes.size() > static_cast<size_t>(width)) break;
    field += bytes;
  }
  field.append(static_cast<size_t>(width) - field.size(), ' ');
  return field;
}

}  // namespace orvane
