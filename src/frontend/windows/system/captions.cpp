#include "src/frontend/windows/system/captions.h"

#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

std::string Replaced(std::string_view text, char sign, std::string_view by) {
  std::string result;
  for (const char letter : text) {
    if (letter == sign) {
      result += by;
    } else {
      result += letter;
    }
  }
  return result;
}

}  // namespace

std::wstring WideCaption(std::string_view text) {
  return Wide(Replaced(text, '&', "&&"));
}

std::wstring WideLines(std::string_view text) {
  return Wide(Replaced(text, '\n', "\r\n"));
}

}  // namespace orvane
