# Pictures of windows, held against the kept ones. Sourced; wants the variables of x_session.sh and
#   kept    the folder of the kept pictures of this scale
#   update  "yes" to keep new ones instead of comparing
# shellcheck shell=bash disable=SC2154  # variables of the tests that source it

# How far a channel may be off, and how many pixels may differ more than that: a text cursor, no more.
fuzz=2%
spare=$((16 * scale * scale))

# The inside of a window, by its title or its number.
picture() {
  local id=$1
  [[ $id =~ ^[0-9]+$ ]] || id=$(window "$1")
  import -silent -window "$id" "png:$2" 2>/dev/null
}

# How many pixels differ; a number beyond all bounds when the sizes do.
difference() {
  local found
  found=$(compare -metric AE -fuzz "$fuzz" "$1" "$2" null: 2>&1) || true
  [[ $found =~ ^[0-9.e+]+$ ]] || found=99999999
  printf '%.0f' "$found"
}

looks_as_kept() {
  xdotool mousemove "$((screen_width - 1))" "$((screen_height - 1))"
  picture "$2" "$shots/$1.png" || return 1
  differing=$(difference "$shots/$1.png" "$kept/$1.png")
  [ "$differing" -le "$spare" ]
}

# keep NAME TITLE: the window looks as its kept picture does, or, for new pictures, is kept when it
# has come to rest.
keep() {
  local end=$((SECONDS + 10)) differing=0
  if [ "$update" = yes ]; then
    xdotool mousemove "$((screen_width - 1))" "$((screen_height - 1))"
    sleep 0.5
    picture "$2" "$shots/$1.png" || fail "no picture of $1"
    convert "$shots/$1.png" -strip -define png:compression-level=9 "PNG24:$kept/$1.png"
    return
  fi
  [ "$compared" = yes ] || return 0
  [ -f "$kept/$1.png" ] || fail "no picture is kept of $1; renew them with --update"
  until looks_as_kept "$1" "$2"; do
    if [ $SECONDS -ge $end ]; then
      compare -fuzz "$fuzz" "$shots/$1.png" "$kept/$1.png" "$shots/$1.differs.png" 2>/dev/null
      wrong=$((wrong + 1))
      echo "desktop test: $1 at scale $scale: $differing pixels differ from the kept picture" \
        "($spare may); see $shots/$1.differs.png" >&2
      return
    fi
    sleep 0.1
  done
}

# How this machine draws the faces of the game.
font_facts() {
  local face
  for face in IPAPGothic IPAPMincho; do
    fc-match -v "$face" 2>/dev/null | grep -E 'family:|fontversion|antialias|hint|rgba|lcdfilter' | sed 's/^[[:space:]]*//'
  done
}

# Where the faces are missing or drawn in another way than for the kept pictures, no picture can
# match: it is said, and the rest of the test goes on.
check_fonts() {
  compared=yes
  [ "$update" = yes ] && font_facts >"$here/shots/fonts.txt"
  diff <(font_facts) "$here/shots/fonts.txt" >/dev/null && return
  compared=no
  echo "desktop test: the fonts differ from those of the kept pictures, which are not compared:" >&2
  diff <(font_facts) "$here/shots/fonts.txt" >&2
}
