// What windows look like, held against pictures that are kept of them.
#pragma once

#include <QImage>
#include <QWidget>
#include <string>

namespace orvane::test {

// Whether pictures can be compared on this machine: those that are kept show the game's faces as
// one version of them is drawn. Says once why not.
bool CanCompare();

// Fails the test unless the window comes to look, pixel by pixel, like the picture NAME.png of its
// scale and language in tests/windows/shots. What it looks like instead goes to the folder
// screenshots/windows of the build. With ORVANE_KEEP_LOOKS set, keeps what it looks like as the new
// picture.
void LooksAsKept(QWidget& window, const std::string& name);

// A picture that is kept, "1x/title".
QImage KeptPicture(const std::string& name);

}  // namespace orvane::test
