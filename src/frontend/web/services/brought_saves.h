// What a player brings into the page: a save, or an archive of saves.
#pragma once

#include <string>
#include <string_view>

#include "src/frontend/web/services/zip.h"

namespace orvane {

struct BroughtSaves {
  std::string Problem;  // why nothing of it is taken, as a sentence; empty otherwise
  NamedFiles Saves;     // what is to be put into which slot
};

// Reads a file. `slot` is the one that it is to go to; where it is empty, names tell. All saves of
// an archive are fit to be taken, or none is taken.
BroughtSaves ReadBrought(const std::string& name, std::string_view bytes, const std::string& slot);

}  // namespace orvane
