#include "src/frontend/windows/system/program_icon.h"

#include "src/frontend/windows/resources/numbers.h"

namespace orvane {

HICON ProgramIcon(int size) {
  return static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr),
                                       MAKEINTRESOURCEW(ORVANE_ICON),  // NOLINT: the system's way
                                       IMAGE_ICON, size, size, LR_SHARED));
}

}  // namespace orvane
