#!/bin/bash
# fuzz.sh [TARGET ...]: runs fuzz targets (default: all), two side by side, for QM_FUZZ_SECONDS each (20).
# Builds nothing: scripts/build.sh fuzz does. What a target finds is kept in build/fuzz/runs/TARGET and tried
# first the next time; an input that breaks it is left in build/fuzz/crashes. Prints one line a target.
set -uo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
tree=$root/build/fuzz
targets=("$@")
[ $# -gt 0 ] || mapfile -t targets < <(ls "$tree/corpora" 2>/dev/null)

fuzz_one() {
  local name=$1 tree=$2 work=$2/runs/$1 crashes=$2/crashes log=$2/$1.log seeds
  seeds=$(cat "$tree/corpora/$name")
  mkdir -p "$work" "$crashes"
  if "$tree/targets/$name" -max_total_time="${QM_FUZZ_SECONDS:-20}" -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix="$crashes/$name-" "$work" "$seeds" >"$log" 2>&1 </dev/null; then
    echo "PASS fuzz:$name $(grep -aoE '^Done [0-9]+ runs' "$log")"
  else
    echo "FAIL fuzz:$name"
    grep -aE 'ERROR|runtime error|Test unit written|SUMMARY' "$log" | head -5 | sed 's/^/     /'
    return 1
  fi
}
export -f fuzz_one
[ ${#targets[@]} -eq 0 ] || printf '%s\n' "${targets[@]}" | xargs -P 2 -I{} bash -c 'fuzz_one "$1" "$2"' _ {} "$tree"
