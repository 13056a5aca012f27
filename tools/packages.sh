# The Debian packages that Orvane needs, for ./play, ./check and tools/package.sh to source.

build_packages=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-base-private-dev qt6-qpa-plugins libxcb1-dev libsdl2-dev
  libfluidsynth-dev libpng-dev libgl-dev)
play_packages=(qt6-wayland fonts-ipafont-gothic fonts-ipafont-mincho fluidr3mono-gm-soundfont)
check_packages=(liblua5.4-dev libgtest-dev libgmock-dev libbenchmark-dev libcairo2-dev libpango1.0-dev
  binutils xvfb openbox xdotool weston x11-utils fontconfig imagemagick clang-format-14
  dpkg-dev file desktop-file-utils appstream)
package_packages=(dpkg-dev file)
thorough_packages=(clang-14 clang-tidy-14 libclang-rt-14-dev)

# Installs what is missing of the packages named, as root or by sudo, and says so. Asks the network for
# nothing when nothing is missing.
need_packages() {
  local installed package missing=() as_root=()
  installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null)
  for package in "$@"; do
    [[ $'\n'$installed$'\n' == *$'\n'"$package installed"$'\n'* ]] || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
      lack_packages "Packages are missing, and there is neither root nor sudo to install them." "${missing[@]}"
      return 1
    }
    as_root=(sudo)
  fi
  echo "Installing with apt-get, which may take some minutes: ${missing[*]}"
  # A source that fails, a foreign one perhaps, need not keep these packages from coming; and a machine that
  # has just started may be updating itself. With 1 ends not apt-get but sudo, which would refuse again.
  "${as_root[@]}" apt-get update -qq
  if [ $? -eq 1 ] && [ ${#as_root[@]} -gt 0 ]; then
    lack_packages "Packages are missing, and sudo does not let this user install them." "${missing[@]}"
    return 1
  fi
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq -o DPkg::Lock::Timeout=300 --no-install-recommends "${missing[@]}" >/dev/null &&
    return 0
  lack_packages "Packages are missing, and apt-get could not install them; it needs the network." "${missing[@]}"
  return 1
}

# lack_packages SENTENCE PACKAGES...: why they are not there, and what brings them.
lack_packages() {
  local sentence=$1
  shift
  {
    echo "$sentence"
    echo "This brings them, as root:"
    echo "  apt-get update && apt-get install --no-install-recommends $*"
  } >&2
}
