// What the operating system says of an error.
#pragma once

#include <string>
#include <system_error>

namespace orvane {

// The system's sentence about an error by its number, errno's or whatever the system counts by, in
// UTF-8 and in the player's language where the system speaks it.
std::string SystemMessage(int error);

// The same of an error that the standard library reports.
std::string SystemMessage(const std::error_code& error);

}  // namespace orvane
