#!/bin/bash
# The sources of the libraries that orvane-script is built with for node, where Debian has no binaries: unpacked
# from Debian's source packages, as apt checks them, into a folder. Needs no root. Asks the network for nothing
# when they are there.
#   web_sources.sh FOLDER
set -eu
folder=${1:?"usage: web_sources.sh FOLDER"}
packages=(lua5.4 libpng1.6 zlib)

have=yes
for package in "${packages[@]}"; do
  [ -d "$folder/$package" ] || have=
done
[ -z "$have" ] || exit 0

mkdir -p "$folder"
folder=$(realpath "$folder")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/lists/partial"
# Where the machine's binaries of Debian come from are their sources too; a machine that lists no sources lists
# them for this alone. The release itself, without its updates: what stands there stays there.
# shellcheck disable=SC2016  # the dollars are apt's
apt-get indextargets --format '$(ORIGIN) deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
  sed -nE 's/^Debian (deb-src [^ ]+ [^ -]+ [^ ]+)$/\1/p' | sort -u >"$work/sources.list"
[ -s "$work/sources.list" ] || {
  echo "apt knows no archive of Debian: run apt-get update first" >&2
  exit 1
}
options=(-qq -o "Dir::Etc::SourceList=$work/sources.list" -o Dir::Etc::SourceParts=/dev/null
  -o "Dir::State::Lists=$work/lists" -o "Dir::Cache=$work" -o "APT::Sandbox::User=$(id -un)")
apt-get "${options[@]}" update
cd "$work"
for package in "${packages[@]}"; do
  apt-get "${options[@]}" source "$package" >/dev/null
  unpacked=("$work/${package}"-*/)
  mv "${unpacked[0]}" "$work/$package"
  rm -rf "${folder:?}/$package"
  mv "$work/$package" "$folder/$package"
done
