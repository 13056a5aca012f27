#include "src/platform/system_message.h"

#include <array>

#include "src/platform/windows/wide_text.h"
#include "src/platform/windows/windows_api.h"

namespace orvane {
namespace {

// What the standard library reports by the numbers of another system, which this one has no words
// for in the player's language.
struct OwnNumber {
  std::errc Reported;
  DWORD Own;
};
constexpr std::array<OwnNumber, 8> kOwnNumbers = {{
    {std::errc::no_such_file_or_directory, ERROR_PATH_NOT_FOUND},
    {std::errc::permission_denied, ERROR_ACCESS_DENIED},
    {std::errc::operation_not_permitted, ERROR_ACCESS_DENIED},
    {std::errc::file_exists, ERROR_ALREADY_EXISTS},
    {std::errc::not_a_directory, ERROR_DIRECTORY},
    {std::errc::no_space_on_device, ERROR_DISK_FULL},
    {std::errc::read_only_file_system, ERROR_WRITE_PROTECT},
    {std::errc::device_or_resource_busy, ERROR_BUSY},
}};

}  // namespace

std::string SystemMessage(int error) {
  std::array<wchar_t, 1024> text{};
  DWORD size =
      FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                     static_cast<DWORD>(error), 0, text.data(), DWORD{text.size()}, nullptr);
  // It ends its sentences with a line's end.
  while (size > 0 && text.at(size - 1) <= L' ') --size;
  if (size == 0) return "error " + std::to_string(error);
  return Utf8(std::wstring_view(text.data(), size));
}

std::string SystemMessage(const std::error_code& error) {
  if (error.category() == std::system_category()) return SystemMessage(error.value());
  for (const OwnNumber& number : kOwnNumbers) {
    if (error == number.Reported) return SystemMessage(static_cast<int>(number.Own));
  }
  return error.message();
}

}  // namespace orvane
