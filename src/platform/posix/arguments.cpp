#include "src/platform/arguments.h"

namespace orvane {

std::vector<std::string> ProgramArguments(int count, char** words) {
  return {words + (count > 0 ? 1 : 0), words + count};
}

}  // namespace orvane
