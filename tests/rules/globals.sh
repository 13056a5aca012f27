#!/bin/bash
# No mutable globals: a library of the game without front ends has no writable data of its own. Constants
# that need building at run time lie in writable sections too; they are named k..., or stand in a function
# under one of the two names below, and the sources say const.
#   globals.sh LIBRARY
set -u
listing=$(objdump -t -C "$1") || exit 2
faults=$(echo "$listing" |
  awk '{ for (i = 2; i <= NF; i++) if ($i ~ /^\.(t?bss|t?data)(\..*)?$/ && $i !~ /^\.data\.rel\.ro/) {
           name = ""; for (j = i + 2; j <= NF; j++) name = name " " $j; print name; break } }' |
  grep -vE '^ \.(t?bss|t?data)' |
  grep -vE '^ ( ?0x[0-9a-f]+|\.hidden)? ?guard variable for ' |
  grep -vE '::k[A-Z][A-Za-z0-9]*(\[abi:cxx11\])?$' |
  grep -vE '\)(\[abi:cxx11\])?::(sheets|encoder)(\[abi:cxx11\])?$' |
  grep -vE '^ std::__ioinit$|DW\.ref\.' |
  grep -v '^ *$')
if [ -n "$faults" ]; then
  echo "writable globals:"
  echo "$faults"
  exit 1
fi
echo "globals: none"
