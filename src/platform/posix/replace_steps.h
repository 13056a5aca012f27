// The steps in which a file is replaced, each a call of the system's or two, so that a test can put
// a disk of its own beneath them and see any of them fail.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace orvane {

// Each step returns the system's error number, 0 when it is done. Files are known by numbers.
class ReplaceSteps {
 public:
  ReplaceSteps() = default;
  ReplaceSteps(const ReplaceSteps&) = delete;
  ReplaceSteps& operator=(const ReplaceSteps&) = delete;
  virtual ~ReplaceSteps() = default;

  // Whether a file may be written, without writing to it, and its mode's bits. Nothing where it is
  // missing.
  virtual int AskToWrite(const std::string& name, std::optional<unsigned>& mode);
  // Makes an empty file, or empties the one that is there, and gives it that mode, or a new file's.
  virtual int Create(const std::string& name, std::optional<unsigned> mode, int& file);
  // Writes a part of the bytes, and says how large a part.
  virtual int Write(int file, const char* bytes, size_t size, size_t& written);
  virtual int Flush(int file);
  virtual int Close(int file);
  virtual int Rename(const std::string& from, const std::string& to);
  // Flushes the names that a folder holds.
  virtual int FlushFolder(const std::string& folder);
  virtual int Delete(const std::string& name);
};

// What ReplaceFileDurably does, by these steps.
std::string ReplaceFileBySteps(const std::filesystem::path& path, const std::string& bytes,
                               ReplaceSteps& steps);

}  // namespace orvane
