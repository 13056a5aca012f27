# For tests that go on behind a fault and tell of all of them. Sourced.
# shellcheck shell=bash

faults=0

# fault WHAT: tells of one.
fault() {
  echo "$1"
  faults=$((faults + 1))
}

# no_faults WHAT: whether there were none; then says what is well.
no_faults() {
  [ "$faults" -eq 0 ] && echo "$1"
}
