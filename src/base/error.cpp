#include "src/base/error.h"

namespace orvane {

std::string ErrorText(const RunError& error) {
  const char* what = "";
  switch (error.Kind) {
    case ErrorKind::Overflow:
      what = "数値が範囲を超えました。";
      break;
    case ErrorKind::Subscript:
      what = "番号が範囲を超えました。";
      break;
    case ErrorKind::File:
      what = "ファイルを読み書きできません。";
      break;
    case ErrorKind::Type:
      what = "数値のところに数値でないものがあります。";
      break;
  }
  return std::string("エラーのため終了します。\n") + what + "\n" + error.Subject;
}

const char* ErrorKindName(ErrorKind kind) {
  switch (kind) {
    case ErrorKind::Overflow:
      return "overflow";
    case ErrorKind::Subscript:
      return "subscript";
    case ErrorKind::File:
      return "file";
    case ErrorKind::Type:
      break;
  }
  return "type";
}

}  // namespace orvane
