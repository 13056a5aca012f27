// How the controls look: the same calm grey on every desktop.
#pragma once

class QApplication;

namespace orvane {

// Gives the application its style, colours and font.
void SetUpLook(QApplication& application);

}  // namespace orvane
