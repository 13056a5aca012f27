#!/bin/bash
# Builds the game as a page and serves it to this machine alone.
#   serve.sh DISPLAY    yes where a browser can be opened here, otherwise no
# ORVANE_PORT is the port, 8020 without it; the next ones are tried where it is taken.
set -u
cd "$(dirname "$(realpath "$0")")/.." || exit 1
has_display=${1:-no}

[ "$has_display" = yes ] || echo "There is no display here, so the game is built as a page for a browser and served to this machine."
command -v emcc >/dev/null ||
  echo "What the build needs is installed first: about 300 MB to fetch and 1.5 GB on the disk, most of it a compiler."
tools/web.sh || exit 1

python=$(command -v /usr/bin/python3 || command -v python3) || {
  echo "Python 3 is missing, which serves the page; build-web/site can be served by any other server." >&2
  exit 1
}
first=${ORVANE_PORT:-8020}
for ((port = first; port < first + 10; ++port)); do
  (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null || break
done
address="http://127.0.0.1:$port/"
"$python" -m http.server --protocol HTTP/1.1 --bind 127.0.0.1 --directory build-web/site "$port" >/dev/null 2>&1 &
server=$!
trap 'kill "$server" 2>/dev/null; wait "$server" 2>/dev/null; echo; exit 0' INT TERM
for _ in {1..50}; do
  (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null && break
  kill -0 "$server" 2>/dev/null || {
    echo "The page cannot be served on port $port." >&2
    exit 1
  }
  sleep 0.1
done
echo "The game is at $address until you press Ctrl-C."
if [ "$has_display" = yes ]; then
  xdg-open "$address" >/dev/null 2>&1 || echo "Open that address in a browser."
else
  echo "From another machine, tunnel to it:  ssh -L $port:127.0.0.1:$port $(id -un)@$(hostname)"
  echo "and open the same address in a browser there."
fi
wait "$server"
