#include "bench/headless_services.h"

namespace orvane::bench {

float FixedLuck::Draw() {
  state_ = state_ * 1664525u + 1013904223u;
  return static_cast<float>(state_ >> 8) / static_cast<float>(1u << 24);
}

HeadlessGame::HeadlessGame() {
  program_ = std::make_unique<Program>(Services{sound_, luck_, files_});
  program_->Click(Get<CommandButton>("Main", "Command1"));
  program_->EnterText(Get<TextBox>("InputName", "Text1(0)"), "カイ");
  program_->EnterText(Get<TextBox>("InputName", "Text1(1)"), "リナ");
  program_->Click(Get<CommandButton>("InputName", "OKButton"));
  for (int line = 0; line < 20; ++line) program_->Click(Get<PictureBox>("Main", "Picture1"));
}

}  // namespace orvane::bench
