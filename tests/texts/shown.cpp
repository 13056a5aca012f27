#include "tests/texts/shown.h"

#include <cstdlib>
#include <fstream>

namespace orvane::test {

std::vector<ShownText> ReadShown() {
  const char* file = std::getenv("ORVANE_SHOWN");
  std::ifstream lines(file != nullptr ? file : "");
  std::vector<ShownText> shown;
  for (std::string line; std::getline(lines, line);) {
    const size_t end = line.find('\t');
    std::string text = line.substr(end + 1);
    for (size_t at = text.find("\\n"); at != std::string::npos; at = text.find("\\n", at)) {
      text.replace(at, 2, "\n");
    }
    shown.push_back({line.substr(0, end), text});
  }
  return shown;
}

const Control* ControlOf(const Stage& stage, const ShownText& shown) {
  const size_t dot = shown.Where.find('.');
  if (dot == std::string::npos) return nullptr;
  const Screen* screen = stage.Find(shown.Where.substr(0, dot));
  const std::string name = shown.Where.substr(dot + 1);
  if (name[0] != '#') return screen->Find(name);
  return screen->Controls().at(static_cast<size_t>(std::stoi(name.substr(1))));
}

}  // namespace orvane::test
