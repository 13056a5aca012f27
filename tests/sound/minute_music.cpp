#include <algorithm>
#include <cmath>
#include <cstdio>

#include "src/platform/sound_channels.h"
#include "src/platform/whole_file.h"
#include "src/sound/song.h"
#include "tests/sound/finding.h"
#include "tests/sound/listening.h"
#include "tests/sound/minute.h"

namespace orvane::test {
namespace {

constexpr double kFieldGap = 0.05;
constexpr double kBattleGap = 0.12;
// Quieter than that, on both sides, nothing is heard beside what came before.
constexpr double kSilence = 0.002;
// How much of a round is looked for in the next one, and how far around its place, in seconds.
constexpr double kKnown = 2;
constexpr double kReach = 0.2;
// What still rings when a piece begins is gone by then, in seconds.
constexpr double kRung = 2;

// A piece from its opening to its closing.
struct Session {
  std::string Channel;
  std::vector<double> Plays;
  double Closes = 0;
  double Sounds = 0;  // when the piece is heard by itself
};

bool IsField(const std::string& channel) {
  return channel == "bgm1" || channel == "bgm2" || channel == "bgm3" || channel == "bgm8";
}

std::vector<Session> CollectSessions(const std::vector<Note>& notes, double end) {
  std::vector<Session> sessions;
  for (const Note& note : notes) {
    if (note.Name.rfind("bgm", 0) != 0) continue;
    if (note.Verb == "open") sessions.push_back({note.Name, {}, end, 0});
    const auto open =
        std::find_if(sessions.rbegin(), sessions.rend(),
                     [&note](const Session& each) { return each.Channel == note.Name; });
    if (open == sessions.rend()) continue;
    if (note.Verb == "play") open->Plays.push_back(note.At);
    if (note.Verb == "close") open->Closes = note.At;
  }
  return sessions;
}

double LengthOf(const std::string& path) {
  const std::string bytes = ReadWholeFile(path).value_or("");
  const auto song = ReadSong(std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
  return song ? song->Seconds : 0;
}

// Whether nothing but music is asked for between the times.
bool IsPlain(const std::vector<Note>& notes, double from, double to) {
  return std::none_of(notes.begin(), notes.end(), [from, to](const Note& note) {
    return note.Verb == "play" && note.Name.rfind("snd", 0) == 0 && note.At > from && note.At < to;
  });
}

int JudgeRounds(const Minute& minute, const Session& session, int& judged) {
  const double length = LengthOf(minute.Sounds + "/" + SoundFile(session.Channel));
  const double limit = IsField(session.Channel) ? kFieldGap : kBattleGap;
  const Recording part = minute.Heard.Part(session.Sounds, session.Sounds + kKnown);
  int faults = 0;
  for (size_t round = 1; round < session.Plays.size(); ++round) {
    const double due = session.Sounds + static_cast<double>(round) * length;
    const double done = due + kKnown + kReach;
    if (done > session.Closes || !IsPlain(minute.Noted.All, session.Plays[round] - 3, done))
      continue;
    const Finding found = Find(minute.Heard.Left, minute.Heard.Rate, part.Left, due - kReach,
                               due + kReach, session.Sounds + kKnown);
    const bool is_there = found.Gain > 0.3 && found.Gain > 1.5 * found.Doubt;
    const bool good = is_there && std::fabs(found.At - due) <= limit;
    std::printf("%s%s begins again %.1f ms from its end, after %.3f s (gain %.2f, doubt %.2f)\n",
                good ? "" : "FAULT ", session.Channel.c_str(), (found.At - due) * 1000,
                session.Plays[round], found.Gain, found.Doubt);
    if (!good) ++faults;
    ++judged;
  }
  return faults;
}

int JudgeGaps(const Minute& minute, Session& session) {
  const double limit = IsField(session.Channel) ? kFieldGap : kBattleGap;
  const Recording part = minute.Heard.Part(session.Plays[0], session.Closes);
  const auto onsets = FindOnsets(part, kSilence);
  // What rings on from the piece before is no silence either.
  const bool rings = part.Left.empty() || std::fabs(part.Left[0]) >= kSilence;
  const double begins = rings || onsets.empty() ? 0 : onsets[0];
  session.Sounds = session.Plays[0] + begins + (rings ? kRung : 0);
  int faults = 0;
  for (const Gap& gap : FindGaps(part.Part(begins, part.Seconds()), limit, kSilence)) {
    std::printf("FAULT %s is missing for %.0f ms at %.3f s\n", session.Channel.c_str(),
                gap.Seconds * 1000, session.Plays[0] + begins + gap.From);
    ++faults;
  }
  std::printf("%s sounds from %.2f to %.2f s, first %.2f s after it was asked for\n",
              session.Channel.c_str(), session.Plays[0] + begins, session.Closes, begins);
  return faults;
}

}  // namespace

int JudgeMusic(const Minute& minute) {
  int faults = 0;
  int field_rounds = 0;
  int battle_rounds = 0;
  int sessions = 0;
  for (Session& session : CollectSessions(minute.Noted.All, minute.Heard.Seconds())) {
    if (session.Plays.empty()) continue;
    ++sessions;
    faults += JudgeGaps(minute, session);
    faults += JudgeRounds(minute, session, IsField(session.Channel) ? field_rounds : battle_rounds);
  }
  if (sessions == 0) {
    std::printf("FAULT no piece was asked for\n");
    ++faults;
  }
  if (!minute.Once && (field_rounds == 0 || battle_rounds == 0)) {
    std::printf("FAULT no piece began again in the %s\n", field_rounds == 0 ? "field" : "battle");
    ++faults;
  }
  for (const Click& click : FindClicks(minute.Heard)) {
    std::printf("FAULT click of %.3f at %.3f s, %.0f times sharper than around it\n", click.Leap,
                click.At, click.Sharpness);
    ++faults;
  }
  return faults;
}

}  // namespace orvane::test
