#!/bin/bash
# What the documents name is there: links, paths of this tree, and variables ORVANE_*; CONTRIBUTING.md tells of
# every such variable that a program or script reads; and pages with a measured table
# hold the text of their frames.
#   docs.sh SOURCE_FOLDER
set -u
# shellcheck source=tests/faults.sh
. "$(dirname "$(realpath "$0")")/../faults.sh"
cd "$1" || exit 2

mapfile -t documents < <(find . \( -name build -o -name 'build-*' -o -name .git -o -name node_modules \) -prune -o \
  \( -name '*.md' -o -path './share/*.6' \) -type f -print | sed 's|^\./||' | sort)
[ ${#documents[@]} -gt 0 ] || fault "no documents"
files=$(find . \( -name build -o -name 'build-*' -o -name .git -o -name node_modules \) -prune -o -type f -print)

# Links of a document to others, relative to its folder.
links() { grep -noE '\]\([^)#]+' "$1" | sed -E 's/^([0-9]+):\]\(/\1 /' | grep -vE ' (https?|mailto):'; }

# Words that begin with a folder of ours, braces kept whole and the ends of sentences cut off.
paths() {
  grep -noP '(?<![\w/.~$-])(src|tests|tools|content|docs|bench|cmake|share|\.github|\.ci)/[^\s`|"()\[\]:;]*' "$1" |
    sed -E 's/:/ /; s/[.,]+$//; s/,$//'
}

# File names in backquotes: the last parts of a path of ours. Words in capitals stand for any.
# shellcheck disable=SC2016  # the backquotes are those of the documents
names() { grep -noE '`[A-Za-z0-9_./-]+\.(cpp|h|sh|lua|md|csv|tsx|cmake)`' "$1" | tr -d '`' | sed 's/:/ /'; }

# is_there PATH: as a path or a pattern; braces stand for each of their words.
is_there() {
  local word
  while read -r word; do
    [[ $word == *[\<\>]* ]] && word=$(sed -E 's/<[^>]*>/*/g' <<<"$word")
    compgen -G "$word" >/dev/null || return 1
  done < <(braces "$1")
}
# Braces taken apart, one word a line; nothing in a document is ever run.
braces() {
  local word=$1 inner rest part
  if [[ $word =~ ^([^{}]*)\{([^{}]*)\}(.*)$ ]]; then
    inner=${BASH_REMATCH[2]} rest=${BASH_REMATCH[3]} word=${BASH_REMATCH[1]}
    for part in ${inner//,/ }; do braces "$word$part$rest"; done
  else
    echo "$word"
  fi
}

for document in "${documents[@]}"; do
  while read -r line target; do
    [ -e "$(dirname "$document")/$target" ] || fault "$document:$line: no such link: $target"
  done < <(links "$document")
  while read -r line path; do
    is_there "$path" || fault "$document:$line: no such path: $path"
  done < <(paths "$document")
  while read -r line name; do
    stem=${name##*/}
    [[ ${stem%.*} =~ ^[A-Z]+$ && ! -e $name ]] && continue
    [[ $files == *"/$name"* ]] || fault "$document:$line: no such file: $name"
  done < <(names "$document")
  while IFS=: read -r line variable; do
    grep -rqsw --include='*.cpp' --include='*.h' --include='*.sh' --include='*.lua' --include='CMakeLists.txt' \
      --include='*.cmake' --include='CMakePresets.json' -e "$variable" src tests tools bench cmake CMakeLists.txt \
      CMakePresets.json check play || fault "$document:$line: nothing knows $variable"
  done < <(grep -noE 'ORVANE_[A-Z0-9_]*[A-Z0-9]' "$document")
done

# What the environment may say: read by getenv in C++ and Lua, and as ${NAME...} in shell.
while read -r variable; do
  grep -qsw "$variable" CONTRIBUTING.md || fault "CONTRIBUTING.md does not tell of $variable"
done < <({
  grep -rhoE 'get(env|EnvironmentVariable)\("ORVANE_[A-Z0-9_]+' src tests tools bench content --include='*.cpp' \
    --include='*.h' --include='*.lua'
  grep -rhoE '\$\{ORVANE_[A-Z0-9_]+' tests tools check play --include='*.sh' --include=check --include=play
} | grep -oE 'ORVANE_[A-Z0-9_]+' | sort -u)

# holds_frame PAGE FRAME: the page is the frame's text with a table, and with the machine's name where it has one.
holds_frame() {
  local page above start end below
  page=$(cat "$1")
  above=$(sed '/^{table}$/,$d' "$2")
  below=$(sed '1,/^{table}$/d' "$2")
  start=${above%%"{machine}"*} end=${above#*"{machine}"}
  [[ $page == "$start"* && $page == *"$end"* && $page == *"$below" ]] || fault "$1: not the text of $2"
}
for frame in tools/*_frame.md; do
  name=${frame#tools/}
  holds_frame "docs/${name%_frame.md}.md" "$frame"
done

no_faults "docs: what they name is there"
