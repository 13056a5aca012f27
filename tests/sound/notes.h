// What the program noted beside a recording of its sound.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvane::test {

struct Note {
  double At = 0;     // its place in the recording, in seconds
  std::string Verb;  // "open", "play", "close" with a channel's name; "painted" with a screen's
  std::string Name;
};

struct Notes {
  double Delay = 0;  // by how much the player hears the recording later, in seconds
  std::vector<Note> All;
};

// Reads the log of a recording; a file that is not one gives nothing.
std::optional<Notes> ReadNotes(const std::string& path);

}  // namespace orvane::test
