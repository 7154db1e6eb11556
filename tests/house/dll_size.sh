#!/bin/bash
# The component travels with accounting hosts and is loaded into them: it stays small.
limit_kb=3000
[ -f "$QM_SOURCE_DIR/src/api/CMakeLists.txt" ] || { echo "skipped: no automation server is built yet"; exit 77; }
for name in QmModImp3 QmFile2; do
  [ -f "$QM_BINARY_DIR/$name.dll" ] || { echo "$QM_BINARY_DIR/$name.dll is missing"; exit 1; }
done
status=0
for dll in "$QM_BINARY_DIR"/*.dll; do
  size_kb=$(($(stat -c %s "$dll") / 1024))
  echo "$(basename "$dll"): $size_kb KB of $limit_kb"
  if [ $size_kb -gt $limit_kb ]; then
    echo "  To mend: see what it is made of with: nm -S --size-sort -C $dll | tail -40"
    status=1
  fi
done
exit $status
