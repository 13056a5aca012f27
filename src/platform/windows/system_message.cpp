#include "src/platform/system_message.h"

#include <array>

#include "src/platform/windows/wide_text.h"
#include "src/platform/windows/windows_api.h"

namespace orvane {

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
  return error.category() == std::system_category() ? SystemMessage(error.value())
                                                    : error.message();
}

}  // namespace orvane
