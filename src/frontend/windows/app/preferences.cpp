#include "src/frontend/shared/preferences.h"

#include <filesystem>
#include <system_error>

#include "src/frontend/windows/app/local_folder.h"
#include "src/platform/whole_file.h"

namespace orvane {
namespace {

constexpr const wchar_t* kLanguageFile = L"language.txt";

}  // namespace

std::string PreferredLanguage() {
  const std::filesystem::path folder = LocalFolder();
  if (folder.empty()) return {};
  const std::string words = ReadWholeFile(folder / kLanguageFile).value_or("");
  return words.substr(0, words.find_first_of("\r\n"));
}

void PreferLanguage(const std::string& code) {
  const std::filesystem::path folder = LocalFolder();
  if (folder.empty()) return;
  std::error_code failed;
  std::filesystem::create_directories(folder, failed);
  WriteWholeFile(folder / kLanguageFile, code + "\r\n");
}

}  // namespace orvane
