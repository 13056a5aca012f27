#include "src/frontend/script/names/state_names.h"

#include <limits>
#include <utility>

#include "src/core/state_table.h"
#include "src/frontend/script/run/script_error.h"

namespace orvane {
namespace {

template <class T>
Accessor Access(Checked<T>& field) {
  return {[&field] { return Value(int64_t{int{field}}); },
          [&field](const Value& value) {
            field = AsInteger(value, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
          }};
}

template <int N>
Accessor Access(FixedText<N>& field) {
  return {[&field] { return Value(field.Full()); },
          [&field](const Value& value) { field = AsText(value); }};
}

Accessor Access(std::string& field) {
  return {[&field] { return Value(field); },
          [&field](const Value& value) { field = AsText(value); }};
}

// Finds the variable of a name among those that it is shown.
class Finder {
 public:
  Finder(const std::string& name, const std::vector<int>& indexes)
      : name_(name), indexes_(indexes) {}

  template <class Field>
  void operator()(const char* name, Field& field) {
    if (name_ == name) found_ = Element(field, 0);
  }

  std::optional<Accessor> Found() { return std::move(found_); }

 private:
  template <class Field>
  Accessor Element(Field& field, size_t depth) const {
    if (depth < indexes_.size()) throw ScriptError(name_ + " to have fewer indexes", Given());
    return Access(field);
  }

  template <class T, size_t N>
  Accessor Element(Array<T, N>& array, size_t depth) const {
    if (depth >= indexes_.size()) throw ScriptError("an index behind " + name_, Given());
    const int index = indexes_[depth];
    if (index < 0 || index >= array.Size) {
      throw ScriptError("an index of " + name_ + " from 0 to " + std::to_string(array.Size - 1),
                        std::to_string(index));
    }
    return Element(array[index], depth + 1);
  }

  std::string Given() const { return indexes_.empty() ? "none" : std::to_string(indexes_.size()); }

  const std::string& name_;
  const std::vector<int>& indexes_;
  std::optional<Accessor> found_;
};

}  // namespace

std::optional<Accessor> FindVariable(State& state, const std::string& name,
                                     const std::vector<int>& indexes) {
  Finder variables(name, indexes);
  VisitRecord(state, variables);
  VisitRunning(state, variables);
  if (std::optional<Accessor> found = variables.Found()) return found;
  Finder tables(name, indexes);
  VisitTables(state, tables);
  std::optional<Accessor> found = tables.Found();
  if (found) found->Write = nullptr;  // nobody writes to the tables but what fills them
  return found;
}

}  // namespace orvane
