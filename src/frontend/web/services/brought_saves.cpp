#include "src/frontend/web/services/brought_saves.h"

#include "src/frontend/web/services/save_check.h"
#include "src/platform/storage.h"

namespace orvane {
namespace {

std::string WithoutFolders(const std::string& name) {
  return name.substr(name.find_last_of('/') + 1);  // none: from the beginning
}

// Archives of some systems hold a hidden companion of each file, named as the file is.
bool IsSave(const std::string& path) {
  const std::string name = WithoutFolders(path);
  return MatchesPattern(name, "*.sav") && !name.starts_with('.');
}

}  // namespace

BroughtSaves ReadBrought(const std::string& name, std::string_view bytes, const std::string& slot) {
  const auto refuse = [](const std::string& sentence) {
    return BroughtSaves{.Problem = sentence, .Saves = {}};
  };
  NamedFiles saves{{slot.empty() ? name : slot, std::string(bytes)}};
  if (LooksLikeZip(bytes)) {
    const auto files = ReadZip(bytes);
    if (!files) return refuse(name + "：ファイルが壊れています。");
    saves = *files;
  }
  std::erase_if(saves, [](const auto& file) { return !IsSave(file.first); });
  if (saves.empty()) return refuse(name + "：セーブデータが入っていません。");
  for (auto& [path, content] : saves) {
    const std::string problem = SaveProblem(content);
    if (!problem.empty()) return refuse((saves.size() > 1 ? path : name) + "：" + problem);
    path = WithoutFolders(path);
  }
  if (slot.empty()) return {.Problem = {}, .Saves = saves};
  if (saves.size() > 1) return refuse("ひとつのセーブデータを選んでください。");
  return {.Problem = {}, .Saves = {{slot, saves[0].second}}};
}

}  // namespace orvane
