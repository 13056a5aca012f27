// How the tests of a run came out.
#pragma once

#include <string>

namespace orvane {

class Tally {
 public:
  void Pass() { ++passed_; }
  // Counts a failed test and prints the line that says why.
  void Fail(const std::string& line);
  // Notes a script that could not run to its end, and prints why.
  void Break(const std::string& line);

  // Prints the last line, "N passed, N failed".
  void PrintSum() const;
  // 0 when all tests have passed, 1 when one has failed, 2 when a script could not run.
  int ExitStatus() const;

 private:
  int passed_ = 0;
  int failed_ = 0;
  bool broken_ = false;
};

}  // namespace orvane
