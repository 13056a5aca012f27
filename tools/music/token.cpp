#include "tools/music/token.h"

#include <array>
#include <cctype>
#include <sstream>
#include <stdexcept>

namespace orvane::music {
namespace {

class TokenReader {
 public:
  explicit TokenReader(std::string_view text) : text_(text) {}

  Token Read() {
    while (Take('(')) token_.OpensSlur = true;
    if (Take('[')) {
      while (!Take(']')) {
        if (!Take(' ')) token_.Tones.push_back(ReadTone());
      }
    } else if (Take('*')) {
      token_.whole_chord = true;
    } else if (!Take('r')) {
      token_.Tones.push_back(ReadTone());
    }
    ReadLength();
    while (at_ < text_.size()) ReadMark();
    return token_;
  }

 private:
  [[noreturn]] void Fail() const { throw std::invalid_argument("no note: " + std::string(text_)); }

  bool Take(char c) {
    if (at_ >= text_.size()) {
      if (c == ']') Fail();
      return false;
    }
    if (text_[at_] != c) return false;
    ++at_;
    return true;
  }

  bool Digit() const {
    return at_ < text_.size() && std::isdigit(static_cast<unsigned char>(text_[at_])) != 0;
  }

  int ReadDigits() {
    int value = 0;
    while (Digit() && value < 1000) value = value * 10 + (text_[at_++] - '0');
    return value;
  }

  Tone ReadTone() {
    Tone tone;
    if (Take('@')) {
      // One digit only, so that a length can follow after a colon-free "@1" in a chord: @1:8.
      if (!Digit()) Fail();
      tone.Kind = ToneKind::Voice;
      tone.Voice = text_[at_++] - '0';
      if (tone.Voice < 1) Fail();
      Take(':');
    } else if (Take('R') || Take('T') || Take('F') || Take('S')) {
      tone.Kind = ToneKind::Bass;
      tone.Degree = text_[at_ - 1];
    } else {
      if (at_ >= text_.size() || std::islower(static_cast<unsigned char>(text_[at_])) == 0) Fail();
      tone.Semitone = ReadSemitone(text_, at_);
    }
    for (;;) {
      if (Take('\'')) {
        ++tone.Octaves;
      } else if (Take(',')) {
        --tone.Octaves;
      } else {
        return tone;
      }
    }
  }

  void ReadLength() {
    if (!Digit()) return;
    const int divisor = ReadDigits();
    if (divisor == 0 || kWhole % divisor != 0) Fail();
    token_.Length = kWhole / divisor;
    if (Take('.')) token_.Length += token_.Length / 2;
  }

  void ReadMark() {
    if (Take('!')) {
      token_.touch = Touch::Staccato;
    } else if (Take('_')) {
      token_.touch = Touch::Tenuto;
    } else if (Take('>')) {
      token_.Stress += 10;
    } else if (Take('^')) {
      token_.Stress += 20;
    } else if (Take('?')) {
      token_.Stress -= 14;
    } else if (Take(')')) {
      token_.ClosesSlur = true;
    } else if (Take('~')) {
      token_.Tied = true;
    } else {
      Fail();
    }
  }

  std::string_view text_;
  size_t at_ = 0;
  Token token_;
};

}  // namespace

Token ReadToken(std::string_view text) {
  return TokenReader(text).Read();
}

double ReadDynamic(std::string_view name) {
  struct Level {
    std::string_view Name;
    double Velocity;
  };
  static constexpr std::array<Level, 8> levels = {{{"ppp", 26},
                                                   {"pp", 38},
                                                   {"p", 50},
                                                   {"mp", 62},
                                                   {"mf", 75},
                                                   {"f", 88},
                                                   {"ff", 101},
                                                   {"fff", 114}}};
  for (const Level& level : levels) {
    if (level.Name == name) return level.Velocity;
  }
  throw std::invalid_argument("no dynamic: " + std::string(name));
}

std::vector<std::string> Unfolded(const std::vector<std::string>& tokens) {
  std::vector<std::string> out;
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].front() != '{') {
      if (tokens[i].find_first_of("{}") != std::string::npos) {
        throw std::invalid_argument("a } without its {");
      }
      out.push_back(tokens[i]);
      continue;
    }
    std::vector<std::string> group;
    std::string token = tokens[i].substr(1);
    size_t close = token.find('}');
    while (close == std::string::npos) {
      if (!token.empty()) group.push_back(token);
      if (++i == tokens.size()) throw std::invalid_argument("a { without its }");
      token = tokens[i];
      close = token.find('}');
    }
    if (close > 0) group.push_back(token.substr(0, close));
    int times = 0;
    std::istringstream(token.substr(close + 1)) >> times;
    if (times < 1 || times > 64) throw std::invalid_argument("a group needs its count: {...}2");
    for (int n = 0; n < times; ++n) out.insert(out.end(), group.begin(), group.end());
  }
  return out;
}

}  // namespace orvane::music
