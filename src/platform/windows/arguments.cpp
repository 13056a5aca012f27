#include "src/platform/arguments.h"

#include <memory>

#include "src/platform/windows/wide_text.h"
#include "src/platform/windows/windows_api.h"

namespace orvane {

// What main is given stands in the code page of the system, which need not know its letters.
std::vector<std::string> ProgramArguments(int /*count*/, char** /*words*/) {
  int count = 0;
  const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words(
      CommandLineToArgvW(GetCommandLineW(), &count), &LocalFree);
  std::vector<std::string> arguments;
  for (int i = 1; words && i < count; ++i) arguments.push_back(Utf8(words.get()[i]));
  return arguments;
}

}  // namespace orvane
