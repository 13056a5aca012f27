#!/bin/bash
# Fetches sources of libraries as Debian packs them, for a system that Debian has no packages for. apt-get fetches and
# proves them, from wherever this machine's own packages come; neither root nor lines for sources are needed. What
# is there already is left alone.
#   sources.sh FOLDER PACKAGE...
set -eu
known="
libpng1.6  libpng1.6_1.6.39.orig.tar.gz       a00e9d2f2f664186e4202db9299397f851aea71b36a35e74910b8820e380d441
libsdl2    libsdl2_2.26.5+dfsg.orig.tar.gz    b3f2c822151804125d08db94c65852f711c2e5df2145a59da120748dc32eb9c3
lua5.4     lua5.4_5.4.4.orig.tar.gz           164c7849653b80ae67bec4b7473b884bf5cc8d2dca05653475ec2ed27b9ebf61
"
folder=$1
shift
missing=()
for package in "$@"; do
  [ -d "$folder/$package" ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

mkdir -p "$folder"
work=$(mktemp -d "$folder/fetching-XXXXXX")
work=$(realpath "$work")
trap 'rm -rf "$work"' EXIT
mkdir -p "$work"/{lists,cache,parts}/partial

# The machine's sources of packages, as sources of sources.
keys=/usr/share/keyrings/debian-archive-keyring.gpg
signed=
[ ! -f $keys ] || signed="[signed-by=$keys]"
# shellcheck disable=SC2016  # apt-get fills these in
apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT) $(ORIGIN)' 'Created-By: Packages' |
  sed -nE "s|^([^ ]+) ([^ ]+) main Debian$|deb-src $signed \1 \2 main|p" | sort -u >"$work/sources.list"
[ -s "$work/sources.list" ] || {
  echo "sources.sh: no package source of Debian's is known to apt-get; run apt-get update" >&2
  exit 1
}

apt_get() {
  apt-get -qq -o Dir::Etc::SourceList="$work/sources.list" -o Dir::Etc::SourceParts="$work/parts" \
    -o Dir::State::Lists="$work/lists" -o Dir::Cache="$work/cache" -o APT::Sandbox::User="$(id -un)" "$@"
}
# A mirror may lag behind what it lists of the security updates; the last point release has all but the newest.
fetch() {
  apt_get update && apt_get source --download-only --only-source "${missing[@]}" >/dev/null
}
cd "$work"
fetch || {
  sed -i '/-\(security\|updates\) main$/d' sources.list
  fetch
}
for package in "${missing[@]}"; do
  read -r archive sum < <(sed -nE "s/^$package +//p" <<<"$known")
  echo "$sum  $archive" | sha256sum --check --quiet - || {
    echo "sources.sh: Debian has other sources of $package now; try them and write down their sum" >&2
    exit 1
  }
  dpkg-source -x "$package"_*.dsc "$work/$package" >/dev/null 2>&1
done
for package in "${missing[@]}"; do
  mv "$work/$package" ..
done
