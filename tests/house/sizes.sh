#!/bin/bash
# A source file longer than this is two files. Data (golden files, vectors, third-party-like tables) is not counted.
limit=500
cd "$(dirname "$0")/../.." || exit 1
status=0
while read -r lines file; do
  if [ "$file" != total ] && [ "$lines" -gt $limit ]; then
    echo "$file: $lines lines, the limit is $limit. To mend: split it by what its parts are for"
    status=1
  fi
done < <(scripts/sources.sh cpp h sh py cmake | xargs wc -l)
exit $status
