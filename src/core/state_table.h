// The fields of the state by name: one table serves the save files and every lookup by name.
//
// A visitor is called as visit(name, field), where a field is an Int16, an Int32, a FixedText, a
// std::string, or an Array of one of these.
#pragma once

#include "src/core/state.h"

namespace orvane {

// The record's fields in the order in which they stand in a save file.
template <class Record, class Visitor>
void VisitRecord(Record& record, Visitor&& visit) {
  visit("Round", record.Round);
  visit("SaveX", record.SaveX);
  visit("SaveY", record.SaveY);
  visit("Reserved1", record.Reserved1);
  visit("TreasureLeft", record.TreasureLeft);
  visit("TreasureNo", record.TreasureNo);
  visit("BookLeft", record.BookLeft);
  visit("BookNo", record.BookNo);
  visit("SaveMapA", record.SaveMapA);
  visit("SaveMapB", record.SaveMapB);
  visit("HeroName", record.HeroName);
  visit("Level", record.Level);
  visit("HP", record.HP);
  visit("MP", record.MP);
  visit("MaxHP", record.MaxHP);
  visit("MaxMP", record.MaxMP);
  visit("WeaponAttack", record.WeaponAttack);
  visit("ArmourDefence", record.ArmourDefence);
  visit("BookSkill", record.BookSkill);
  visit("Attack", record.Attack);
  visit("Defence", record.Defence);
  visit("BaseAttack", record.BaseAttack);
  visit("BaseDefence", record.BaseDefence);
  visit("Spirit", record.Spirit);
  visit("WazaKnown", record.WazaKnown);
  visit("MagicKnown", record.MagicKnown);
  visit("WazaUse", record.WazaUse);
  visit("MagicUse", record.MagicUse);
  visit("Reserved2", record.Reserved2);
  visit("WeaponName", record.WeaponName);
  visit("ArmourName", record.ArmourName);
  visit("BookName", record.BookName);
  visit("ItemCount", record.ItemCount);
  visit("Items", record.Items);
  visit("Exp", record.Exp);
  visit("StoryNo", record.StoryNo);
  visit("SaveName", record.SaveName);
  visit("SaveLevel", record.SaveLevel);
  visit("SaveRound", record.SaveRound);
}

// The shared fields and the battle's.
template <class Visitor>
void VisitRunning(State& state, Visitor&& visit) {
  visit("MapA", state.MapA);
  visit("MapB", state.MapB);
  visit("MapTile", state.MapTile);
  visit("HeroX", state.HeroX);
  visit("HeroY", state.HeroY);
  visit("HeroSpriteY", state.HeroSpriteY);
  visit("TileHere", state.TileHere);
  visit("TileUp", state.TileUp);
  visit("TileDown", state.TileDown);
  visit("TileLeft", state.TileLeft);
  visit("TileRight", state.TileRight);
  visit("KeyUp", state.KeyUp);
  visit("KeyDown", state.KeyDown);
  visit("KeyLeft", state.KeyLeft);
  visit("KeyRight", state.KeyRight);
  visit("KeyUpWaiting", state.KeyUpWaiting);
  visit("KeyDownWaiting", state.KeyDownWaiting);
  visit("KeyLeftWaiting", state.KeyLeftWaiting);
  visit("KeyRightWaiting", state.KeyRightWaiting);
  visit("LastKey", state.LastKey);
  visit("InBook", state.InBook);
  visit("BookReturnX", state.BookReturnX);
  visit("BookReturnY", state.BookReturnY);
  visit("GameStarted", state.GameStarted);
  visit("OpeningDone", state.OpeningDone);
  visit("BossFight", state.BossFight);
  visit("LastBossFight", state.LastBossFight);
  visit("LastBossDown", state.LastBossDown);
  visit("RecoveryShown", state.RecoveryShown);
  visit("OnRecovery", state.OnRecovery);
  visit("OnChest", state.OnChest);
  visit("FieldFrame", state.FieldFrame);
  visit("MessageFrame", state.MessageFrame);
  visit("StoryFrame", state.StoryFrame);
  visit("EncounterRoll", state.EncounterRoll);
  visit("MciStatus", state.MciStatus);
  visit("StoryText", state.StoryText);
  visit("HeroNameText", state.HeroNameText);
  visit("ItemRec.Name", state.ItemRec.Name);
  visit("ItemRec.Kind", state.ItemRec.Kind);
  visit("ItemRec.Value", state.ItemRec.Value);

  visit("EnemyKind", state.EnemyKind);
  visit("EnemyCount", state.EnemyCount);
  visit("EnemyLife", state.EnemyLife);
  visit("EnemyAlive", state.EnemyAlive);
  visit("ActionKind", state.ActionKind);
  visit("ActionState", state.ActionState);
  visit("HeroesActed", state.HeroesActed);
  visit("HeroBusy", state.HeroBusy);
  visit("HeroFainted", state.HeroFainted);
  visit("EnemyTurns", state.EnemyTurns);
  visit("BossMove", state.BossMove);
  visit("EnemyRoll", state.EnemyRoll);
  visit("AttackDamage", state.AttackDamage);
  visit("WazaDamage", state.WazaDamage);
  visit("MagicDamage", state.MagicDamage);
  visit("EnemyDamage", state.EnemyDamage);
  visit("HealAmount", state.HealAmount);
  visit("BreathDamage", state.BreathDamage);
  visit("MagicX", state.MagicX);
  visit("MagicY", state.MagicY);
  visit("MagicBossX", state.MagicBossX);
  visit("MagicBossY", state.MagicBossY);
  visit("WazaX", state.WazaX);
  visit("WazaY", state.WazaY);
  visit("WazaBossX", state.WazaBossX);
  visit("WazaBossY", state.WazaBossY);
}

// The constant tables, which only the routines that fill them may write.
template <class Tables, class Visitor>
void VisitTables(Tables& state, Visitor&& visit) {
  visit("WazaName", state.WazaName);
  visit("WazaMaster", state.WazaMaster);
  visit("WazaMP", state.WazaMP);
  visit("MagicName", state.MagicName);
  visit("MagicMaster", state.MagicMaster);
  visit("MagicMP", state.MagicMP);
  visit("EnemyName", state.EnemyName);
  visit("EnemyHP", state.EnemyHP);
  visit("EnemyAttack", state.EnemyAttack);
  visit("EnemyDefence", state.EnemyDefence);
  visit("EnemyExp", state.EnemyExp);
}

}  // namespace orvane
