#include "src/frontend/script/run/scratch_folder.h"

#include <system_error>

#include "src/frontend/script/names/value.h"
#include "src/frontend/script/run/script_error.h"
#include "src/platform/path_text.h"
#include "src/platform/temporary_folder.h"
#include "src/platform/whole_file.h"

namespace orvane {
namespace {

namespace files = std::filesystem;

// Files from this size on are linked to: sounds, of which a start would otherwise copy megabytes.
constexpr uintmax_t kLinkedSize = 65536;

files::path MakeFolder() {
  try {
    return MakeTemporaryFolder("orvane-script-");
  } catch (const files::filesystem_error&) {
    throw ScriptError("a scratch folder", "no way to make one");
  }
}

// Links to a file, by the kind of link that the system has to give; false where it has none.
bool Link(const files::path& from, const files::path& to) {
  std::error_code failed;
  files::create_symlink(files::canonical(from), to, failed);
  if (failed) files::create_hard_link(files::canonical(from), to, failed);
  return !failed;
}

bool IsLink(const files::path& path) {
  std::error_code failed;
  if (files::is_symlink(path, failed)) return true;
  const auto names = files::hard_link_count(path, failed);
  return !failed && names > 1;
}

void CopyFile(const files::path& from, const files::path& to) {
  if (files::file_size(from) >= kLinkedSize && Link(from, to)) return;
  files::copy_file(from, to);
  files::permissions(to, files::perms::owner_write, files::perm_options::add);
}

void CopyFolder(const files::path& from, const files::path& to) {
  const auto options = files::directory_options::follow_directory_symlink;
  for (const auto& entry : files::recursive_directory_iterator(from, options)) {
    const files::path target = to / entry.path().lexically_relative(from);
    if (entry.is_directory()) {
      files::create_directories(target);
    } else if (entry.is_regular_file()) {
      CopyFile(entry.path(), target);
    }
  }
}

}  // namespace

ScratchFolder::ScratchFolder(const files::path& original) {
  if (!files::is_directory(original)) {
    throw ScriptError("a game folder", "none at " + Quoted(TextOf(original)));
  }
  path_ = MakeFolder();
  files_ = std::make_unique<ScriptStorage>(path_);
  try {
    CopyFolder(original, path_);
  } catch (const std::exception& failed) {
    RemoveFolder(path_);
    throw ScriptError("a game folder that can be copied", failed.what());
  }
}

ScratchFolder::~ScratchFolder() {
  RemoveFolder(path_);
}

files::path ScratchFolder::Inside(const std::string& name) const {
  const files::path path = PathOf(name).lexically_normal();
  const bool leads_out = path.has_root_path() || (!path.empty() && *path.begin() == "..");
  if (name.empty() || leads_out) throw ScriptError("a name in the game folder", Quoted(name));
  return path_ / path;
}

std::optional<std::string> ScratchFolder::Read(const std::string& name) const {
  Inside(name);
  return files_->Read(name);
}

void ScratchFolder::Write(const std::string& name, const std::string& bytes) {
  const files::path path = Inside(name);
  std::error_code ignored;
  if (IsLink(path)) files::remove(path, ignored);
  files::create_directories(path.parent_path(), ignored);
  if (!WriteWholeFile(path, bytes)) throw ScriptError("a file that can be written", Quoted(name));
  files_->Written(name, bytes);
}

void ScratchFolder::Delete(const std::string& name) const {
  const files::path path = Inside(name);
  std::error_code failed;
  if (files::is_directory(path, failed)) throw ScriptError("a file", "a folder, " + Quoted(name));
  files::remove(path, failed);
  if (failed) throw ScriptError("a file that can be deleted", Quoted(name));
}

std::vector<std::string> ScratchFolder::List(const std::string& pattern) const {
  const size_t slash = pattern.rfind('/');
  if (slash == std::string::npos) return files_->List(pattern);
  const std::string folder = pattern.substr(0, slash + 1);
  std::vector<std::string> names = FolderStorage(Inside(folder)).List(pattern.substr(slash + 1));
  for (std::string& name : names) name.insert(0, folder);
  return names;
}

}  // namespace orvane
