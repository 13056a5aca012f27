#include <array>

#include "src/core/map.h"
#include "src/frontend/script/calls/call.h"
#include "src/frontend/script/calls/calls.h"
#include "src/frontend/script/run/script_error.h"
#include "src/frontend/script/run/session.h"

namespace orvane {
namespace {

constexpr const char* kFile = "a file's name";

std::string FileAt(const Call& call, int at) {
  return std::string(call.Text(at, kFile));
}

// prepare([folder])
int Prepare(Call& call) {
  call.TheSession().Prepare(call.Has(1) ? std::string(call.Text(1, "a folder's name")) : "");
  return 0;
}

// read_file(name)
int ReadFile(Call& call) {
  const std::optional<std::string> bytes = call.TheSession().Folder().Read(FileAt(call, 1));
  return bytes ? call.Return(*bytes) : call.ReturnNothing();
}

// write_file(name, bytes)
int WriteFile(Call& call) {
  const std::string bytes(call.Text(2, "the bytes of a file"));
  call.TheSession().Folder().Write(FileAt(call, 1), bytes);
  return 0;
}

// delete_file(name)
int DeleteFile(Call& call) {
  call.TheSession().Folder().Delete(FileAt(call, 1));
  return 0;
}

// A map: its codes by column, then row, as they stand in the file.
using Codes = std::array<std::array<int, kMapRows>, kMapColumns>;

// The number at `index` of the table on top of the stack, between two limits.
int NumberOfChange(const Call& call, int index, int least, int greatest) {
  lua_rawgeti(call.Lua(), -1, index);
  const Value value = call.Any(-1);
  lua_pop(call.Lua(), 1);
  return AsInteger(value, least, greatest);
}

// Carries out the table of changes, each a {column, row, code}.
void ApplyChanges(const Call& call, int at, Codes& codes) {
  constexpr int greatest_code = 999999;
  if (!call.Has(at)) return;
  if (lua_type(call.Lua(), at) != LUA_TTABLE) {
    throw ScriptError("a table of {column, row, code}", call.Shown(at));
  }
  const auto count = static_cast<lua_Integer>(lua_rawlen(call.Lua(), at));
  for (lua_Integer i = 1; i <= count; ++i) {
    if (lua_rawgeti(call.Lua(), at, i) != LUA_TTABLE) {
      throw ScriptError("{column, row, code}", call.Shown(-1));
    }
    const auto column = static_cast<size_t>(NumberOfChange(call, 1, 0, kMapColumns - 1));
    const auto row = static_cast<size_t>(NumberOfChange(call, 2, 0, kMapRows - 1));
    codes.at(column).at(row) = NumberOfChange(call, 3, -greatest_code, greatest_code);
    lua_pop(call.Lua(), 1);
  }
}

// write_map(name, code [, changes])
int WriteMap(Call& call) {
  const std::string file = FileAt(call, 1);
  Codes codes{};
  for (auto& column : codes) column.fill(call.Whole(2, "a tile's code"));
  ApplyChanges(call, 3, codes);
  std::string text;
  for (const auto& column : codes) {
    for (size_t row = 0; row < column.size(); ++row) {
      text += std::to_string(column.at(row)) + (row + 1 < column.size() ? "," : "\r\n");
    }
  }
  call.TheSession().Folder().Write(file, text);
  return 0;
}

// list_files(pattern)
int ListFiles(Call& call) {
  lua_newtable(call.Lua());
  lua_Integer count = 0;
  for (const std::string& name :
       call.TheSession().Folder().List(std::string(call.Text(1, "a pattern")))) {
    call.Return(name);
    lua_rawseti(call.Lua(), -2, ++count);
  }
  return 1;
}

}  // namespace

void RegisterFileCalls(lua_State* lua) {
  Register<&Prepare>(lua, "prepare");
  Register<&ReadFile>(lua, "read_file");
  Register<&WriteFile>(lua, "write_file");
  Register<&DeleteFile>(lua, "delete_file");
  Register<&WriteMap>(lua, "write_map");
  Register<&ListFiles>(lua, "list_files");
}

}  // namespace orvane
