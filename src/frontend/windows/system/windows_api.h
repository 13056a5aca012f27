// The system's headers for windows and controls, less the macros that are names of ours.
#pragma once

#include "src/platform/windows/windows_api.h"

// After the system's first header.
#include <commctrl.h>
#include <windowsx.h>

#undef GetFirstChild
#undef IsMaximized
#undef IsMinimized
