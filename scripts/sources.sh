#!/bin/bash
# sources.sh EXTENSION...: the project's files with those extensions, as its version control sees them (new
# ones too), or as they lie on disk where there is no version control. Paths from the project's root.
cd "$(dirname "$0")/.." || exit 1
pattern=$(IFS='|'; echo "$*")
{ git ls-files -co --exclude-standard 2>/dev/null || find . -path ./build -prune -o -type f -print | sed 's|^\./||'; } |
  grep -E "\.($pattern)$" | while read -r file; do [ -f "$file" ] && echo "$file"; done | sort -u
