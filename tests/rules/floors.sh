#!/bin/bash
# The floors of the program: an include runs down or sideways within a floor, never up, and from no front end
# to another. Below the front ends, and in what they share, no header of a toolkit or of the operating system
# stands outside the few files that are there for it.
# The page's scripts stay small.
# In the game itself no function keeps a variable of its own between two calls either: two games in one process
# would share it. (clang-tidy finds global variables.)
#   floors.sh SOURCE_FOLDER
set -u
# shellcheck source=tests/faults.sh
. "$(dirname "$(realpath "$0")")/../faults.sh"
cd "$1/src" || exit 2

# What each floor may include of ours, itself aside.
may_include() {
  local plain="base platform ui core"
  case "$1" in
    base) echo "" ;;
    platform) echo "base" ;;
    ui) echo "base platform" ;;
    core) echo "base platform ui" ;;
    field | battle | screens | ending) echo "$plain" ;;
    game) echo "$plain field battle screens ending" ;;
    replay) echo "$plain game" ;;
    sound) echo "base platform" ;;
    frontend/shared) echo "$plain game replay" ;;
    frontend/script) echo "$plain field battle screens ending game replay frontend/shared" ;;
    frontend/desktop | frontend/windows) echo "$plain field battle screens ending game replay sound frontend/shared" ;;
    frontend/web) echo "$plain game replay frontend/shared" ;;
  esac
}

# Within the battle the rules know nothing of what is shown, and the scene nothing of how an action goes on.
# The headers beside these folders serve scene and flow, and the sources beside them tie all together.
may_not_include() {
  case "$1" in
    battle/rules/*) echo "battle/* ui/* core/game.h core/main_*" ;;
    battle/scene/*) echo "battle/flow/*" ;;
    battle/flow/*) ;;
    battle/*.h) echo "battle/scene/* battle/flow/*" ;;
  esac
}

# Whether a file includes what its place within its floor forbids.
breaks_order() {
  local pattern
  [[ $2 == battle/rules/* ]] && return 1  # they are below all of the battle
  set -f
  for pattern in $(may_not_include "$1"); do
    # shellcheck disable=SC2254  # a pattern it is
    case "$2" in $pattern) set +f && return 0 ;; esac
  done
  set +f
  return 1
}

# Headers of systems and libraries that single files or folders are there for.
may_name() {
  case "$1" in
    platform/posix/replace_steps.cpp) echo "fcntl.h sys/stat.h unistd.h" ;;
    platform/windows/windows_api.h) echo "windows.h shellapi.h" ;;
    sound/sdl/*) echo "SDL.h dlfcn.h" ;;
    sound/fluid/*) echo "fluidsynth.h" ;;
    frontend/web/main.cpp) echo "emscripten.h" ;;
    frontend/web/services/zip.cpp) echo "stb/stb_image.h" ;;
    sound/vorbis/*) echo "stb/stb_vorbis.h" ;;
  esac
}

standard=" algorithm array atomic bit bitset cctype cerrno charconv chrono cmath concepts condition_variable cstddef cstdint \
cstdio cstdlib cstring deque exception filesystem fstream functional future initializer_list iterator limits list map \
memory mutex numeric optional random set span sstream stdexcept stop_token string string_view system_error thread tuple \
type_traits unordered_map unordered_set utility variant vector ios iosfwd istream locale ostream iomanip ranges compare "

# The floor that a path of ours belongs to: its folder, and for front ends the one below it.
floor_of() {
  case "$1" in
    frontend/*) cut -d/ -f1-2 <<<"$1" ;;
    *) echo "${1%%/*}" ;;
  esac
}

for floor in base platform ui core field battle screens ending game replay sound frontend/shared frontend/script \
  frontend/desktop frontend/web frontend/windows; do
  [ -d "$floor" ] || continue
  allowed=" $floor $(may_include "$floor") "
  while IFS=: read -r file line include; do
    case "$include" in
      *\"src/*)
        header=${include#*\"src/}
        header=${header%%\"*}
        target=$(floor_of "$header")
        [[ $allowed == *" $target "* ]] || fault "$file:$line: $floor must not include $target"
        breaks_order "$file" "$header" && fault "$file:$line: $header is above it"
        ;;
      *\<*)
        header=${include#*<}
        header=${header%%>*}
        [[ $header == windows.h && $file != platform/windows/windows_api.h ]] &&
          fault "$file:$line: <windows.h> comes through platform/windows/windows_api.h alone"
        case "$floor" in frontend/desktop | frontend/windows | frontend/script) continue ;; esac
        [[ $standard == *" $header "* || " $(may_name "$file") " == *" $header "* ]] ||
          fault "$file:$line: <$header> has no place in $floor"
        ;;
      *) fault "$file:$line: an include that is neither ours nor the standard library's" ;;
    esac
  done < <(grep -rnE --include='*.h' --include='*.cpp' '^[[:space:]]*#[[:space:]]*include' "$floor")
  case "$floor" in sound | frontend/*) continue ;; esac
  while read -r line; do
    fault "$line: a static variable that changes"
  done < <(grep -rnwE --include='*.h' --include='*.cpp' 'static|thread_local' "$floor" | grep -vwE 'const|constexpr' |
    grep -vE '^[^:]*\.h:.*\(')  # a function of a class
done

# The scripts of the page are small, every line counted, and no line is long for it.
most_lines=1499 longest_line=120
scripts=(frontend/web/page/*.*js)
lines=$(cat "${scripts[@]}" 2>/dev/null | wc -l)
[ "$lines" -le "$most_lines" ] || fault "frontend/web/page: $lines lines of scripts, more than $most_lines"
while read -r line; do
  fault "$line: a line of more than $longest_line letters"
done < <(LC_ALL=C.UTF-8 grep -noHE ".{$((longest_line + 1)),}" "${scripts[@]}" 2>/dev/null | cut -d: -f1,2)

no_faults "floors: no include runs up"
