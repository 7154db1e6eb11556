#!/bin/bash
# build.sh [native|native-release|fuzz|win64|win32 ...]   (default: native win64 win32)
# Installs what is missing, then configures and builds those presets in build/<preset>.
# QM_JOBS sets how many compilers run at once (default: one a processor).
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
presets=("$@")
[ $# -gt 0 ] || presets=(native win64 win32)
"$root/scripts/bootstrap.sh"

cd "$root"
launcher=()
if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
for preset in "${presets[@]}"; do
  log=build/configure-$preset.log
  cmake --preset "$preset" "${launcher[@]}" >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
  cmake --build --preset "$preset" -- --quiet -j "${QM_JOBS:-$(nproc)}"
done
