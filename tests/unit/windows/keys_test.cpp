// What keys do in the windows, as they come to the loop of messages.
#include <string>
#include <vector>

#include "src/frontend/windows/views/view.h"
#include "tests/unit/windows/running_front.h"

namespace orvane {
namespace {

class KeysTest : public RunningFront {
 protected:
  struct Step {
    WPARAM Key;
    const char* Leads;  // the name of the control that has the keyboard then
  };

  static std::string HasKeyboard() {
    const View* view = View::Of(GetFocus());
    return view == nullptr ? std::string() : view->Model().Name();
  }
  static void Press(WPARAM key) { PostMessageW(GetFocus(), WM_KEYDOWN, key, 1); }
  // A key that others are pressed with; Press takes it into account.
  static void Hold(int key, bool down) {
    BYTE keys[256] = {};
    keys[key] = down ? 0x80 : 0;
    SetKeyboardState(keys);
  }
  // Presses keys one after the other, and ends the session.
  void Go(std::vector<Step> steps, size_t next = 0) {
    if (next == steps.size()) {
      Hold(VK_SHIFT, false);
      return front_.SessionEnds();
    }
    Press(steps[next].Key);
    After(20, [this, steps, next] {
      EXPECT_EQ(HasKeyboard(), steps[next].Leads) << "at step " << next;
      Go(steps, next + 1);
    });
  }
};

TEST_F(KeysTest, TabGoesRound) {
  After(200, [this] {
    AskNames();
    EXPECT_EQ(HasKeyboard(), "Text1(0)");
    Go({{VK_TAB, "Text1(1)"},
        {VK_TAB, "OKButton"},
        {VK_TAB, "CancelButton"},
        {VK_TAB, "Text1(0)"}});
  });
  Run();
}

TEST_F(KeysTest, WithShiftItGoesBack) {
  After(200, [this] {
    AskNames();
    Hold(VK_SHIFT, true);
    Go({{VK_TAB, "CancelButton"}, {VK_TAB, "OKButton"}, {VK_TAB, "Text1(1)"}});
  });
  Run();
}

TEST_F(KeysTest, ArrowsGoToWhatLiesThere) {
  After(200, [this] {
    AskNames();
    Go({{VK_DOWN, "Text1(1)"},
        {VK_UP, "Text1(0)"},
        {VK_TAB, "Text1(1)"},
        {VK_TAB, "OKButton"},
        {VK_DOWN, "CancelButton"},
        {VK_UP, "OKButton"}});
  });
  Run();
}

TEST_F(KeysTest, EscapeGoesBackAndEnterGoesOn) {
  After(200, [this] {
    AskNames();
    Press(VK_RETURN);
    After(20, [this] {
      EXPECT_TRUE(program_.TheStage().BoxStands()) << "names are missing";
      Press(VK_ESCAPE);
      After(20, [this] {
        EXPECT_FALSE(program_.TheStage().BoxStands());
        EXPECT_TRUE(program_.TheStage().Find("InputName")->IsVisible());
        Press(VK_ESCAPE);
        After(20, [this] {
          EXPECT_FALSE(program_.TheStage().Find("InputName")->IsVisible());
          EXPECT_EQ(HasKeyboard(), "Command1");
          front_.SessionEnds();
        });
      });
    });
  });
  Run();
}

TEST_F(KeysTest, OnlyTabsThatAreOnCanBeTurnedTo) {
  Begin();
  auto& tabs = static_cast<TabStrip&>(On("Chardata", "SSTab1"));
  After(200, [&] {
    front_.Send([this](Program& program) { program.Click(On("Main", "m32")); });
    EXPECT_EQ(HasKeyboard(), "SSTab1");
    const auto click_first = [strip = GetFocus()] {
      SendMessageW(strip, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 8));
      SendMessageW(strip, WM_LBUTTONUP, 0, MAKELPARAM(20, 8));
    };
    EXPECT_EQ(tabs.Tab(), 0);
    Hold(VK_CONTROL, true);
    Press(VK_TAB);
    After(20, [&, click_first] {
      EXPECT_EQ(tabs.Tab(), 1);
      tabs.PanesEnabled[0] = false;
      Press(VK_TAB);
      After(20, [&, click_first] {
        EXPECT_EQ(tabs.Tab(), 1) << "the other is off";
        Hold(VK_CONTROL, false);
        Press(VK_LEFT);
        After(20, [&, click_first] {
          EXPECT_EQ(tabs.Tab(), 1) << "an arrow turns to it";
          click_first();
          EXPECT_EQ(tabs.Tab(), 1) << "a click turns to it";
          tabs.PanesEnabled[0] = true;
          click_first();
          EXPECT_EQ(tabs.Tab(), 0);
          front_.SessionEnds();
        });
      });
    });
  });
  Run();
}

}  // namespace
}  // namespace orvane
