// Properties of lists and tab controls by name.
#pragma once

#include <optional>
#include <string>

#include "src/frontend/script/names/value.h"
#include "src/ui/controls.h"

namespace orvane {

// ListIndex and ListCount of a list; FileName too of a file list; Tab of a tab control.
std::optional<Accessor> ListProperty(ListValues& list, const std::string& name);
std::optional<Accessor> FileListProperty(FileListBox& list, const std::string& name);
std::optional<Accessor> TabProperty(TabStrip& tabs, const std::string& name);

// List(index) of a list; TabEnabled(index) and TabCaption(index) of a tab control. An index of a
// row or tab that is not there when it is used throws ScriptError.
std::optional<Accessor> RowProperty(ListValues& list, const std::string& name, int index);
std::optional<Accessor> TabProperty(TabStrip& tabs, const std::string& name, int index);

}  // namespace orvane
