#!/bin/bash
# Looks at the program's file for Windows: that it imports what Windows brings and nothing else, is as hard to abuse as
# Windows makes it, does not tell where or when it was built, and has its icon, its version and its manifest in it.
#   program.sh PROGRAM SOURCE-FOLDER
set -u
# shellcheck source=tests/faults.sh
. "$(dirname "$(realpath "$0")")/../faults.sh"
program=$1
sources=$2

own=" advapi32 comctl32 gdi32 imm32 kernel32 msvcrt ole32 oleacc oleaut32 setupapi shell32 user32 uxtheme version winmm "
headers=$(x86_64-w64-mingw32-objdump -p "$program")
imports=$(sed -nE 's/^[[:space:]]*DLL Name: (.*)\.(dll|DLL|drv)$/\1/p' <<<"$headers" | tr '[:upper:]' '[:lower:]')
[ "$(wc -w <<<"$imports")" -ge 5 ] || fault "its imports cannot be read"
for library in $imports; do
  [[ $own == *" $library "* ]] || fault "it imports $library"
done
for mark in HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT; do
  grep -q "$mark" <<<"$headers" || fault "it is not marked $mark"
done
x86_64-w64-mingw32-objdump -h "$program" | grep -q '\.reloc' || fault "it cannot be moved in memory"
grep -q 'Time/Date.*1970$' <<<"$headers" || fault "it tells when it was built"
version=$(sed -nE 's/^project\(orvane VERSION ([0-9.]+).*/\1/p' "$sources/CMakeLists.txt")
resources=$(x86_64-w64-mingw32-windres -J coff -O rc -i "$program" 2>/dev/null | tr -d '\0')
grep -q 'Has 7 elements' <<<"$resources" || fault "its icon lacks sizes"
grep -qF "VALUE \"ProductVersion\", \"$version" <<<"$resources" || fault "it does not tell its version, $version"
for words in 'Microsoft.Windows.Common-Controls" version="6.' '>PerMonitorV2<' '>UTF-8</activeCodePage>' \
  '>true</longPathAware>' 'level="asInvoker"'; do
  grep -qF "$words" "$program" || fault "its manifest lacks $words"
done
grep -qF "$sources" "$program" && fault "it tells where it was built"
grep -qF "${HOME:-/root}/" "$program" && fault "it names the home of who built it"
no_faults "imports: $(tr '\n' ' ' <<<"$imports")"
