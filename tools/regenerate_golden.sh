#!/bin/sh
# Writes the logs of tests/golden anew with the native build. Review the difference before committing it.
set -eu
cd "$(dirname "$0")/.."
[ -f build/native/build.ninja ] || cmake --preset native
cmake --build build/native --target golden_log -j2
for script in tests/golden/*.data; do
  name=${script%.data}
  build/native/tests/print/golden_log "$name.xml" "$script" "$name.log"
done
git diff --stat -- tests/golden
