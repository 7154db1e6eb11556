#!/bin/bash
# bench.sh: builds and runs the programs of bench/: natively, as x64 Windows programs and, where there is
# 32-bit Wine, as x86 ones. What they print is compared with docs/performance.md by eye.
# Best on a quiet machine; programs that are compared take turns, so that their ratio bears a busy one.
#   QM_BENCH_PAGES   pages over which memory is watched (default 1000)
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"
scripts/build.sh native-release win64 win32
QM_PRINT_JOBS=$(mktemp -d)
export QM_PRINT_JOBS
trap 'rm -rf "$QM_PRINT_JOBS"' EXIT

echo "load: $(cut -d' ' -f1-3 /proc/loadavg)"
build/native-release/bench/bench_compose
build/native-release/bench/bench_model_file
for platform in win64 win32; do
  flags=()
  if [ $platform = win32 ]; then
    [ -x /usr/lib/wine/wine ] || { echo "$platform: no 32-bit Wine here"; continue; }
    flags=(--win32)
  fi
  for bench in picture_surface printer_surface attachments designer; do
    echo "$platform, $bench"
    scripts/wine-run.sh "${flags[@]}" build/$platform/bench_$bench.exe
  done
  echo "$platform, whole_page"
  scripts/wine-run.sh "${flags[@]}" build/$platform/bench_whole_page.exe "Impresora A4" "${QM_BENCH_PAGES:-1000}"
done
