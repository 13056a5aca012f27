#include "src/frontend/shared/texts/lettered_sheets.h"

#include <string>

#include "src/core/sheets.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {
namespace {

struct LetteredSheet {
  const char* Screen = "";
  const char* Picture = "";
  const char* Sheet = "";
};

constexpr LetteredSheet kLetteredSheets[] = {{"Ending", "Picture1", "credits"}};

}  // namespace

void LetterSheets(const Stage& stage, const Translator& texts) {
  for (const LetteredSheet& each : kLetteredSheets) {
    const Screen* screen = stage.Find(each.Screen);
    if (screen == nullptr || !screen->IsVisible()) continue;
    const std::string name = std::string(each.Sheet) + '_' + texts.Language();
    const Surface& sheet = Sheet(HasSheet(name) ? name : each.Sheet);
    auto& picture = static_cast<PictureBox&>(*screen->Find(each.Picture));
    if (!picture.Picture.SharesPixelsWith(sheet)) picture.Picture = sheet;
  }
}

}  // namespace orvane
