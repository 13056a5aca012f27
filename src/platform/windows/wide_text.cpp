#include "src/platform/windows/wide_text.h"

#include "src/platform/windows/windows_api.h"

namespace orvane {

std::wstring Wide(std::string_view utf8) {
  const int size = static_cast<int>(utf8.size());
  const int count = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  std::wstring wide(static_cast<size_t>(count), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), count);
  return wide;
}

std::string Utf8(std::wstring_view wide) {
  const int size = static_cast<int>(wide.size());
  const int count =
      WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<size_t>(count), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), count, nullptr, nullptr);
  return utf8;
}

}  // namespace orvane
