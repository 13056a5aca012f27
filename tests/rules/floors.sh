#!/bin/bash
# The floors of the program: an include runs down or sideways within a folder, never up, and no header of a
# toolkit or of the operating system stands outside the front ends.
#   floors.sh SOURCE_FOLDER
set -u
cd "$1/src" || exit 2
faults=0

fault() {
  echo "$1"
  faults=$((faults + 1))
}

# What each floor may include of ours, itself aside.
may_include() {
  case "$1" in
    platform) echo "" ;;
    core) echo "platform" ;;
    field | battle | screens | ending) echo "platform core" ;;
    game) echo "platform core field battle screens ending" ;;
  esac
}

# The standard library's headers, and for one file the calls that write a file durably.
standard=" algorithm array bit cctype cerrno charconv chrono cmath concepts cstddef cstdint cstdio cstdlib \
cstring deque exception filesystem fstream functional initializer_list iterator limits map memory numeric \
optional random set span sstream stdexcept string string_view system_error tuple type_traits \
unordered_map unordered_set utility variant vector ios iosfwd istream ostream iomanip ranges compare "
durable="platform/durable_file.cpp"

for floor in platform core field battle screens ending game; do
  allowed=" $floor $(may_include "$floor") "
  while IFS=: read -r file line include; do
    case "$include" in
      *\"src/*)
        target=${include#*\"src/}
        target=${target%%/*}
        [[ $allowed == *" $target "* ]] || fault "$file:$line: $floor must not include $target"
        ;;
      *\<*)
        header=${include#*<}
        header=${header%%>*}
        if [[ $standard != *" $header "* ]]; then
          [[ $file == "$durable" && " fcntl.h unistd.h " == *" $header "* ]] ||
            fault "$file:$line: <$header> has no place in $floor"
        fi
        ;;
      *) fault "$file:$line: an include that is neither ours nor the standard library's" ;;
    esac
  done < <(grep -nE '^[[:space:]]*#[[:space:]]*include' "$floor"/*.h "$floor"/*.cpp)
done
[ "$faults" -eq 0 ] && echo "floors: no include runs up"
[ "$faults" -eq 0 ]
