#include "src/frontend/shared/options.h"

#include <charconv>
#include <cstdint>
#include <system_error>

#include "src/base/decimal.h"
#include "src/platform/path_text.h"

namespace orvane {
namespace {

std::optional<std::uint32_t> ReadSeed(const std::string& text) {
  std::uint32_t number = 0;
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return number;
}

}  // namespace

Options ReadOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (size_t i = 0; i < arguments.size() && options.Error.empty(); ++i) {
    const std::string& name = arguments[i];
    if (name == "--help" || name == "-h") {
      options.WantsHelp = true;
      continue;
    }
    if (name != "--folder" && name != "--scale" && name != "--seed" && name != "--record" &&
        name != "--language") {
      options.Error = "unknown option " + name;
    } else if (i + 1 == arguments.size()) {
      options.Error = name + " needs a value";
    } else {
      const std::string& value = arguments[++i];
      if (name == "--folder") options.Folder = PathOf(value);
      if (name == "--language") options.Language = value;
      if (name == "--record") options.Record = PathOf(value);
      if (name == "--scale") {
        options.Scale = ReadDecimal(value);
        if (!options.Scale || !(*options.Scale >= 0.5 && *options.Scale <= 8)) {
          options.Error = "--scale needs a number from 0.5 to 8";
        }
      }
      if (name == "--seed") {
        options.Seed = ReadSeed(value);
        if (!options.Seed) options.Error = "--seed needs a whole number";
      }
    }
  }
  return options;
}

std::string HelpText() {
  return "Usage: orvane [options]\n"
         "  --folder DIR  the game folder (\"game\" beside the program, or the player's own)\n"
         "  --language L  the language of the game: ja, or one of those that it has been given, as "
         "en\n"
         "  --scale N     size of the windows (chosen by the screen)\n"
         "  --seed N      the same chances in every run, for tests\n"
         "  --record FILE records the play, for orvane-script --replay\n"
         "  --help        this text\n";
}

}  // namespace orvane
