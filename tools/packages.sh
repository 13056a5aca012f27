# The packages that Orvane needs, by their Debian names, for ./play, ./check and tools/package.sh to source.
# shellcheck shell=bash disable=SC2034  # the lists are for those who source them

# Of clang and its tools, the version that the preset names.
clang_version=$(sed -nE 's/.*"clang\+\+-([0-9]+)".*/\1/p' "$(dirname "${BASH_SOURCE[0]}")/../CMakePresets.json")

build_packages=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-base-private-dev qt6-qpa-plugins libxcb1-dev libsdl2-dev
  libfluidsynth-dev libpng-dev libgl-dev gettext)
play_packages=(qt6-wayland fonts-ipafont-gothic fonts-ipafont-mincho fluidr3mono-gm-soundfont)
check_packages=(liblua5.4-dev libstb-dev libgtest-dev libgmock-dev libbenchmark-dev libcairo2-dev libpango1.0-dev
  xvfb openbox xdotool weston x11-utils fontconfig imagemagick "clang-format-$clang_version" shellcheck lua-check
  dpkg-dev file desktop-file-utils appstream python3)
web_packages=(g++ cmake ninja-build pkg-config gettext libsdl2-dev libfluidsynth-dev libpng-dev libstb-dev emscripten node-acorn
  nodejs fonttools python3-brotli fonts-ipafont-gothic fonts-ipafont-mincho fluidr3mono-gm-soundfont)
web_test_packages=(chromium firefox-esr dpkg-dev)
package_packages=(dpkg-dev file)
sound_packages=(opus-tools lame vorbis-tools) # for the sounds that are rendered ahead
windows_packages=(g++-mingw-w64-x86-64-posix libz-mingw-w64-dev libstb-dev fluidr3mono-gm-soundfont dpkg-dev zip nsis)
windows_check_packages=(wine64 libgtest-dev unzip)
thorough_packages=("clang-$clang_version" "clang-tidy-$clang_version" "libclang-rt-$clang_version-dev")
coverage_packages=(gcovr)
mutants_packages=("python3-clang-$clang_version" rsync)

# What dnf, zypper and pacman call them, as far as known; "-" comes along with another.
names_elsewhere="
g++                       gcc-c++                   gcc-c++                   gcc
cmake                     cmake                     cmake                     cmake
ninja-build               ninja-build               ninja                     ninja
pkg-config                pkgconf-pkg-config        pkg-config                pkgconf
qt6-base-dev              qt6-qtbase-devel          qt6-base-devel            qt6-base
qt6-base-private-dev      qt6-qtbase-private-devel  qt6-base-private-devel    -
qt6-qpa-plugins           qt6-qtbase-gui            -                         -
qt6-wayland               qt6-qtwayland             qt6-wayland               qt6-wayland
libxcb1-dev               libxcb-devel              libxcb-devel              libxcb
libsdl2-dev               SDL2-devel                SDL2-devel                sdl2
libfluidsynth-dev         fluidsynth-devel          fluidsynth-devel          fluidsynth
libpng-dev                libpng-devel              libpng16-devel            libpng
gettext                   gettext                   gettext-tools             gettext
libgl-dev                 mesa-libGL-devel          Mesa-libGL-devel          libglvnd
fonts-ipafont-gothic      ipa-gothic-fonts          ipa-gothic-fonts          otf-ipafont
fonts-ipafont-mincho      ipa-mincho-fonts          ipa-mincho-fonts          -
fluidr3mono-gm-soundfont  fluid-soundfont-gm        fluid-soundfont-gm        soundfont-fluid
liblua5.4-dev             lua-devel                 lua54-devel               lua54
libstb-dev                stb-devel                 stb-devel                 stb
libgtest-dev              gtest-devel               gtest                     gtest
libgmock-dev              gmock-devel               gmock                     -
libbenchmark-dev          google-benchmark-devel    benchmark-devel           benchmark
libcairo2-dev             cairo-devel               cairo-devel               cairo
libpango1.0-dev           pango-devel               pango-devel               pango
xvfb                      xorg-x11-server-Xvfb      xorg-x11-server-Xvfb      xorg-server-xvfb
openbox                   openbox                   openbox                   openbox
xdotool                   xdotool                   xdotool                   xdotool
weston                    weston                    weston                    weston
x11-utils                 xprop                     xprop                     xorg-xprop
fontconfig                fontconfig                fontconfig                fontconfig
imagemagick               ImageMagick               ImageMagick               imagemagick
shellcheck                ShellCheck                ShellCheck                shellcheck
lua-check                 luacheck                  luacheck                  luacheck
opus-tools                opus-tools                opus-tools                opus-tools
lame                      lame                      lame                      lame
vorbis-tools              vorbis-tools              vorbis-tools              vorbis-tools
python3                   python3                   python3                   python
"

# Installs what is missing of the packages named, as root or by sudo, and says so. Asks the network for
# nothing when nothing is missing. Where packages come in another way, says what they are before the first
# build, and leaves it to the build to find them.
need_packages() {
  local installed package missing=() as_root=()
  if ! { command -v apt-get && command -v dpkg-query; } >/dev/null; then
    [ -f build/build.ninja ] || tell_packages "$@"
    return 0
  fi
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

# tell_packages PACKAGES...: what a system without apt-get needs, by its own names.
tell_packages() {
  local package debian dnf zypper pacman name names=() others=() manager install
  for manager in dnf zypper pacman ""; do
    [ -n "$manager" ] && command -v "$manager" >/dev/null && break
  done
  for package in "$@"; do
    name=
    while read -r debian dnf zypper pacman; do
      [ "$debian" = "$package" ] && [ -n "$manager" ] && name=${!manager}
    done <<<"$names_elsewhere"
    case $name in
      -) ;;
      "") others+=("$package") ;;
      *) names+=("$name") ;;
    esac
  done
  install=install
  [ "$manager" = pacman ] && install="-S --needed"
  {
    echo "This system has no apt-get, so what Orvane needs must be there already."
    [ ${#names[@]} -eq 0 ] || printf '%s\n' "This brings it, as root:" "  $manager $install ${names[*]}"
    [ ${#others[@]} -eq 0 ] || printf '%s\n' "Known by Debian's names only:" "  ${others[*]}"
  } >&2
}
