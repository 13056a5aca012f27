# What windows look like in one size, held against what they look like in the size that they are drawn
# for, which the same test has taken before. Sourced.
# shellcheck shell=bash disable=SC2154  # variables of the tests that source it

# picture_of TITLE: the inside of a window in a file, when it has come to rest.
picture_of() {
  local before='' now id
  xdotool mousemove "$((screen_width - 1))" "$((screen_height - 1))"
  id=$(window "$1")
  for _ in $(seq 40); do
    import -silent -window "$id" "png:$2"
    now=$(convert "$2" rgb:- | cksum)
    [ "$now" = "$before" ] && return
    before=$now
    sleep 0.2
  done
  fail "$1 does not come to rest"
}

# lost FROM IN SIZE: how many dark pixels of a picture have nothing dark in the other one at their place
# or beside it, when both are made as large as that. A text that is cut off, or laid out in another
# way, leaves dozens of them.
lost() {
  convert \( "$1" -filter box -resize "$3" -colorspace Gray -threshold 60% -negate \) \
    \( "$2" -filter box -resize "$3" -colorspace Gray -threshold 80% -negate -morphology Dilate Square:1 -negate \) \
    -compose Darken -composite -format '%[fx:round(mean * w * h)]' info:
}
may_be_lost=4

# look NAME TITLE: keeps the picture of the window at this size. At another size than the one that it
# is drawn for it must show the same, text and all.
look() {
  local big=$shots/$1-$percent.png drawn=$shots/$1-100.png size off
  picture_of "$2" "$big"
  [ "$percent" = 100 ] && return
  size=$(identify -format '%wx%h!' "$drawn")
  for off in $(lost "$drawn" "$big" "$size") $(lost "$big" "$drawn" "$size"); do
    [ "$off" -le $may_be_lost ] || fail "$1 at $percent per cent: $off pixels without their like"
  done
}

# is_crisp NAME TITLE X Y WIDTH HEIGHT: a picture in that place of the window, in even pixels of the
# game, is enlarged without smoothing. Its pixels become blocks of one colour, where that is no whole
# number of pixels with edges that have both colours in the right parts, and no more.
is_crisp() {
  local small=$5x$6+$3 big pixels y=$4 off
  [ "$2" = Orvane ] && y=$((y + menu_height))
  zoomed "$5" && big=$pixels
  zoomed "$6" && big+=x$pixels
  zoomed "$3" && big+=+$pixels
  zoomed "$y" && big+=+$pixels
  off=$(convert \( "$shots/$1-100.png" -crop "$small+$y" +repage -sample "$((percent * 2))%" -scale 50% \) \
    \( "$shots/$1-$percent.png" -crop "$big" +repage \) -metric AE -fuzz 3% -compare -format '%[distortion]' info:)
  [ "$off" = 0 ] || fail "$1 is not crisp at $percent per cent: $off pixels"
}
