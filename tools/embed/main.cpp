// orvane-embed OUT.cpp SHEET.png ...: turns picture sheets into a source file. Each becomes one
// string literal - octal escapes compile far faster than arrays of numbers - in the form that
// SheetReader reads.
// orvane-embed --files FOLDER OUT.cpp: does so with a game folder, but for its sounds, as it is.
// orvane-embed --texts OUT.cpp LANGUAGE.mo ...: does so with catalogues as msgfmt makes them.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "src/base/little_endian.h"
#include "tools/files.h"
#include "tools/paint/png_file.h"

namespace orvane {
namespace {

constexpr size_t kMostColours = 256;
constexpr size_t kBytesPerLine = 32;

void Append24(std::string& bytes, uint32_t colour) {
  for (int shift = 16; shift >= 0; shift -= 8) bytes += static_cast<char>(colour >> shift & 0xFF);
}

std::string Pack(const paint::Image& image) {
  std::map<uint32_t, size_t> palette;
  for (const uint32_t pixel : image.Pixels) palette.try_emplace(pixel, palette.size());
  const bool indexed = palette.size() <= kMostColours;
  std::string bytes;
  AppendLittleEndian(bytes, static_cast<size_t>(image.Width), 2);
  AppendLittleEndian(bytes, static_cast<size_t>(image.Height), 2);
  AppendLittleEndian(bytes, indexed ? palette.size() : 0, 2);
  if (indexed) {
    std::vector<uint32_t> colours(palette.size());
    for (const auto& [colour, index] : palette) colours[index] = colour;
    for (const uint32_t colour : colours) Append24(bytes, colour);
  }
  for (const uint32_t pixel : image.Pixels) {
    if (indexed) {
      bytes += static_cast<char>(palette.at(pixel));
    } else {
      Append24(bytes, pixel);
    }
  }
  return bytes;
}

void WriteLiteral(std::ostream& out, const std::string& bytes) {
  for (size_t at = 0; at < bytes.size(); at += kBytesPerLine) {
    out << "\n    \"";
    for (const char byte : bytes.substr(at, kBytesPerLine)) {
      char escape[5];
      std::snprintf(escape, sizeof escape, "\\%03o",
                    static_cast<unsigned>(static_cast<unsigned char>(byte)));
      out << escape;
    }
    out << '"';
  }
}

// A source file with a routine that returns what is embedded.
struct Source {
  const char* Origin;
  const char* Header;   // which declares the routine
  const char* Type;     // of each thing that it returns
  const char* Routine;  // its name
};

void Write(const std::string& target, const Source& source, const std::string& rows) {
  std::filesystem::create_directories(std::filesystem::path(target).parent_path());
  std::ostringstream out;
  out << "// Made by orvane-embed from the " << source.Origin << ".\n#include \"" << source.Header
      << "\"\n\nnamespace orvane {\n\nstd::vector<" << source.Type << "> " << source.Routine
      << "() {\n  return {\n"
      << rows << "  };\n}\n\n}  // namespace orvane\n";
  WriteFile(target, out.str());
}

void RunFiles(const std::filesystem::path& folder, const std::string& target) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    const auto name = entry.path().lexically_relative(folder);
    if (!entry.is_regular_file() || name.begin()->string() == "Sound") continue;
    files[name.generic_string()] = ReadFile(entry.path());
  }
  std::ostringstream rows;
  for (const auto& [name, bytes] : files) {
    rows << "      {\"" << name << "\", ";
    WriteLiteral(rows, bytes);
    rows << ", " << bytes.size() << "},\n";
  }
  Write(target, {"game folder", "src/frontend/web/content.h", "ContentFile", "AllContentFiles"},
        rows.str());
}

void RunTexts(const std::string& target, const std::vector<std::string>& catalogues) {
  std::ostringstream rows;
  for (const std::string& catalogue : catalogues) {
    const std::string bytes = ReadFile(catalogue);
    rows << "      {\"" << std::filesystem::path(catalogue).stem().string() << "\", {";
    WriteLiteral(rows, bytes);
    rows << ", " << bytes.size() << "}},\n";
  }
  Write(target,
        {"catalogues", "src/frontend/shared/texts/catalogue.h", "CatalogueData", "AllCatalogues"},
        rows.str());
}

void Run(const std::string& target, const std::vector<std::string>& files) {
  std::ostringstream rows;
  for (const std::string& file : files) {
    rows << "      {\"" << std::filesystem::path(file).stem().string() << "\", ";
    WriteLiteral(rows, Pack(paint::ReadPng(file)));
    rows << "},\n";
  }
  Write(target, {"picture sheets", "src/core/sheet_data.h", "SheetData", "AllSheetData"},
        rows.str());
}

}  // namespace
}  // namespace orvane

int main(int count, char** words) {
  try {
    if (count < 2) throw std::runtime_error("usage: orvane-embed OUT.cpp SHEET.png ...");
    if (count >= 3 && std::string(words[1]) == "--texts") {
      orvane::RunTexts(words[2], std::vector<std::string>(words + 3, words + count));
      return 0;
    }
    if (count == 4 && std::string(words[1]) == "--files") {
      orvane::RunFiles(words[2], words[3]);
      return 0;
    }
    orvane::Run(words[1], std::vector<std::string>(words + 2, words + count));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "orvane-embed: %s\n", error.what());
    return 1;
  }
  return 0;
}
