#include "src/screens/heroes.h"

#include <string>

#include "src/core/hero_numbers.h"
#include "src/core/sheets.h"

namespace orvane {
namespace {

constexpr int kSkills = 10;
constexpr double kSkillFontSize = 11;

constexpr const char* kStatusCaptions[] = {"LV ：",     "HP ：",     "MP ：",
                                           "MAXHP ：",  "MAXMP ：",  "攻撃力 ：",
                                           "守備力 ：", "精神力 ：", "経験値 ："};
constexpr const char* kEquipmentCaptions[] = {"武器 ：", "防具 ：", "本  ："};

constexpr Place kFacePlace{16, 40, 84, 84};
constexpr Place kStatusPlace{8, 128, 137, 169};
constexpr Place kEquipmentPlace{8, 304, 161, 81};
constexpr Place kNextLevelPlace{176, 40, 217, 41};
constexpr Place kSkillsPlace{176, 96, 217, 289};
constexpr Place kClosePlace{152, 400, 81, 25};

// A face of 48 by 48 in the corner of a picture with room for the enlarged one.
Surface FaceSurface(const char* name) {
  Surface surface(80, 80, Rgb(192, 192, 192));
  BitBlt(surface, 0, 0, 48, 48, Sheet(name), 0, 0, Blit::Copy);
  return surface;
}

void EnlargeFace(PictureBox& box) {
  StretchBlt(box.Picture, {0, 0, 80, 80}, box.Picture, {0, 0, 48, 48}, Blit::Copy);
  box.Picture.Refresh();
}

}  // namespace

HeroesScreen::HeroesScreen(Game& game)
    : Screen(game.stage, "Chardata", "キャラデータ", 403, 444),
      HeroTabs(*this, "SSTab1", {0, 0, 401, 441}, {{"", ""}, {true, true}}),
      ManFace(PaneOf(HeroTabs, 0), "Picture1", kFacePlace, {FaceSurface("face_man"), 2}),
      WomanFace(PaneOf(HeroTabs, 1), "Picture2", kFacePlace, {FaceSurface("face_woman"), 2}),
      ManStatus(PaneOf(HeroTabs, 0), "Frame3", kStatusPlace, {"ステータス"}),
      ManEquipment(PaneOf(HeroTabs, 0), "Frame1", kEquipmentPlace, {"装備"}),
      ManNextLevel(PaneOf(HeroTabs, 0), "Frame7", kNextLevelPlace, {"次のレベルまであと"}),
      ManTechniques(PaneOf(HeroTabs, 0), "Frame2", kSkillsPlace, {"技"}),
      WomanStatus(PaneOf(HeroTabs, 1), "Frame4", kStatusPlace, {"ステータス"}),
      WomanEquipment(PaneOf(HeroTabs, 1), "Frame5", kEquipmentPlace, {"装備"}),
      WomanNextLevel(PaneOf(HeroTabs, 1), "Frame8", kNextLevelPlace, {"次のレベルまであと"}),
      WomanSpells(PaneOf(HeroTabs, 1), "Frame6", kSkillsPlace, {"魔法"}),
      ManClose(PaneOf(HeroTabs, 0), "Command1", kClosePlace, {"閉じる"}),
      WomanClose(PaneOf(HeroTabs, 1), "Command2", kClosePlace, {"閉じる"}),
      game_(game) {
  AddPane(0);
  AddPane(1);
  BackButtons = {&ManClose, &WomanClose};
  ManClose.OnClick = WomanClose.OnClick = [this] { TheStage().Unload(*this); };
}

HeroesScreen::Pane HeroesScreen::PaneOfHero(int hero) {
  if (hero == 0)
    return {ManStatus, ManEquipment,  ManNextLevel,   ManTechniques,  ManStatusValues,
            ManWorn,   ManSkillNames, ManSkillCounts, ManSkillMasters};
  return {WomanStatus, WomanEquipment,  WomanNextLevel,   WomanSpells,      WomanStatusValues,
          WomanWorn,   WomanSkillNames, WomanSkillCounts, WomanSkillMasters};
}

void HeroesScreen::AddCaption(const Holder& holder, const Place& place, const char* text) {
  captions_.push_back(std::make_unique<Label>(holder, "", place, LabelValues{text}));
}

void HeroesScreen::AddPane(int hero) {
  const Pane pane = PaneOfHero(hero);
  int row = 0;
  for (const char* caption : kStatusCaptions) {
    // The frame is 169 high: nine rows of 16 end at its lower edge when they begin at 24.
    const double top = 24 + 16 * row;
    AddCaption(pane.Status, {8, top, 55, 16}, caption);
    pane.StatusValues.Add(row++, pane.Status, Place{64, top, 65, 16});
  }
  row = 0;
  for (const char* caption : kEquipmentCaptions) {
    const double top = 16 + 20 * row;
    AddCaption(pane.Equipment, {8, top, 39, 17}, caption);
    pane.Worn.Add(row++, pane.Equipment, Place{48, top, 109, 17});
  }
  ExperienceToNext.Add(hero, pane.NextLevel, Place{hero == 0 ? 16.0 : 8.0, 16, 129, 17});
  AddCaption(pane.NextLevel, {152, 16, 57, 17}, "ポイント");
  AddCaption(pane.Skills, {32, 16, 65, 17}, hero == 0 ? "技名" : "魔法名");
  AddCaption(pane.Skills, {136, 16, 57, 17}, "熟練度");
  for (int skill = 0; skill < kSkills; ++skill) {
    const double top = 48 + 24 * skill;
    pane.SkillNames.Add(skill, pane.Skills, Place{8, top, 105, 17});
    pane.SkillCounts.Add(skill, pane.Skills, Place{120, top, 41, 17}).Alignment = Align::Right;
    pane.SkillMasters.Add(skill, pane.Skills, Place{152, top, 57, 17}).Alignment = Align::Right;
  }
}

void HeroesScreen::OnLoad() {
  EnlargeFace(ManFace);
  EnlargeFace(WomanFace);
}

void HeroesScreen::OnActivate(bool) {
  const State& state = game_.state;
  SumUp(game_.state);
  for (int hero = 0; hero < 2; ++hero) {
    const double missing = ExperienceToLeave(hero, state.Level[hero]) - state.Exp[hero] * 1.0;
    ExperienceToNext[hero].Caption = std::to_string(static_cast<long long>(missing));
    HeroTabs.SetTabCaption(hero, state.HeroName[hero].Trimmed());
  }
  ShowTechniques();
  ShowSpells();
}

void HeroesScreen::OnUnload() {
  game_.Main.WalkTimer.SetEnabled(true);
}

void HeroesScreen::ShowTechniques() {
  const State& state = game_.state;
  ShowStatus(0);
  ShowSkills(0, state.WazaKnown, state.WazaUse, state.WazaMaster, state.WazaName);
}

void HeroesScreen::ShowSpells() {
  const State& state = game_.state;
  ShowStatus(1);
  ShowSkills(1, state.MagicKnown, state.MagicUse, state.MagicMaster, state.MagicName);
}

void HeroesScreen::ShowStatus(int hero) {
  const State& state = game_.state;
  const Pane pane = PaneOfHero(hero);
  const int values[] = {state.Level[hero],   state.HP[hero],     state.MP[hero],
                        state.MaxHP[hero],   state.MaxMP[hero],  state.Attack[hero],
                        state.Defence[hero], state.Spirit[hero], state.Exp[hero]};
  int row = 0;
  for (const int value : values) pane.StatusValues[row++].Caption = std::to_string(value);
  pane.Worn[0].Caption = state.WeaponName[hero].Full();
  pane.Worn[1].Caption = state.ArmourName[hero].Full();
  pane.Worn[2].Caption = state.BookName[hero].Full();
}

void HeroesScreen::ShowSkills(int hero, const Array<Int16, 11>& known, const Array<Int16, 11>& use,
                              const Array<Int16, 11>& master, const Array<std::string, 11>& names) {
  const Pane pane = PaneOfHero(hero);
  for (int skill = 0; skill < kSkills; ++skill) {
    if (known[skill] != kTrue) continue;
    const bool mastered = use[skill] >= master[skill];
    pane.SkillMasters[skill].Caption = mastered ? "MASTER" : "/" + std::to_string(master[skill]);
    pane.SkillCounts[skill].Caption = mastered ? "★" : std::to_string(use[skill]);
    pane.SkillNames[skill].Caption = names[skill];
    pane.SkillNames[skill].Face.Size = kSkillFontSize;
  }
}

}  // namespace orvane
