// The picture of the game in title bars, task bars and window lists.
#pragma once

#include <QIcon>

namespace orvane {

// In every size that a window is asked for; the desktop takes larger ones from its own menu.
QIcon WindowIcon();

}  // namespace orvane
