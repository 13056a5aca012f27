#include "src/frontend/shared/spoken_names.h"

#include "src/ui/control.h"
#include "src/ui/screen.h"

namespace orvane {
namespace {

struct Spoken {
  const char* Screen = "";
  const char* Control = "";
  const char* Name = "";
};

constexpr Spoken kSpokenNames[] = {
    {"Main", "Picture1", "フィールド"},
    {"Main", "Picture5", "メッセージ"},
    {"Main", "Picture6", "二人の状態"},
    {"Main", "Label5(0)", "主人公（男）"},
    {"Main", "Label5(1)", "主人公（男）"},
    {"Main", "Label5(2)", "主人公（女）"},
    {"Main", "Label5(3)", "主人公（女）"},
    {"Main", "Picture7", "主人公（男）の顔"},
    {"Main", "Picture8", "主人公（女）の顔"},
    {"Main", "Picture9", "話している人の顔"},
    {"InputName", "Text1(0)", "主人公（男）の名前"},
    {"InputName", "Text1(1)", "主人公（女）の名前"},
    {"InputName", "Picture1", "主人公（男）の顔"},
    {"InputName", "Picture2", "主人公（女）の顔"},
    {"Battle", "Picture1", "戦闘の場面"},
    {"Battle", "Label15(0)", "敵１"},
    {"Battle", "Label15(1)", "敵２"},
    {"Battle", "Label15(2)", "敵３"},
    {"Battle", "Label15(3)", "敵４"},
    {"Battle", "Label15(4)", "敵"},
    {"Battle", "Label16(0)", "主人公（男）"},
    {"Battle", "Label16(1)", "主人公（女）"},
    {"Battle", "Picture9", "味方の名前"},
    {"Battle", "Picture10", "勝利"},
    {"Battle", "Picture13", "敵の名前"},
    {"Battle", "Picture4", "主人公（男）の顔"},
    {"Battle", "Picture5", "主人公（女）の顔"},
    {"Battle", "List1", "技と魔法"},
    {"Battle", "List2", "相手の敵"},
    {"Battle", "List3", "アイテム"},
    {"Battle", "List4", "使う相手"},
    {"Battle", "SSTab1", "二人の状態"},
    {"ItemUse", "Frame1", "使う相手"},
    {"Item", "List1", "アイテムリスト"},
    {"ItemUse", "Picture1", "主人公（男）の顔"},
    {"ItemUse", "Picture2", "主人公（女）の顔"},
    {"Wepon", "List1", "アイテムリスト"},
    {"Wepon", "SSTab1", "二人の装備"},
    {"Wepon", "Picture1", "主人公（男）の顔"},
    {"Wepon", "Picture2", "主人公（女）の顔"},
    {"Chardata", "SSTab1", "二人のデータ"},
    {"Chardata", "Picture1", "主人公（男）の顔"},
    {"Chardata", "Picture2", "主人公（女）の顔"},
    {"Custom", "Text1(0)", "主人公（男）の名前"},
    {"Custom", "Text1(1)", "主人公（女）の名前"},
    {"Custom", "Picture1(0)", "主人公（男）の顔"},
    {"Custom", "Picture1(1)", "主人公（女）の顔"},
    {"Custom", "Slider1", "バトルスピード"},
    {"Version", "picIcon", "Orvaneのアイコン"},
    {"Load", "File1", "ロードするファイル"},
    {"Load", "Picture1(0)", "主人公（男）の顔"},
    {"Load", "Picture1(1)", "主人公（女）の顔"},
    {"Save", "File1", "セーブするファイル"},
    {"Save", "Picture1(0)", "主人公（男）の顔"},
    {"Save", "Picture1(1)", "主人公（女）の顔"},
};

}  // namespace

std::string SpokenName(const Control& control) {
  for (const Spoken& each : kSpokenNames) {
    if (control.Owner().Name() == each.Screen && control.Name() == each.Control) {
      return each.Name;
    }
  }
  return {};
}

}  // namespace orvane
