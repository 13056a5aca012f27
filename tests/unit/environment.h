// Variables of the environment, which each system has its own calls for.
#pragma once

#include <cstdlib>
#include <string>

namespace orvane::test {

// Sets a variable of this process; an empty value takes it away.
inline void SetVariable(const std::string& name, const std::string& value) {
#ifdef _WIN32
  _putenv_s(name.c_str(), value.c_str());
#else
  if (value.empty()) {
    unsetenv(name.c_str());
  } else {
    setenv(name.c_str(), value.c_str(), 1);
  }
#endif
}

}  // namespace orvane::test
