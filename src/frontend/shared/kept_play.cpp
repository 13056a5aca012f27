#include "src/frontend/shared/kept_play.h"

#include <utility>

#include "src/game/program.h"
#include "src/platform/path_text.h"

namespace orvane {

KeptPlay::KeptPlay(const Services& services, const std::optional<std::filesystem::path>& record,
                   std::filesystem::path after_error)
    : recorder_(services), record_(record), after_error_(std::move(after_error)) {
  if (record_) file_.open(*record_, std::ios::binary | std::ios::trunc);
}

void KeptPlay::Watch(Program& program) {
  program_ = &program;
  recorder_.Watch(program);
  program.SetWatcher(this);
  Went();
}

// The event stands in the file before it is carried out: whatever becomes of the process, the
// replay leads there.
void KeptPlay::Comes(const PlayEvent& event) {
  recorder_.Comes(event);
  Write();
}

void KeptPlay::Went() {
  recorder_.Went();
  FollowError();
  if (program_->HasEnded()) recorder_.Close(false);
  Write();
}

void KeptPlay::Finish() {
  recorder_.Close(false);
  Write();
}

void KeptPlay::Write() {
  if (!file_.is_open() || !recorder_.IsWhole()) return;
  const std::string& bytes = recorder_.Bytes();
  file_.seekp(static_cast<std::streamoff>(written_));
  file_.write(bytes.data() + written_, static_cast<std::streamsize>(bytes.size() - written_));
  file_.flush();
  written_ = recorder_.Settled();
}

// An error that has stopped the program: its box names the file that leads there.
void KeptPlay::FollowError() {
  const Stage& stage = program_->TheStage();
  if (told_ || stage.IsRunning() || stage.HasEnded()) return;
  told_ = true;
  recorder_.Close(true);
  if (!recorder_.IsWhole()) return;
  const std::filesystem::path& path = record_ ? *record_ : after_error_;
  if (!record_ && !path.empty()) file_.open(path, std::ios::binary | std::ios::trunc);
  if (!file_.is_open()) return;
  Write();
  if (file_) program_->TheStage().AddNote("ここまでの操作の記録：\n" + TextOf(path));
}

}  // namespace orvane
