// Names of files and patterns for them.
#include <algorithm>
#include <vector>

#include "src/base/text.h"
#include "src/platform/folder_storage.h"
#include "src/platform/path_text.h"
#include "tests/fuzz/harness.h"
#include "tests/fuzz/scratch.h"

namespace orvane::fuzz {
namespace {

// The same rule by a table: whether the first n letters of a name match the first m of a pattern.
bool Fits(const std::string& name, const std::string& pattern) {
  std::vector<bool> fits(name.size() + 1, false);
  fits[0] = true;
  for (const char letter : pattern) {
    std::vector<bool> next(name.size() + 1, false);
    next[0] = letter == '*' && fits[0];
    for (size_t n = 1; n <= name.size(); ++n) {
      next[n] = letter == '*' ? next[n - 1] || fits[n] : fits[n - 1] && name[n - 1] == letter;
    }
    fits = next;
  }
  return fits[name.size()];
}

}  // namespace

void Try(Input& input) {
  const std::string name = input.Text();
  const std::string pattern = input.Text();
  std::string small = LowerCase(name);
  bool wanted = true;
  if (LowerCase(pattern).starts_with("*.")) {
    wanted = !small.empty();
    small = small.substr(wanted ? 1 : 0);
  }
  wanted = wanted && Fits(small, LowerCase(pattern));
  Require(MatchesPattern(name, pattern) == wanted, "a pattern fits as its table says");
  Require(TextOf(PathOf(name)) == name, "a path has the text that it was made of");

  static const ScratchFolder scratch;
  FolderStorage folder(PathOf(scratch.Path()));
  folder.Read(name);
  const auto listed = folder.List(pattern);
  Require(std::is_sorted(listed.begin(), listed.end()), "names are listed in order");
}

}  // namespace orvane::fuzz
