// The picture of the game in title bars, the task bar and window lists.
#pragma once

#include "src/frontend/windows/system/windows_api.h"

namespace orvane {

// The program's own icon in the size that suits best; it lasts as long as the program.
HICON ProgramIcon(int size);

}  // namespace orvane
