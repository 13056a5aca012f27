#include "src/frontend/script/names/list_names.h"

#include <algorithm>

#include "src/frontend/script/run/script_error.h"

namespace orvane {
namespace {

int CountOf(const ListValues& list) {
  return static_cast<int>(list.Rows.size());
}

// Throws ScriptError unless there is a row or tab of this index now.
void CheckHas(const char* what, int index, int count) {
  if (index >= 0 && index < count) return;
  throw ScriptError(std::string("a ") + what + " of " + std::to_string(count) + ", from 0 on",
                    std::to_string(index));
}

std::string& RowOf(ListValues& list, int index) {
  CheckHas("row", index, CountOf(list));
  return list.Rows[static_cast<size_t>(index)];
}

void SelectFile(ListValues& list, const std::string& file) {
  const auto found = std::find(list.Rows.begin(), list.Rows.end(), file);
  if (found == list.Rows.end()) throw ScriptError("a file of the list", Quoted(file));
  list.ListIndex = static_cast<int>(found - list.Rows.begin());
}

}  // namespace

std::optional<Accessor> ListProperty(ListValues& list, const std::string& name) {
  if (name == "ListCount") return Accessor{[&list] { return Value(int64_t{CountOf(list)}); }, {}};
  if (name != "ListIndex") return {};
  return Accessor{
      [&list] { return Value(int64_t{list.ListIndex}); },
      [&list](const Value& value) { list.ListIndex = AsInteger(value, -1, CountOf(list) - 1); }};
}

std::optional<Accessor> FileListProperty(FileListBox& list, const std::string& name) {
  if (name != "FileName") return ListProperty(list, name);
  return Accessor{[&list] { return Value(list.FileName()); },
                  [&list](const Value& value) { SelectFile(list, AsText(value)); }};
}

std::optional<Accessor> TabProperty(TabStrip& tabs, const std::string& name) {
  if (name != "Tab") return {};
  return Accessor{
      [&tabs] { return Value(int64_t{tabs.Tab()}); },
      [&tabs](const Value& value) { tabs.SetTab(AsInteger(value, 0, tabs.TabCount() - 1)); }};
}

std::optional<Accessor> RowProperty(ListValues& list, const std::string& name, int index) {
  if (name != "List") return {};
  return Accessor{[&list, index] { return Value(RowOf(list, index)); },
                  [&list, index](const Value& value) { RowOf(list, index) = AsText(value); }};
}

std::optional<Accessor> TabProperty(TabStrip& tabs, const std::string& name, int index) {
  const auto check = [&tabs, index] { CheckHas("tab", index, tabs.TabCount()); };
  if (name == "TabCaption") {
    return Accessor{[&tabs, index, check] {
                      check();
                      return Value(tabs.TabCaption(index));
                    },
                    [&tabs, index, check](const Value& value) {
                      check();
                      tabs.SetTabCaption(index, AsText(value));
                    }};
  }
  if (name == "TabEnabled") {
    return Accessor{[&tabs, index, check] {
                      check();
                      return Value(tabs.TabEnabled(index));
                    },
                    [&tabs, index, check](const Value& value) {
                      check();
                      tabs.SetTabEnabled(index, AsFlag(value));
                    }};
  }
  return {};
}

}  // namespace orvane
