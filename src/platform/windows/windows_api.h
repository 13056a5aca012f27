// The system's headers, less the macros that are names of ours. Nothing else includes them.
#pragma once

#include <windows.h>
// That one goes first.
#include <shellapi.h>

#undef SRCAND
#undef SRCCOPY
#undef SRCPAINT
