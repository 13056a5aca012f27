#include "src/ui/box.h"

namespace orvane {

bool Offers(BoxButtons buttons, BoxAnswer answer) {
  switch (buttons) {
    case BoxButtons::Ok:
      return answer == BoxAnswer::Ok;
    case BoxButtons::OkCancel:
      return answer == BoxAnswer::Ok || answer == BoxAnswer::Cancel;
    case BoxButtons::YesNo:
      break;
  }
  return answer == BoxAnswer::Yes || answer == BoxAnswer::No;
}

BoxAnswer AnswerOfClosing(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::Ok:
      break;
    case BoxButtons::OkCancel:
      return BoxAnswer::Cancel;
    case BoxButtons::YesNo:
      return BoxAnswer::No;
  }
  return BoxAnswer::Ok;
}

std::string ShownText(const Box& box) {
  return box.Note.empty() ? box.Text : box.Text + "\n\n" + box.Note;
}

}  // namespace orvane
