// One game for each game folder.
#include "src/frontend/shared/instance.h"

#include <gtest/gtest.h>

#include "src/frontend/windows/app/message_window.h"
#include "src/platform/path_text.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

TEST(InstanceTest, TheSecondOfAFolderIsNotTheFirst) {
  const Instance first(PathOf("C:/龍の 狭間/game"));
  EXPECT_TRUE(first.IsFirst());
  EXPECT_FALSE(Instance(PathOf("c:\\龍の 狭間\\GAME\\")).IsFirst()) << "another spelling";
  EXPECT_TRUE(Instance(PathOf("C:/龍の 狭間/other")).IsFirst());
}

TEST(InstanceTest, AFolderIsFreeAgain) {
  { const Instance first(PathOf("C:/orvane/game")); }
  EXPECT_TRUE(Instance(PathOf("C:/orvane/game")).IsFirst());
}

TEST(InstanceTest, TheFirstIsCalled) {
  const Instance first(PathOf("C:/called/game"));
  bool called = false;
  const MessageWindow window(Wide(first.Name()),
                             [&](UINT message) { called = message == kCallMessage; });
  Instance(PathOf("C:/called/game")).CallFirst();
  MSG message;
  while (PeekMessageW(&message, window.Handle(), 0, 0, PM_REMOVE) != FALSE) {
    DispatchMessageW(&message);
  }
  EXPECT_TRUE(called);
}

}  // namespace
}  // namespace orvane
