#!/bin/bash
# format.sh: formats every C++ source. format.sh --check: prints what it would change and exits 1.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
version=$(clang-format --version 2>/dev/null | grep -oE 'version [0-9]+' | grep -oE '[0-9]+')
if [ "${version:-0}" != 14 ]; then
  echo "clang-format 14 is not installed (found: ${version:-none})" >&2
  exit 77
fi
mode=(-i)
[ "${1:-}" = --check ] && mode=(--dry-run --Werror --ferror-limit=3)
if scripts/sources.sh cpp h | xargs -r -P 2 -n 16 clang-format "${mode[@]}"; then exit 0; fi
echo "To mend: scripts/format.sh" >&2
exit 1
