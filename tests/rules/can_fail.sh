#!/bin/bash
# The rule tests catch what they are there to catch.
#   can_fail.sh COMPILER AR
set -u
here=$(dirname "$(realpath "$0")")
trial=$(mktemp -d)
trap 'rm -rf "$trial"' EXIT
faults=0

refuses() {
  if "${@:2}" >/dev/null 2>&1; then
    echo "not caught: $1"
    faults=$((faults + 1))
  fi
}
passes() {
  if ! "${@:2}" >"$trial/log" 2>&1; then
    echo "wrongly caught: $1"
    cat "$trial/log"
    faults=$((faults + 1))
  fi
}

tree() {
  rm -rf "$trial/src"
  for floor in base platform ui core field battle screens ending game sound frontend/shared frontend/script \
    frontend/desktop; do
    mkdir -p "$trial/src/$floor"
    printf '#include <string>\n' >"$trial/src/$floor/a.h"
    printf '#include "src/%s/a.h"\n' "$floor" >"$trial/src/$floor/a.cpp"
  done
  for part in rules scene flow; do
    mkdir -p "$trial/src/battle/$part"
    printf '#include <string>\n' >"$trial/src/battle/$part/a.h"
    printf '#include "src/battle/%s/a.h"\n' "$part" >"$trial/src/battle/$part/a.cpp"
  done
}

tree
passes "a clean tree" "$here/floors.sh" "$trial"
echo '#include "src/battle/a.h"' >>"$trial/src/core/a.cpp"
refuses "an include that runs up" "$here/floors.sh" "$trial"
tree
echo '#include "src/field/a.h"' >>"$trial/src/battle/a.cpp"
refuses "an include across" "$here/floors.sh" "$trial"
for include in "rules scene/a.h" "rules flow/a.h" "rules a.h" "scene flow/a.h"; do
  tree
  echo "#include \"src/battle/${include#* }\"" >>"$trial/src/battle/${include% *}/a.cpp"
  refuses "$include: an include up within the battle" "$here/floors.sh" "$trial"
done
for include in ui/a.h core/game.h core/main_screen.h; do
  tree
  echo "#include \"src/$include\"" >>"$trial/src/battle/rules/a.h"
  refuses "$include: a screen that the battle's rules know" "$here/floors.sh" "$trial"
done
tree
echo '#include "src/battle/scene/a.h"' >>"$trial/src/battle/a.h"
refuses "a header beside the battle's folders that names the scene" "$here/floors.sh" "$trial"
for include in "scene rules/a.h" "scene a.h" "flow rules/a.h" "flow scene/a.h" "flow a.h" ". flow/a.h"; do
  tree
  echo "#include \"src/battle/${include#* }\"" >>"$trial/src/battle/${include% *}/a.cpp"
  passes "$include: an include down within the battle" "$here/floors.sh" "$trial"
done
tree
echo '#include "src/core/a.h"' >>"$trial/src/battle/rules/a.cpp"
passes "an include from the battle's rules to the core" "$here/floors.sh" "$trial"
tree
echo '#include <QWidget>' >>"$trial/src/screens/a.h"
refuses "a toolkit's header" "$here/floors.sh" "$trial"
tree
echo '#  include <unistd.h>' >>"$trial/src/platform/a.h"
refuses "an operating-system header" "$here/floors.sh" "$trial"
tree
echo '#include <QString>' >>"$trial/src/frontend/shared/a.h"
refuses "a toolkit's header in what front ends share" "$here/floors.sh" "$trial"
tree
echo '#include <SDL.h>' >>"$trial/src/sound/a.cpp"
refuses "a library's header outside its folder" "$here/floors.sh" "$trial"
tree
echo '#include "src/frontend/script/a.h"' >>"$trial/src/frontend/desktop/a.cpp"
refuses "an include from one front end to another" "$here/floors.sh" "$trial"
tree
echo '#include <QWidget>' >>"$trial/src/frontend/desktop/a.cpp"
passes "a toolkit's header where it belongs" "$here/floors.sh" "$trial"

# The backquotes are those of the documents.
# shellcheck disable=SC2016
documents() {
  rm -rf "$trial/src" "$trial/docs"
  mkdir -p "$trial/src/core" "$trial/docs" "$trial/tools"
  printf 'char* F() { return getenv("ORVANE_KNOWN"); }\n' >"$trial/src/core/a.cpp"
  printf '`ORVANE_KNOWN`\n' >"$trial/CONTRIBUTING.md"
  printf 'A\n{table}\nB\n' >"$trial/tools/balance_frame.md"
  printf 'A\n| 1 |\nB\n' >"$trial/docs/balance.md"
  printf '[a](docs/balance.md) `core/a.cpp` src/{core}/a.* ORVANE_KNOWN\n' >"$trial/README.md"
}
refuses_in() {
  documents
  printf '%s\n' "$2" >>"$trial/$1"
  refuses "$2 in $1" "$here/docs.sh" "$trial"
}
documents
passes "documents that name what is there" "$here/docs.sh" "$trial"
refuses_in README.md '[a](docs/none.md)'
refuses_in README.md 'src/core/none.cpp'
refuses_in README.md 'src/{core,none}/a.cpp'
# shellcheck disable=SC2016
refuses_in README.md '`none.cpp`'
refuses_in README.md 'ORVANE_NONE'
refuses_in src/core/a.cpp 'char* G() { return getenv("ORVANE_NEW"); }'
refuses_in tools/balance_frame.md 'C'
rm -rf "$trial/docs" "$trial/tools"

library() {
  printf '%s\n' "$1" >"$trial/a.cpp"
  "$compiler" -std=c++20 -O0 -c "$trial/a.cpp" -o "$trial/a.o" && rm -f "$trial/a.a" &&
    "$archiver" rcs "$trial/a.a" "$trial/a.o"
}
compiler=$1
archiver=$2
library 'namespace orvane { extern const int a[3] = {1, 2, 3}; int F() { return a[1]; } }'
passes "a constant" "$here/globals.sh" "$trial/a.a"
library 'namespace orvane { int counter = 1; int F() { return counter++; } }'
refuses "a global with a value" "$here/globals.sh" "$trial/a.a"
library 'namespace orvane { namespace { int counter; } int F() { return counter++; } }'
refuses "a hidden global" "$here/globals.sh" "$trial/a.a"
library 'namespace orvane { int F() { static int counter; return counter++; } }'
refuses "a static of a function" "$here/globals.sh" "$trial/a.a"
library 'namespace orvane { int F() { thread_local int counter = 3; return counter++; } }'
refuses "a thread's global" "$here/globals.sh" "$trial/a.a"

[ "$faults" -eq 0 ] && echo "the rules can fail"
[ "$faults" -eq 0 ]
