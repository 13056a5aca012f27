// The channels by the page's clock.
#include "src/frontend/web/services/page_sound.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "src/platform/sound_channels.h"
#include "tests/unit/web/paper_page.h"

namespace orvane {
namespace {

using testing::ElementsAre;

class PageSoundTest : public testing::Test {
 protected:
  PageSoundTest() {
    sound_.SetLength("Round1", 10000);
    sound_.SetLength("Cut", 400);
  }

  std::string Status(const std::string& alias) { return sound_.Send(StatusCommand(alias)); }

  PaperPage page_;
  PageSound sound_{page_};
};

TEST_F(PageSoundTest, OpensWhatIsThereOnce) {
  EXPECT_EQ(sound_.Send(OpenCommand("memory", "Round1.mid", "bgm1")), "1");
  EXPECT_EQ(sound_.Send(OpenCommand("memory", "Round1.mid", "bgm1")), "");
  EXPECT_EQ(sound_.Send(OpenCommand("memory", "Round9.mid", "bgm2")), "");
  EXPECT_THAT(page_.Asked, ElementsAre("load bgm1 Round1"));
  EXPECT_EQ(Status("bgm2"), "");
}

TEST_F(PageSoundTest, PlaysForItsLength) {
  sound_.Send(OpenCommand("memory", "Cut.wav", "snd2"));
  EXPECT_EQ(Status("snd2"), "stopped");
  page_.Time = 1000;
  sound_.Send(PlayCommand("snd2"));
  page_.Time = 1399;
  EXPECT_EQ(Status("snd2"), "playing");
  page_.Time = 1400;
  EXPECT_EQ(Status("snd2"), "stopped");
}

TEST_F(PageSoundTest, APieceThatIsAskedForAtItsEndFollowsOnItsLastBar) {
  sound_.Send(OpenCommand("memory", "Round1.mid", "bgm1"));
  sound_.Send(PlayCommand("bgm1"));
  page_.Time = 9849;
  EXPECT_EQ(Status("bgm1"), "playing");
  page_.Time = 9900;
  EXPECT_EQ(Status("bgm1"), "stopped");
  sound_.Send(PlayCommand("bgm1"));
  EXPECT_EQ(page_.Asked.back(), "start bgm1 100");
  page_.Time = 19849;
  EXPECT_EQ(Status("bgm1"), "playing");
  page_.Time = 19851;
  EXPECT_EQ(Status("bgm1"), "stopped");
}

TEST_F(PageSoundTest, APieceThatIsAskedForEarlierBeginsAnew) {
  sound_.Send(OpenCommand("memory", "Round1.mid", "bgm1"));
  sound_.Send(PlayCommand("bgm1"));
  page_.Time = 5000;
  sound_.Send(PlayCommand("bgm1"));
  EXPECT_EQ(page_.Asked.back(), "start bgm1 0");
  page_.Time = 14000;
  EXPECT_EQ(Status("bgm1"), "playing");
}

TEST_F(PageSoundTest, ClosingEndsIt) {
  sound_.Send(OpenCommand("memory", "Cut.wav", "snd2"));
  sound_.Send(PlayCommand("snd2"));
  sound_.Send(CloseCommand("snd2"));
  EXPECT_EQ(page_.Asked.back(), "drop snd2");
  EXPECT_EQ(Status("snd2"), "");
  EXPECT_EQ(sound_.Send(OpenCommand("memory", "Cut.wav", "snd2")), "1");
  EXPECT_EQ(Status("snd2"), "stopped");
}

}  // namespace
}  // namespace orvane
