#include "src/frontend/shared/box_captions.h"

namespace orvane {
namespace {

constexpr BoxChoice kOk[] = {{"OK", BoxAnswer::Ok}};
constexpr BoxChoice kOkCancel[] = {{"OK", BoxAnswer::Ok}, {"キャンセル", BoxAnswer::Cancel}};
constexpr BoxChoice kYesNo[] = {{"はい", BoxAnswer::Yes}, {"いいえ", BoxAnswer::No}};

}  // namespace

std::span<const BoxChoice> ChoicesOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::OkCancel:
      return kOkCancel;
    case BoxButtons::YesNo:
      return kYesNo;
    case BoxButtons::Ok:
      break;
  }
  return kOk;
}

}  // namespace orvane
