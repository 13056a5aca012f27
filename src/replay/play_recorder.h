// Records a play: what the player does, and what the program is given by its services. From these
// bytes it can be played again.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "src/game/play_event.h"
#include "src/platform/services.h"
#include "src/replay/bytes.h"
#include "src/replay/format.h"

namespace orvane {

class Program;

// A play is recorded from its start on, since nothing else can be gone back to: a few kB a minute.
class PlayRecorder : public PlayWatcher {
 public:
  // The services are those that a program would be given; they outlive the recorder.
  explicit PlayRecorder(const Services& services);
  PlayRecorder(const PlayRecorder&) = delete;
  PlayRecorder& operator=(const PlayRecorder&) = delete;

  // What the program is given instead. The recorder outlives the program.
  Services TheServices() { return {sound_, chance_, files_}; }
  // Tells which program it is, once it stands and before its first event.
  void Watch(Program& program) { program_ = &program; }

  void Comes(const PlayEvent& event) override;
  void Went() override;
  void Meddled() override { Stop(); }

  // Ends the record with the sum of all, and with the files of the game folder that were read if it
  // is meant for others, who may have different ones. Nothing is recorded from then on.
  void Close(bool with_contents);

  // Whether all that happened is there: not so when something was done that is no event, or once
  // the record has grown beyond what is kept.
  bool IsWhole() const { return whole_; }
  // The replay. Its bytes before Settled stay as they are.
  const std::string& Bytes() const { return bytes_; }
  size_t Settled() const { return ticks_ != 0 ? bytes_.size() - 1 : bytes_.size(); }

 private:
  class SoundTap : public SoundDevice {
   public:
    SoundTap(PlayRecorder& recorder, SoundDevice& device) : recorder_(recorder), device_(device) {}
    std::string Send(const std::string& command) override;

   private:
    PlayRecorder& recorder_;
    SoundDevice& device_;
  };

  class ChanceTap : public Chance {
   public:
    ChanceTap(PlayRecorder& recorder, Chance& chance) : recorder_(recorder), luck_(chance) {}
    float Draw() override;
    void Reseed() override { luck_.Reseed(); }

   private:
    PlayRecorder& recorder_;
    Chance& luck_;
  };

  class FileTap : public Storage {
   public:
    FileTap(PlayRecorder& recorder, Storage& files) : recorder_(recorder), files_(files) {}
    std::string FolderName() const override { return files_.FolderName(); }
    std::optional<std::string> Read(const std::string& name) const override;
    std::shared_ptr<const std::string> Open(const std::string& name) const override;
    std::vector<std::string> List(const std::string& pattern) const override;
    void Replace(const std::string& name, const std::string& bytes, Outcome outcome) override;

   private:
    PlayRecorder& recorder_;
    Storage& files_;
  };

  // What is known of a file: its length and sum, or that there is none.
  struct Known {
    bool IsThere = false;
    size_t Length = 0;
    uint64_t Sum = 0;
    bool operator==(const Known&) const = default;
  };

  bool Records() const { return whole_ && !closed_; }
  void Stop();
  void Put(Mark mark) { out_.Byte(static_cast<unsigned>(mark)); }
  void PutName(const std::string& name);
  void PutControl(Mark mark, const PlayEvent& event);
  void PutTick(const PlayEvent& event);
  void BeginEvent();
  // Notes come behind all ticks so far.
  void BeginNote() { ticks_ = 0; }

  void NoteReply(const std::string& command, const std::string& reply);
  // `drawn` is how often the source had been drawn from before.
  void NoteDraw(float value, const SeededDraws* source, uint64_t drawn);
  void NoteFile(const std::string& name, const std::string* bytes);
  void NoteNames(const std::string& pattern, const std::vector<std::string>& names);
  void NoteSeed(float value, const SeededDraws& source, uint64_t drawn);
  // A replacement is over; `number` is that of one that waits.
  void Kept(int number, const std::string& failure, const Storage::Outcome& outcome);

  SoundTap sound_;
  ChanceTap chance_;
  FileTap files_;
  Program* program_ = nullptr;

  std::string bytes_;
  ByteWriter out_{bytes_};
  bool whole_ = true;
  bool closed_ = false;
  unsigned events_ = 0;  // since the last sum
  std::map<std::string, uint64_t> names_;
  std::vector<const Control*> timers_;
  const Control* ticking_ = nullptr;  // whose ticks the last byte counts
  unsigned ticks_ = 0;                // how many, 0 where it counts none

  unsigned commands_ = 0;  // of this event
  std::unordered_map<std::string, std::string> replies_;

  SeededDraws expected_;  // follows the source
  uint64_t seedings_ = 0;
  float next_ = 0;       // what it would draw
  uint64_t passed_ = 0;  // draws of this event since the last note

  std::map<std::string, Known> known_;
  std::map<std::pair<size_t, uint64_t>, std::string> contents_;  // by length and sum
  std::map<std::string, std::vector<std::string>> listed_;
  std::vector<int> waiting_;
  int replacements_ = 0;
};

}  // namespace orvane
