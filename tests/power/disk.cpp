#include "tests/power/disk.h"

#include <algorithm>

namespace orvane::power {
namespace {

void Overwrite(std::string& bytes, std::size_t at, const std::string& part) {
  if (part.empty()) return;
  if (bytes.size() < at + part.size()) bytes.resize(at + part.size(), '\0');
  bytes.replace(at, part.size(), part);
}

}  // namespace

void Disk::Put(const std::string& name, const std::string& bytes) {
  const int number = ++made_;
  files_[number] = {bytes, bytes, {}};
  names_[name] = number;
  flushed_names_[name] = number;
}

std::optional<std::string> Disk::Held(const std::string& name) const {
  const auto found = names_.find(name);
  if (found == names_.end()) return std::nullopt;
  return files_.at(found->second).Now;
}

std::map<std::string, std::string> Disk::Files() const {
  std::map<std::string, std::string> files;
  for (const auto& [name, number] : names_) files[name] = files_.at(number).Now;
  return files;
}

std::string Disk::NameOf(int file) const {
  for (const auto& [name, number] : names_) {
    if (number == file) return name;
  }
  return {};
}

std::size_t Disk::Left() const {
  std::size_t used = 0;
  for (const auto& [name, number] : names_) used += files_.at(number).Now.size();
  return room_ - std::min(room_, used);
}

void Disk::Note(const std::string& name, int file, int step) {
  if (file < 0) {
    names_.erase(name);
  } else {
    names_[name] = file;
  }
  unflushed_names_.push_back({name, file, step});
}

int Disk::Create(const std::string& name) {
  const auto found = names_.find(name);
  if (found != names_.end()) {
    File& file = files_.at(found->second);
    file.Now.clear();
    file.Unflushed.push_back({0, {}, true});
    return found->second;
  }
  files_[++made_] = {};
  Note(name, made_, ++steps_);
  return made_;
}

std::size_t Disk::Write(int file, const std::string& bytes) {
  const std::size_t count = std::min(bytes.size(), Left());
  File& to = files_.at(file);
  to.Unflushed.push_back({to.Now.size(), bytes.substr(0, count), false});
  to.Now += bytes.substr(0, count);
  return count;
}

void Disk::Flush(int file) {
  File& flushed = files_.at(file);
  flushed.Flushed = flushed.Now;
  flushed.Unflushed.clear();
}

void Disk::FlushBadly(int file) {
  File& flushed = files_.at(file);
  flushed.Flushed = Remains(flushed);
  flushed.Unflushed.clear();
}

void Disk::Rename(const std::string& from, const std::string& to) {
  const int file = names_.at(from);
  const int step = ++steps_;
  Note(to, file, step);
  Note(from, -1, step);
}

void Disk::Delete(const std::string& name) {
  Note(name, -1, ++steps_);
}

void Disk::FlushNames() {
  flushed_names_ = names_;
  unflushed_names_.clear();
}

void Disk::FlushNameOf(int file) {
  Flush(file);
  std::vector<int> steps;
  for (const Naming& naming : unflushed_names_) {
    if (naming.File == file) steps.push_back(naming.Step);
  }
  const auto goes_along = [&steps](const Naming& naming) {
    return std::find(steps.begin(), steps.end(), naming.Step) != steps.end();
  };
  std::vector<std::string> changed;
  for (const Naming& naming : unflushed_names_) {
    if (!goes_along(naming)) continue;
    flushed_names_.erase(naming.Name);
    if (naming.File >= 0) flushed_names_[naming.Name] = naming.File;
    changed.push_back(naming.Name);
  }
  std::erase_if(unflushed_names_, goes_along);
  // What a name stood for before does not come back.
  std::erase_if(unflushed_names_, [&changed](const Naming& naming) {
    return std::find(changed.begin(), changed.end(), naming.Name) != changed.end();
  });
}

std::string Disk::Remains(const File& file) {
  std::string bytes = file.Flushed;
  std::vector<Writing> writes = file.Unflushed;
  std::shuffle(writes.begin(), writes.end(), random_);
  for (const Writing& write : writes) {
    if (Toss()) continue;
    if (write.Empties) {
      bytes.clear();
      continue;
    }
    // Torn at any byte: its beginning is there, or its end.
    const std::size_t tear = random_() % (write.Bytes.size() + 1);
    if (Toss()) {
      Overwrite(bytes, write.At, write.Bytes.substr(0, tear));
    } else {
      Overwrite(bytes, write.At + tear, write.Bytes.substr(tear));
    }
  }
  return bytes;
}

void Disk::LosePower() {
  for (auto& [number, file] : files_) {
    const std::string remains = Remains(file);
    file = {remains, remains, {}};
  }
  // The steps of a disk's names come in any order and not all, but each of them whole.
  std::vector<int> steps;
  for (const Naming& naming : unflushed_names_) steps.push_back(naming.Step);
  steps.erase(std::unique(steps.begin(), steps.end()), steps.end());
  std::shuffle(steps.begin(), steps.end(), random_);
  for (const int step : steps) {
    if (Toss()) continue;
    for (const Naming& naming : unflushed_names_) {
      if (naming.Step != step) continue;
      flushed_names_.erase(naming.Name);
      if (naming.File >= 0) flushed_names_[naming.Name] = naming.File;
    }
  }
  unflushed_names_.clear();
  names_ = flushed_names_;
}

}  // namespace orvane::power
