#include "src/battle/skill_table.h"

#include <span>

#include "src/battle/scene/spell_animation.h"
#include "src/battle/scene/technique_animation.h"
#include "src/core/battle_state.h"

namespace orvane {
namespace {

// clang-format off
constexpr Skill kTechniques[] = {
    {"炎舞剣",            20,   4, Targets::One, techniques::FlameDance},
    {"氷岩断絶剣",        30,   8, Targets::One, techniques::IceCleaver},
    {"パワーブレイク",    50,  16, Targets::One, techniques::PowerBreak},
    {"大地の剣",         100,  24, Targets::One, techniques::EarthSword},
    {"召雷斬",           150,  32, Targets::One, techniques::ThunderCall},
    {"一刀両断",         180,  42, Targets::One, techniques::SingleStroke},
    {"ダークスラッシュ", 200,  50, Targets::One, techniques::DarkSlash},
    {"円陣斬",           250,  60, Targets::One, techniques::CircleCut},
    {"必殺撃",           300,  80, Targets::One, techniques::DeadlyBlow},
    {"奥義･真魔神斬",    500, 160, Targets::One, techniques::DemonGod},
};

// The eighth spell is cheaper than the two before it, on purpose.
constexpr Skill kSpells[] = {
    {"ファイヤーブレズ",    20,  10, Targets::One,    spells::FireBreath},
    {"絶対零度",            30,  16, Targets::One,    spells::AbsoluteZero},
    {"リフレッシュ",        50,  30, Targets::Heroes, spells::Refresh, Targets::One},
    {"アースクエイク",     100,  48, Targets::All,    spells::Earthquake},
    {"爆雷降臨",           150,  56, Targets::All,    spells::Thunderbolt},
    {"サンプレゼンター",   180,  70, Targets::All,    spells::SunPresenter},
    {"ダークプレッシャー", 200,  80, Targets::All,    spells::DarkPressure},
    {"風の癒し",           250,  60, Targets::Heroes, spells::HealingWind, Targets::All},
    {"アトミックボム",     300, 120, Targets::All,    spells::AtomicBomb},
    {"ジオ･スプリート",    500, 250, Targets::All,    spells::GeoSplit},
};
// clang-format on

const Skill* Find(std::span<const Skill> skills, int row) {
  const auto place = static_cast<size_t>(row - 1);
  return row >= 1 && place < skills.size() ? &skills[place] : nullptr;
}

}  // namespace

const Skill* FindTechnique(int row) {
  return Find(kTechniques, row);
}

const Skill* FindSpell(int row) {
  return Find(kSpells, row);
}

Targets TargetsOfSpell(int row) {
  const Skill* spell = FindSpell(row);
  return spell ? spell->At : Targets::One;
}

Targets StruckBySpell(int row) {
  const Skill* spell = FindSpell(row);
  return spell ? spell->Struck : Targets::One;
}

void FillTechniqueTable(BattleTables& tables) {
  int row = 0;
  for (const Skill& technique : kTechniques) {
    tables.WazaName[row] = technique.Name;
    tables.WazaMaster[row] = technique.Mastery;
    tables.WazaMP[row] = technique.Cost;
    ++row;
  }
}

void FillSpellTable(BattleTables& tables) {
  int row = 0;
  for (const Skill& spell : kSpells) {
    tables.MagicName[row] = spell.Name;
    tables.MagicMaster[row] = spell.Mastery;
    tables.MagicMP[row] = spell.Cost;
    ++row;
  }
}

}  // namespace orvane
