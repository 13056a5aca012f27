#include "bench/headless_services.h"

namespace orvane::bench {
namespace {

// The first row of the target list that is not struck out.
int LivingRow(const ListBox& targets) {
  int row = 1;
  while (targets.List(row) == "×") ++row;
  return row;
}

}  // namespace

void WalkIntoBattle(HeadlessGame& game) {
  Program& program = game.TheProgram();
  auto& walk = game.Get<Timer>("Main", "Timer1");
  const Screen* battle = program.TheStage().Find("Battle");
  bool left = false;
  for (int step = 0; !battle->IsVisible(); ++step) {
    if (step % 8 == 0) {
      program.KeyUp(left ? Direction::Left : Direction::Right);
      left = !left;
      program.KeyDown(left ? Direction::Left : Direction::Right);
    }
    program.Tick(walk);
  }
}

int FightBySword(HeadlessGame& game) {
  Program& program = game.TheProgram();
  State& state = game.TheState();
  for (int hero = 0; hero < 2; ++hero) {
    state.HP[hero] = state.MaxHP[hero] = 9999;
    state.BaseAttack[hero] = 12;
    state.Level[hero] = 1;
    state.Exp[hero] = 0;
  }
  WalkIntoBattle(game);
  auto& panel = game.Get<PictureBox>("Battle", "Picture10");
  auto& targets = game.Get<ListBox>("Battle", "List2");
  auto& action = game.Get<Timer>("Battle", "Timer1");
  int actions = 0;
  while (!panel.Visible) {
    program.Click(game.Get<CommandButton>("Battle", "Command1"));
    program.Choose(targets, LivingRow(targets));
    while (action.IsEnabled()) program.Tick(action);
    ++actions;
  }
  program.Click(game.Get<PictureBox>("Battle", "Picture1"));
  return (actions + 1) / 2;
}

}  // namespace orvane::bench
