#include "tests/sound/notes.h"

#include <fstream>
#include <sstream>

namespace orvane::test {

std::optional<Notes> ReadNotes(const std::string& path) {
  std::ifstream file(path);
  std::string word;
  Notes notes;
  if (!(file >> word >> notes.Delay) || word != "delay") return std::nullopt;
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    Note note;
    if (words >> note.At >> note.Verb >> note.Name) notes.All.push_back(note);
  }
  return notes;
}

}  // namespace orvane::test
