// Widgets need an application, if only on a display that is not there.
#include <gtest/gtest.h>

#include <QApplication>

#include "src/frontend/desktop/access/spoken.h"

int main(int count, char** words) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&count, words);
  const QApplication application(count, words);
  orvane::SetUpSpeech();
  return RUN_ALL_TESTS();
}
