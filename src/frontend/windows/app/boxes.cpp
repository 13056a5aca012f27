#include "src/frontend/windows/app/boxes.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "src/frontend/windows/windows/windows.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {

const BoxWindow* MessageBoxes::Front() const {
  return shown_.empty() ? nullptr : shown_.rbegin()->second.get();
}

void MessageBoxes::Follow(const Stage& stage, HWND owner, const std::function<void()>& enable) {
  const auto stands = [&stage](int number) {
    return std::any_of(stage.Boxes().begin(), stage.Boxes().end(),
                       [number](const StandingBox& box) { return box.Number == number; });
  };
  std::vector<std::unique_ptr<BoxWindow>> gone;
  for (auto each = shown_.begin(); each != shown_.end();) {
    if (stands(each->first)) {
      ++each;
    } else {
      gone.push_back(std::move(each->second));
      each = shown_.erase(each);
    }
  }
  if (gone.empty() && stage.Boxes().size() == shown_.size()) return;
  const bool in_front = IsInFront() || owner == nullptr;
  for (const StandingBox& box : stage.Boxes()) {
    if (shown_.contains(box.Number)) continue;
    const HWND under = Front() != nullptr ? Front()->Handle() : owner;
    shown_[box.Number] = std::make_unique<BoxWindow>(box.Shown, texts_, under, in_front, answer_);
  }
  const BoxWindow* front = Front();
  for (const auto& [number, box] : shown_) {
    EnableWindow(box->Handle(), box.get() == front ? TRUE : FALSE);
  }
  enable();
  if (front != nullptr && in_front) front->ComeToFront();
  // Windows behind may belong to a box that goes; the newest goes first.
  while (!gone.empty()) gone.pop_back();
}

void MessageBoxes::Retranslate() const {
  for (const auto& [number, box] : shown_) box->Retranslate();
}

void ShowProblem(const std::string& sentence) {
  MessageBoxW(nullptr, Wide(sentence).c_str(), L"Orvane", MB_OK | MB_SETFOREGROUND);
}

}  // namespace orvane
