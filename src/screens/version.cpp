#include "src/screens/version.h"

#include "src/core/sheets.h"

namespace orvane {

VersionScreen::VersionScreen(Game& game)
    : Screen(game.stage, "Version", "バージョン情報", 275, 136),
      Icon(*this, "picIcon", {8, 8, 32, 32}, {Sheet("icon_32")}),
      TitleLabel(*this, "lblTitle", {8, 8, 259, 32},
                 {"Orvane", 0, {kMincho, 20, true}, Align::Centre}),
      VersionLabel(*this, "lblVersion", {104, 40, 83, 15}, {"Ver：1.04"}),
      Description(*this, "lblDescription", {8, 55, 263, 49},
                  {"村や町がないRPGです。特にバトルシーンに時間をかけました。プレイ後、是非ご感"
                   "想など下さい。"
                   "２もできれば作る予定ですので、お楽しみに。"}),
      OKButton(*this, "cmdOK", {88, 104, 92, 23}, {"OK"}) {
  OKButton.OnClick = [this] { TheStage().Unload(*this); };
}

}  // namespace orvane
