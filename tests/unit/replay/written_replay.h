// A replay written by hand, byte by byte as format.h tells, to put anything into it.
#pragma once

#include <map>
#include <string>

#include "src/replay/bytes.h"
#include "src/replay/format.h"

namespace orvane::test {

class WrittenReplay {
 public:
  WrittenReplay() = default;
  WrittenReplay(const WrittenReplay& other)
      : bytes_(other.bytes_), names_(other.names_), timers_(other.timers_) {}
  WrittenReplay& operator=(const WrittenReplay&) = delete;

  WrittenReplay& Put(Mark mark) {
    out_.Byte(static_cast<unsigned>(mark));
    return *this;
  }
  WrittenReplay& Byte(unsigned byte) {
    out_.Byte(byte);
    return *this;
  }
  WrittenReplay& Number(uint64_t number) {
    out_.Number(number);
    return *this;
  }
  WrittenReplay& Signed(int64_t number) {
    out_.Signed(number);
    return *this;
  }
  WrittenReplay& Fixed64(uint64_t number) {
    out_.Fixed64(number);
    return *this;
  }
  WrittenReplay& Float(float number) {
    out_.Float(number);
    return *this;
  }
  WrittenReplay& Double(double number) {
    out_.Double(number);
    return *this;
  }
  WrittenReplay& Text(std::string_view text) {
    out_.Text(text);
    return *this;
  }
  WrittenReplay& Name(const std::string& name) {
    const auto [at, is_new] = names_.try_emplace(name, names_.size());
    out_.Number(at->second);
    if (is_new) out_.Text(name);
    return *this;
  }
  // The note of a file that is read, with its bytes.
  WrittenReplay& File(const std::string& name, const std::string& bytes) {
    return Put(Mark::FileBytes).Name(name).Text(bytes);
  }
  // One tick of a timer that is named first.
  WrittenReplay& Tick(const std::string& screen, const std::string& timer) {
    return Put(Mark::Timer).Name(screen).Name(timer).Byte(kTicks | timers_++ << kTimerShift);
  }

  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_ = std::string(kReplayHead) + "version 0\n";
  ByteWriter out_{bytes_};
  std::map<std::string, uint64_t> names_;
  unsigned timers_ = 0;
};

}  // namespace orvane::test
