#include "src/platform/whole_file.h"

#include <array>
#include <fstream>
#include <system_error>

namespace orvane {

std::optional<std::string> ReadWholeFile(const std::filesystem::path& path) {
  std::error_code failed;
  if (std::filesystem::is_directory(path, failed)) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  std::string bytes;
  std::array<char, 1 << 16> part{};
  do {
    file.read(part.data(), part.size());
    bytes.append(part.data(), static_cast<size_t>(file.gcount()));
  } while (file);
  // The last part ends the stream; what cannot be read spoils it.
  if (file.bad()) return std::nullopt;
  return bytes;
}

bool WriteWholeFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return !file.fail();
}

}  // namespace orvane
