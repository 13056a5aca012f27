// The game in a page: the program, what the page shows of it, its time, its keys.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "src/frontend/shared/chance.h"
#include "src/frontend/shared/focus_order.h"
#include "src/frontend/shared/kept_play.h"
#include "src/frontend/shared/pad_rules.h"
#include "src/frontend/shared/tick_times.h"
#include "src/frontend/shared/walking_keys.h"
#include "src/frontend/web/list_keys.h"
#include "src/frontend/web/mirror/mirror.h"
#include "src/frontend/web/services/page_sound.h"
#include "src/frontend/web/services/page_storage.h"
#include "src/game/program.h"

namespace orvane {

// Where the keyboard is in the page.
struct KeyFacts {
  bool PageHasKeys = true;  // the page is in front
  bool MenuIsOpen = false;  // a menu hangs from the menu bar, or a dialog of the page's own stands
  bool MenuBarHasKeys = false;  // the menu bar has the keyboard
};

class WebGame : private PadHands {
 public:
  // Starts the program over these files; the page and the texts must outlive it.
  WebGame(Page& page, std::optional<uint32_t> seed, const Translator& texts);
  WebGame(const WebGame&) = delete;
  WebGame& operator=(const WebGame&) = delete;

  PageStorage& Files() { return files_; }
  PageSound& Sound() { return sound_; }
  // From the start-up to the title. Files and lengths of sounds are there.
  void Begin();

  Program& TheProgram() { return *program_; }
  // The record of the play, as KeptPlay has it.
  const std::string& Replay() const { return play_.Bytes(); }
  Mirror& TheMirror() { return *mirror_; }

  // What has changed for the page to show, as Mirror::Changes has it; nothing while it is held.
  const std::string& Changes();
  // For how many ms nothing is to be shown or taken, 0 while the game goes on.
  int HeldFor() const;

  // Carries out what a player does, which may be refused.
  void Send(const std::function<void(Program&)>& event);

  // In how many ms the next tick is due, or -1 while none will be.
  int Wait();
  // Serves the ticks that are due, as long as they take no more than `most` ms and nothing comes up
  // that is to be seen first. How many it has served.
  int Serve(double most);

  // The page has kept a file, or says why not.
  void Kept(int number, const std::string& failure);

  // A key, by the number that browsers give it, 0 for one that an input method has taken. `repeats`
  // where it says so of itself, `types` where what has the keyboard takes text. Whether it must do
  // nothing more.
  bool TakeKey(uint32_t code, bool is_press, bool repeats, bool types);
  void SetKeyFacts(const KeyFacts& facts);
  // The keys of the list that has the keyboard.
  ListKeys& KeysOfList() { return list_keys_; }
  // Lets go what is no longer held down.
  void FollowKeys() { keys_->Follow(); }
  // A thumb on the cross that stands for the arrow keys, -1 to 1 from its middle each way, or
  // lifted. The direction that it holds: a thumb in the very middle goes on as before.
  std::optional<Direction> TakeThumb(double x, double y, bool touches);
  // The game pad, as it is at this moment; the stick as PadStick takes it.
  void TakePad(PadState state, double x, double y);

  // Who is to have the keyboard in the active screen, as FocusOrder has it; `before` is what has
  // had it so far, or null. Null where nothing is.
  Control* FollowFocus(Control* before);
  FocusOrder& OrderOf(const Screen& screen);

 private:
  const void* WindowOfKeys() const;
  bool ReachesWindow() const override;
  bool ReachesGame() const override;
  void Walk(Direction direction, bool down) override;
  void Move(Direction direction) override { page_.MoveByPad(direction); }
  void Accept() override { page_.AcceptByPad(); }
  void Back() override { page_.GoBackByPad(); }
  void OpenMenus() override { page_.OpenMenusByPad(); }
  void Turn(int step) override { page_.TurnByPad(step); }

  Page& page_;
  PageStorage files_;
  PageSound sound_;
  PlayersChance chance_;
  const Translator& texts_;
  KeptPlay play_{{sound_, chance_, files_}, {}, {}};
  std::unique_ptr<Program> program_;
  std::optional<Mirror> mirror_;
  std::optional<TickTimes> ticks_;
  std::optional<WalkingKeys> keys_;
  std::map<const Screen*, FocusOrder> orders_;
  const Screen* focused_ = nullptr;  // the screen that has had the keyboard last
  const Screen* first_ = nullptr;  // the screen that the game opens with, which the keys belong to
  KeyFacts facts_;
  ListKeys list_keys_;
  PadRules pad_{*this};
  PadStick stick_;
  std::optional<Direction> thumb_;  // what the cross holds
  std::string nothing_;
};

}  // namespace orvane
