#!/bin/bash
# The rules about the sources catch what they are there to catch.
set -u
here=$(dirname "$(realpath "$0")")
# shellcheck source=tests/faults.sh
. "$here/../faults.sh"
trial=$(mktemp -d)
trap 'rm -rf "$trial"' EXIT

refuses() {
  if "${@:2}" >/dev/null 2>&1; then fault "not caught: $1"; fi
}
passes() {
  if ! "${@:2}" >"$trial/log" 2>&1; then
    fault "wrongly caught: $1"
    cat "$trial/log"
  fi
}

tree() {
  rm -rf "$trial/src"
  for floor in base platform ui core field battle screens ending game replay sound frontend/shared frontend/script \
    frontend/desktop frontend/web frontend/windows; do
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
echo '#include <windows.h>' >>"$trial/src/frontend/windows/a.cpp"
refuses "the system's header past the one way to it" "$here/floors.sh" "$trial"
tree
echo '#include "src/battle/a.h"' >>"$trial/src/core/a.cpp"
refuses "an include that runs up" "$here/floors.sh" "$trial"
tree
echo '#include "src/replay/a.h"' >>"$trial/src/game/a.cpp"
refuses "a game that knows its replays" "$here/floors.sh" "$trial"
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

tree
echo 'int Next() { static int counter; return counter++; }' >>"$trial/src/field/a.cpp"
refuses "a static that changes" "$here/floors.sh" "$trial"
tree
echo 'struct Counter { static int Value; };' >>"$trial/src/field/a.h"
refuses "a member that all objects share" "$here/floors.sh" "$trial"
tree
echo 'struct Counter { static Counter Load(int from); };' >>"$trial/src/field/a.h"
passes "a static function" "$here/floors.sh" "$trial"
tree
echo 'int Next() { static const int first = 1; return first; }' >>"$trial/src/field/a.cpp"
passes "a static constant" "$here/floors.sh" "$trial"
mkdir -p "$trial/src/frontend/web/page"
yes '// a line' | head -n 1499 >"$trial/src/frontend/web/page/a.mjs"
passes "scripts of the page that are small enough" "$here/floors.sh" "$trial"
echo '// one more' >"$trial/src/frontend/web/page/sw.js"
refuses "a script of the page that is too much" "$here/floors.sh" "$trial"
printf '%0121d\n' 0 >"$trial/src/frontend/web/page/a.mjs"
refuses "a long line of the page's scripts" "$here/floors.sh" "$trial"
rm -r "$trial/src/frontend/web/page"

# The backquotes are those of the documents.
# shellcheck disable=SC2016
documents() {
  rm -rf "$trial/src" "$trial/docs"
  mkdir -p "$trial/src/core" "$trial/docs" "$trial/tools"
  printf 'char* F() { return getenv("ORVANE_KNOWN"); }\n' >"$trial/src/core/a.cpp"
  printf '`ORVANE_KNOWN`\n' >"$trial/CONTRIBUTING.md"
  printf 'A\n{table}\nB\n' >"$trial/tools/balance_frame.md"
  printf 'A\n| 1 |\nB\n' >"$trial/docs/balance.md"
  printf 'D\non {machine}.\n{table}\nE\n' >"$trial/tools/performance_frame.md"
  printf 'D\non a small one.\n| 2 |\nE\n' >"$trial/docs/performance.md"
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
refuses_in tools/performance_frame.md 'C'
documents
sed -i 's/^D$/F/' "$trial/tools/performance_frame.md"
refuses "another text above a table" "$here/docs.sh" "$trial"
rm -rf "$trial/docs" "$trial/tools"

# The judge of coverage. A file of three lines, of which the first has two branches and the others have the same text:
# counted LINE BRANCH says how often the second and third line and the second branch were come to.
counted() {
  printf 'if (a) b();\nc();\nc();\n' >"$trial/a.cpp"
  cat >"$trial/report.json" <<JSON
{"files": [{"file": "a.cpp", "lines": [
  {"line_number": 1, "count": 1, "branches": [{"count": 1}, {"count": $2}]},
  {"line_number": 2, "count": $1, "branches": []},
  {"line_number": 3, "count": $1, "branches": []}]}]}
JSON
  : >"$trial/left_out.txt"
}
leave_out() { printf '%s\n' "$@" >"$trial/left_out.txt"; }
judge() { (cd "$trial" && /usr/bin/python3 "$here/../../tools/coverage/judge.py" report.json left_out.txt); }
# judges_wrong WHAT WORDS: the judge fails and says so in these words.
judges_wrong() {
  local said
  if said=$(judge 2>&1); then fault "not caught: $1"; fi
  [[ $said == *"$2"* ]] || fault "$1: the judge says $said"
}
both=('= Nothing leads there.' 'a.cpp: 2 lines: c();' 'a.cpp: 1 branch: if (a) b();')
counted 1 1
passes "everything come to" judge
counted 0 1
judges_wrong "lines that are not listed" "2 lines that no test comes to, 0 of them left out by name: c();"
leave_out "${both[0]}" 'a.cpp: 1 line: c();'
judges_wrong "one line more than are listed" "2 lines that no test comes to, 1 of them"
counted 1 0
judges_wrong "a branch that is not listed" "1 branches that no test comes to, 0 of them left out by name: if (a) b();"
counted 0 0
leave_out "${both[@]}"
passes "what is listed with its reason" judge
counted 1 0
leave_out "${both[@]}"
judges_wrong "listed lines that are come to" "2 lines are left out by name, and 0 are not come to: c();"
counted 0 1
leave_out "${both[@]}"
judges_wrong "a listed branch that is come to" "1 branches are left out by name, and 0 are not come to: if (a) b();"
counted 0 0
leave_out "${both[@]}" 'a.cpp: 1 line: gone();'
judges_wrong "a listed line that has gone" "1 lines are left out by name, and 0 are not come to: gone();"
leave_out "${both[@]}" 'gone.cpp: 1 branch: if (a) b();'
judges_wrong "a listed file that has gone" "gone.cpp: 1 branches are left out by name"
leave_out '= By chance: a moment.' "${both[@]:1}"
passes "what is left out by chance and not come to" judge
counted 1 1
leave_out '= By chance: a moment.' "${both[@]:1}"
passes "what is left out by chance and come to" judge
counted 0 1
leave_out '= By chance: a moment.' 'a.cpp: 1 line: c();'
judges_wrong "more than chance leaves out" "2 lines that no test comes to, 1 of them"
leave_out "${both[@]}" "${both[1]}"
judges_wrong "an entry that stands there twice" "left_out.txt:4: stands there twice"
leave_out "${both[@]:1}"
judges_wrong "an entry without a reason" "left_out.txt:1: no entry below a reason"
leave_out "${both[0]}" 'c();'
judges_wrong "what is no entry" "left_out.txt:2: no entry below a reason"
echo '{"files": []}' >"$trial/report.json"
leave_out
judges_wrong "a report of nothing" "nothing was counted"

no_faults "the rules can fail"
