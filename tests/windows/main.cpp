// Tests in the game's windows, on a screen that nobody sees: the toolkit's offscreen platform.
//   orvane-windows-test [--screen=WIDTHxHEIGHT[@DPI]] [--scale=SCALE] [--language=CODE]
//     [GoogleTest's options]
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <string>

#include "tests/windows/front_end.h"

namespace {

constexpr const char* kLanguage = "--language=";

struct Options {
  int Width = 1920;
  int Height = 1200;
  int Dpi = 96;  // that the desktop's settings say of the screen
  double Scale = 1;
  std::string Language;
  bool AreRead = true;
};

Options ReadOptions(int count, char** words) {
  Options options;
  for (int i = 1; i < count; ++i) {
    const bool is_screen = std::sscanf(words[i], "--screen=%dx%d@%d", &options.Width,
                                       &options.Height, &options.Dpi) >= 2;
    const bool is_scale = std::sscanf(words[i], "--scale=%lf", &options.Scale) == 1;
    const std::string word = words[i];
    const bool is_language = word.starts_with(kLanguage);
    if (is_language) options.Language = word.substr(std::string(kLanguage).size());
    options.AreRead = options.AreRead && (is_screen || is_scale || is_language);
  }
  return options;
}

QByteArray Configuration(const Options& options) {
  return QStringLiteral(
             R"({"windowFrameMargins": false, "screens": [{"name": "screen", "x": 0, "y": 0,
                 "width": %1, "height": %2, "logicalDpi": %3, "logicalBaseDpi": 96, "dpr": 1}]})")
      .arg(options.Width)
      .arg(options.Height)
      .arg(options.Dpi)
      .toUtf8();
}

// What this platform cannot do (raise a window, say) it tells each time.
void OnToolkitMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/,
                      const QString& message) {
  if (message.startsWith("This plugin does not support")) return;
  if (message.startsWith("QHighDpiScaling::setFactor")) return;
  std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

}  // namespace

int main(int count, char** words) {
  testing::InitGoogleTest(&count, words);
  const Options options = ReadOptions(count, words);
  if (!options.AreRead) {
    std::fputs(
        "orvane-windows-test [--screen=WIDTHxHEIGHT[@DPI]] [--scale=SCALE] [--language=CODE]\n",
        stderr);
    return 2;
  }
  orvane::test::SetUsualScale(options.Scale);
  orvane::test::SetUsualLanguage(options.Language);
  const QTemporaryDir folder;
  QFile file(folder.filePath("screen.json"));
  if (!file.open(QFile::WriteOnly) || file.write(Configuration(options)) < 0) return 2;
  file.close();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toLocal8Bit());
  // What waits for time need not take it.
  qputenv("ORVANE_SPEED", "1000");
  qInstallMessageHandler(OnToolkitMessage);
  QApplication application(count, words);
  orvane::SetUpLook(application);
  orvane::SetUpSpeech();
  QApplication::setCursorFlashTime(0);  // pictures show it always
  orvane::test::TheScreen();
  return RUN_ALL_TESTS();
}
