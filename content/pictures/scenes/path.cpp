#include "content/pictures/scenes/path.h"

#include <array>
#include <charconv>
#include <cstring>
#include <stdexcept>
#include <string>

namespace orvane::paint::scene {
namespace {

// Reads a path's commands and numbers one after the other.
class PathReader {
 public:
  explicit PathReader(std::string_view text) : rest_(text) {}

  // False at the end of the text; otherwise the command, the last one again before a number.
  bool NextCommand(char& command) {
    SkipBlanks();
    if (rest_.empty()) return false;
    const char first = rest_.front();
    if (std::strchr("MLHVQCZ", first) != nullptr) {
      command = first;
      rest_.remove_prefix(1);
    }
    return true;
  }

  double Number() {
    SkipBlanks();
    double value = 0;
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
    if (error != std::errc())
      throw std::invalid_argument("path: number expected: " + std::string(rest_));
    rest_.remove_prefix(static_cast<size_t>(end - rest_.data()));
    return value;
  }

 private:
  void SkipBlanks() {
    while (!rest_.empty() &&
           (rest_.front() == ' ' || rest_.front() == ',' || rest_.front() == '\n')) {
      rest_.remove_prefix(1);
    }
  }

  std::string_view rest_;
};

}  // namespace

void TracePath(cairo_t* c, std::string_view path) {
  cairo_new_path(c);
  PathReader reader(path);
  char command = ' ';
  double x = 0;
  double y = 0;
  while (reader.NextCommand(command)) {
    std::array<double, 4> guide{};
    const size_t guides = command == 'C' ? 4 : command == 'Q' ? 2 : 0;
    for (size_t i = 0; i < guides; ++i) guide[i] = reader.Number();
    const double from_x = x;
    const double from_y = y;
    if (command != 'Z' && command != 'V') x = reader.Number();
    if (command != 'Z' && command != 'H') y = reader.Number();
    switch (command) {
      case 'M':
        cairo_move_to(c, x, y);
        break;
      case 'L':
      case 'H':
      case 'V':
        cairo_line_to(c, x, y);
        break;
      case 'C':
        cairo_curve_to(c, guide[0], guide[1], guide[2], guide[3], x, y);
        break;
      case 'Q':
        cairo_curve_to(c, from_x + (guide[0] - from_x) * 2 / 3,
                       from_y + (guide[1] - from_y) * 2 / 3, x + (guide[0] - x) * 2 / 3,
                       y + (guide[1] - y) * 2 / 3, x, y);
        break;
      case 'Z':
        cairo_close_path(c);
        break;
      default:
        throw std::invalid_argument("path: command expected: " + std::string(path));
    }
  }
}

}  // namespace orvane::paint::scene
