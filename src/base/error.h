// What bad data, found by a checked type, ends the program with.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace orvane {

// Why a run-time error ends the program.
enum class ErrorKind {
  Overflow,   // a 16- or 32-bit value would leave its range
  Subscript,  // an index outside its array
  File,       // a file missing, too short or not writable
  Type,       // text where a number must stand
};

// A run-time error. `Subject` names the value or the file concerned, for the error box.
class RunError : public std::exception {
 public:
  RunError(ErrorKind kind, std::string subject) : Kind(kind), Subject(std::move(subject)) {}
  const char* what() const noexcept override { return Subject.c_str(); }

  ErrorKind Kind;
  std::string Subject;
};

// The text of the error box for an error, in Japanese.
std::string ErrorText(const RunError& error);

// A short English name for a kind: "overflow", "subscript", "file" or "type".
const char* ErrorKindName(ErrorKind kind);

}  // namespace orvane
