// The words of the command line.
#pragma once

#include <string>
#include <vector>

namespace orvane {

// What stands behind the program's name, in UTF-8 whatever the system's own encoding is. Takes what
// main was given.
std::vector<std::string> ProgramArguments(int count, char** words);

}  // namespace orvane
