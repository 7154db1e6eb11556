#!/bin/bash
# demo.sh: installs what is missing, builds the component, registers it in the project's private Wine prefix,
# has a script host print with it on the prefix's printers, and leaves what was printed in build/demo/.
set -euo pipefail
cd "$(dirname "$0")"
scripts/build.sh win64

demo=$PWD/build/demo
rm -rf "$demo"
mkdir -p "$demo"
export QM_PRINT_JOBS=$demo/jobs

windows_path() { local path=$PWD/$1; printf 'Z:%s' "${path//\//\\}"; }

# show NAME WHAT: the job printed last as build/demo/NAME.pdf and .png.
show() {
  local job
  job=$(find "$QM_PRINT_JOBS" -name '*.ps' 2>/dev/null | sort | tail -1)
  [ -n "$job" ] || { echo "demo: $1 was not printed" >&2; exit 1; }
  ps2pdf -dAutoRotatePages=/None "$job" "$demo/$1.pdf"
  pdftoppm -r 100 -png -singlefile "$demo/$1.pdf" "$demo/$1"
  rm -r "$QM_PRINT_JOBS"
  echo "build/demo/$1.pdf, build/demo/$1.png: $2"
}

scripts/wine-run.sh regsvr32 /s "$(windows_path build/win64/QmModImp3.dll)"
scripts/wine-run.sh cscript //nologo "$(windows_path examples/factura.js)"
show factura "an invoice, filled and printed by examples/factura.js on \"Impresora A4\""
