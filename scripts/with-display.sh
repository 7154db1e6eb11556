#!/bin/bash
# with-display.sh COMMAND ARGS...
# Runs COMMAND with a private X display of 1280x1024 and, for wine-run.sh, the prefix that opens windows on
# it (or QM_WINEPREFIX, which has to be such a one). One at a time, because the windows of a prefix belong to one
# display. Exits with the command's code.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
[ $# -gt 0 ] || { sed -n '2,5s/^# \{0,1\}//p' "$0" >&2; exit 2; }
mkdir -p "$root/build"
exec 8>"$root/build/with-display.lock"
flock 8

number_file=$(mktemp)
Xvfb -displayfd 5 -screen 0 1280x1024x24 -nolisten tcp 5>"$number_file" 8>&- >/dev/null 2>&1 </dev/null &
server=$!
# A prefix that still runs from before would go on without this display.
stop_prefix() {
  WINEPREFIX=${QM_WINEPREFIX:-$root/build/wine-prefix-x11} /usr/lib/wine/wineserver -k >/dev/null 2>&1 || true
}
finish() {
  stop_prefix
  kill "$server" 2>/dev/null || true
  wait "$server" 2>/dev/null || true
  rm -f "$number_file"
}
trap finish EXIT
stop_prefix
for _ in $(seq 100); do
  [ -s "$number_file" ] && break
  kill -0 "$server" 2>/dev/null || { echo "with-display: Xvfb did not start" >&2; exit 1; }
  sleep 0.05
done
DISPLAY=:$(cat "$number_file")
export DISPLAY QM_WINE_GRAPHICS=x11
"$@" 8>&-
