#!/bin/bash
# test.sh: installs what is missing, builds everything and runs every test: natively under sanitizers, as
# x64 and x86 Windows programs, the fuzz targets for a few seconds. Ends with "N passed, M failed, K skipped".
# Logs: build/<preset>/Testing/Temporary/LastTest.log.
set -uo pipefail
cd "$(dirname "$0")" || exit 1
scripts/build.sh native win64 win32 fuzz || { echo "the build failed"; exit 1; }
# From here on the machine's own locale and time zone change nothing.
export LC_ALL=C.UTF-8 TZ=Europe/Madrid
passed=0 failed=0 skipped=0
started=$SECONDS

# Every later test starts its programs fast because of this one.
scripts/wine-run.sh cmd /c exit || { echo "Wine does not run"; exit 1; }

for preset in native win64 win32; do
  tree=build/$preset
  rm -rf "$tree/results" "$tree/junit.xml"
  ctest --test-dir "$tree" -j "${QM_JOBS:-2}" --output-on-failure --output-junit "$PWD/$tree/junit.xml" \
    >"$tree/ctest.log" 2>&1
  counts=$(scripts/count_tests.py "$tree") || { cat "$tree/ctest.log"; exit 1; }
  read -r p f s <<<"$counts"
  echo "$preset: $p passed, $f failed, $s skipped ($((SECONDS - started)) s)"
  [ $((p + f + s)) -gt 0 ] || { echo "$preset: ctest ran nothing"; cat "$tree/ctest.log"; exit 1; }
  passed=$((passed + p)) failed=$((failed + f)) skipped=$((skipped + s))
done

fuzz=$(scripts/fuzz.sh)
[ -z "$fuzz" ] || echo "$fuzz"
passed=$((passed + $(grep -c '^PASS' <<<"$fuzz")))
failed=$((failed + $(grep -c '^FAIL' <<<"$fuzz")))

echo "$passed passed, $failed failed, $skipped skipped"
[ "$failed" -eq 0 ]
