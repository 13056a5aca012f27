// The actions of a battle: one row says all of each.
#pragma once

namespace orvane {

class BattleScreen;

// An action is played frame by frame, at even frames from 2 on. From the computing frame its
// numbers hop for ten frames, and its last frame closes it.
struct ActionRow {
  int Kind;            // what ActionKind says
  int ComputingFrame;  // where its result is computed
  int LastFrame;
  void (*Play)(BattleScreen& battle, const ActionRow& row);  // one frame
  void (*MoveNumbers)(BattleScreen& battle, int step);       // its numbers, one step on their hop
  void (*Compute)(BattleScreen& battle);                     // what it comes to, written over whom
  void (*Apply)(BattleScreen& battle);  // takes that off them at the end; null if it acts at once

  bool ShowsNumbers(int frame) const {
    return frame >= ComputingFrame && frame <= ComputingFrame + 18;
  }
};

// The row of a kind of action; null for a kind that is none.
const ActionRow* FindAction(int kind);

}  // namespace orvane
