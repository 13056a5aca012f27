#include "src/frontend/web/services/zip.h"

#include <array>
#include <cstdint>

#include "src/base/little_endian.h"

// Of the library nothing but what inflates.
#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_NO_STDIO
#define STBI_NO_FAILURE_STRINGS
#define STBI_NO_LINEAR
#define STBI_NO_HDR
#define STBI_NO_JPEG
#define STBI_NO_PNG
#define STBI_NO_BMP
#define STBI_NO_PSD
#define STBI_NO_TGA
#define STBI_NO_GIF
#define STBI_NO_PIC
#define STBI_NO_PNM
#define STBI_SUPPORT_ZLIB
#include <stb/stb_image.h>

namespace orvane {
namespace {

// What the parts of an archive begin with.
constexpr uint32_t kFileMark = 0x04034B50;
constexpr uint32_t kEntryMark = 0x02014B50;
constexpr uint32_t kEndMark = 0x06054B50;

// How long they are without names and what else hangs on them.
constexpr size_t kFileHead = 30;
constexpr size_t kEntryHead = 46;
constexpr size_t kEndHead = 22;

constexpr uint16_t kVersion = 20;
constexpr uint16_t kNamesAreUtf8 = 0x0800;
constexpr uint16_t kFirstDay = 0x21;  // 1 January 1980
constexpr uint16_t kStored = 0;
constexpr uint16_t kDeflated = 8;
constexpr size_t kLargestFile = 1 << 20;

uint32_t SumOf(std::string_view bytes) {
  uint32_t sum = 0xFFFFFFFF;
  for (const char byte : bytes) {
    sum ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320 : 0);
  }
  return ~sum;
}

// What stands of a file before its bytes and in the list at the end alike.
std::string About(const std::string& name, const std::string& bytes) {
  std::string out;
  AppendLittleEndian(out, kVersion, 2);
  AppendLittleEndian(out, kNamesAreUtf8, 2);
  AppendLittleEndian(out, kStored, 2);
  AppendLittleEndian(out, 0, 2);  // midnight
  AppendLittleEndian(out, kFirstDay, 2);
  AppendLittleEndian(out, SumOf(bytes), 4);
  AppendLittleEndian(out, bytes.size(), 4);
  AppendLittleEndian(out, bytes.size(), 4);
  AppendLittleEndian(out, name.size(), 2);
  AppendLittleEndian(out, 0, 2);  // nothing more
  return out;
}

// The number at a place; the bytes are there.
uint32_t Number(std::string_view bytes, size_t at, size_t size) {
  return static_cast<uint32_t>(FromLittleEndian(bytes.substr(at, size)));
}

// A part of the bytes, if they reach so far.
std::optional<std::string_view> Part(std::string_view bytes, size_t at, size_t size) {
  if (at > bytes.size() || size > bytes.size() - at) return std::nullopt;
  return bytes.substr(at, size);
}

std::optional<std::string> Unpack(std::string_view packed, uint16_t method, size_t size) {
  if (size > kLargestFile) return std::nullopt;
  if (method == kStored) return std::string(packed);
  if (method != kDeflated) return std::nullopt;
  std::string out(size, '\0');
  const int got = stbi_zlib_decode_noheader_buffer(out.data(), static_cast<int>(size),
                                                   packed.data(), static_cast<int>(packed.size()));
  if (got < 0) return std::nullopt;
  return out;
}

// The bytes of the file that an entry of the list tells of.
std::optional<std::string> ReadFile(std::string_view bytes, std::string_view entry) {
  const size_t at = Number(entry, 42, 4);
  const auto head = Part(bytes, at, kFileHead);
  if (!head || Number(*head, 0, 4) != kFileMark) return std::nullopt;
  const size_t begin = at + kFileHead + Number(*head, 26, 2) + Number(*head, 28, 2);
  const auto packed = Part(bytes, begin, Number(entry, 20, 4));
  if (!packed) return std::nullopt;
  const auto method = static_cast<uint16_t>(Number(entry, 10, 2));
  auto content = Unpack(*packed, method, Number(entry, 24, 4));
  if (!content || SumOf(*content) != Number(entry, 16, 4)) return std::nullopt;
  return content;
}

// Where the list's end begins, behind which there may be a comment.
std::optional<size_t> FindEnd(std::string_view bytes) {
  if (bytes.size() < kEndHead) return std::nullopt;
  for (size_t at = bytes.size() - kEndHead + 1; at-- > 0;) {
    if (Number(bytes, at, 4) == kEndMark) return at;
  }
  return std::nullopt;
}

}  // namespace

bool LooksLikeZip(std::string_view bytes) {
  return bytes.starts_with("PK");
}

std::string WriteZip(const NamedFiles& files) {
  std::string out;
  std::string list;
  for (const auto& [name, bytes] : files) {
    const std::string about = About(name, bytes);
    AppendLittleEndian(list, kEntryMark, 4);
    AppendLittleEndian(list, kVersion, 2);
    list += about;
    AppendLittleEndian(list, 0, 2);  // no comment
    AppendLittleEndian(list, 0, 2);  // the first disk
    AppendLittleEndian(list, 0, 2);  // bytes, not text
    AppendLittleEndian(list, 0, 4);  // a file like others
    AppendLittleEndian(list, out.size(), 4);
    list += name;
    AppendLittleEndian(out, kFileMark, 4);
    out.append(about).append(name).append(bytes);
  }
  const size_t begin = out.size();
  out += list;
  AppendLittleEndian(out, kEndMark, 4);
  AppendLittleEndian(out, 0, 4);  // one disk
  AppendLittleEndian(out, files.size(), 2);
  AppendLittleEndian(out, files.size(), 2);
  AppendLittleEndian(out, list.size(), 4);
  AppendLittleEndian(out, begin, 4);
  AppendLittleEndian(out, 0, 2);  // no comment
  return out;
}

std::optional<NamedFiles> ReadZip(std::string_view bytes) {
  const auto end = FindEnd(bytes);
  if (!end) return std::nullopt;
  NamedFiles files;
  size_t at = Number(bytes, *end + 16, 4);
  for (uint32_t left = Number(bytes, *end + 10, 2); left > 0; --left) {
    const auto entry = Part(bytes, at, kEntryHead);
    if (!entry || Number(*entry, 0, 4) != kEntryMark) return std::nullopt;
    const auto name = Part(bytes, at + kEntryHead, Number(*entry, 28, 2));
    if (!name) return std::nullopt;
    at += kEntryHead + name->size() + Number(*entry, 30, 2) + Number(*entry, 32, 2);
    if (name->ends_with('/')) continue;
    auto content = ReadFile(bytes, *entry);
    if (!content) return std::nullopt;
    files.emplace_back(*name, std::move(*content));
  }
  return files;
}

}  // namespace orvane
