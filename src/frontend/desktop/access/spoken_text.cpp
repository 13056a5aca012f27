#include "src/frontend/desktop/access/spoken_text.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

#include "src/frontend/desktop/access/spoken_names.h"
#include "src/frontend/desktop/views/control_view.h"
#include "src/ui/reach.h"
#include "src/ui/screen.h"

namespace orvane {
namespace {

constexpr const char* Credits =
    "STAFF\n企画・脚本・プログラム\nグラフィック・マップ\n音楽・効果音\nSPECIAL THANKS\n"
    "テストプレイのみなさん\n道具を作ったみなさん\n龍の狭間の龍たち\n"
    "最後まで旅してくれたあなたへ\nありがとう　また会う日まで";

// An arrow that blinks says nothing.
bool HasWords(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar sign) { return sign.isLetterOrNumber(); });
}

QString LinesOn(const Screen& screen, const Control* holder) {
  QStringList lines;
  for (const Control* control : screen.Controls()) {
    if (control->Parent() != holder || control->Kind() != ControlKind::Label) continue;
    const QString text = ToQt(static_cast<const Label*>(control)->Caption).trimmed();
    if (!HasWords(text) || !IsShown(*control)) continue;
    const QString whose = SpokenName(*control);
    const QString line = whose.isEmpty() ? text : whose + "：" + text;
    // A title and its shadow are one.
    if (!lines.contains(line)) lines.append(line);
  }
  return lines.join('\n');
}

bool IsCaption(const Control& control) {
  return control.Kind() == ControlKind::Label &&
         ToQt(static_cast<const Label&>(control).Caption).trimmed().endsWith("：");
}

}  // namespace

QString SpokenText(const PictureBox& picture) {
  return IsShown(picture) ? LinesOn(picture.Owner(), &picture) : QString();
}

QString SpokenText(const Screen& screen) {
  QString words = LinesOn(screen, nullptr);
  const bool has_credits = screen.OwnSurface != nullptr;
  if (!has_credits) return words;
  return words.isEmpty() ? QString::fromUtf8(Credits) : words;
}

QString CaptionBeside(const Control& control) {
  if (control.Kind() != ControlKind::Label || IsCaption(control)) return {};
  const Control* nearest = nullptr;
  for (const Control* other : control.Owner().Controls()) {
    const bool beside = other->Parent() == control.Parent() && other->Pane() == control.Pane() &&
                        std::abs(other->Top() - control.Top()) < 1 &&
                        other->Left() < control.Left();
    if (!beside || !IsCaption(*other)) continue;
    if (nearest == nullptr || other->Left() > nearest->Left()) nearest = other;
  }
  if (nearest == nullptr) return {};
  return ToQt(static_cast<const Label*>(nearest)->Caption).trimmed();
}

}  // namespace orvane
