#!/bin/bash
# regenerate_interface.sh: makes anew what is made from the interface tables (src/*/typelib/definition.cpp): the type
# libraries, the C++ header for hosts, the side-by-side manifests. Review the changes: hosts are compiled against them.
# tests/golden/interface.txt follows with QM_UPDATE_GOLDEN=1 scripts/wine-run.sh build/win64/api_tests.exe.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"
scripts/bootstrap.sh
cmake --preset win64 >/dev/null
cmake --build --preset win64 --target generate_interface
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT
scripts/wine-run.sh build/win64/generate_interface.exe "Z:${made//\//\\}"
mkdir -p src/api/typelib/x64 src/api/typelib/x86 packaging
for architecture in x64 x86; do cp "$made/$architecture"/*.tlb "src/api/typelib/$architecture/"; done
cp "$made/QmModImp3.h" src/api/typelib/
cp "$made"/*.manifest packaging/
git status --short -- src/api/typelib packaging
