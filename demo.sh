#!/bin/bash
# demo.sh: installs what is missing, builds the component and the record-file library, registers them in the
# project's private Wine prefix, has script hosts print on the prefix's printers, and leaves what was printed, and
# a picture of the designer, in build/demo/.
set -euo pipefail
cd "$(dirname "$0")"
scripts/build.sh win64

demo=$PWD/build/demo
rm -rf "$demo"
mkdir -p "$demo"
export QM_PRINT_JOBS=$demo/jobs

windows_path() { local path=$PWD/$1; printf 'Z:%s' "${path//\//\\}"; }

# show NAME WHAT: what was printed since the last time, each job as build/demo/NAME-<n>.pdf and .png.
show() {
  local job number=0
  for job in "$QM_PRINT_JOBS"/*.ps; do
    [ -f "$job" ] || { echo "demo: $1 was not printed" >&2; exit 1; }
    number=$((number + 1))
    ps2pdf -dAutoRotatePages=/None "$job" "$demo/$1-$number.pdf"
    pdftoppm -r 100 -png -singlefile "$demo/$1-$number.pdf" "$demo/$1-$number"
    echo "build/demo/$1-$number.pdf, build/demo/$1-$number.png: $2, job $number"
  done
  rm -r "$QM_PRINT_JOBS"
}

# show_attachments FOLDER: the invoice as files to send, and what is in the archive.
show_attachments() {
  pdftoppm -r 100 -png -singlefile "$demo/$1/factura.pdf" "$demo/$1/factura"
  echo "build/demo/$1/factura.pdf, .png: the invoice as a PDF to send, with its texts to search and copy"
  echo "build/demo/$1/factura.zip: the invoice's bitmap, packed: $(python3 -m zipfile -l "$demo/$1/factura.zip" |
    awk 'NR > 1 { print $1 ", " $NF " bytes" }')"
}

for library in QmFile2 QmModImp3; do
  scripts/wine-run.sh regsvr32 /s "$(windows_path build/win64/$library.dll)"
done
scripts/wine-run.sh cscript //nologo "$(windows_path examples/factura.js)"
show factura "an invoice, filled and printed by examples/factura.js on \"Impresora A4\""
scripts/wine-run.sh cscript //nologo "$(windows_path examples/factura.js)" "$(windows_path build/demo/adjuntos)\\"
show_attachments adjuntos
scripts/wine-run.sh cscript //nologo "$(windows_path examples/recibo.vbs)"
show recibo "a receipt, filled and printed by examples/recibo.vbs"
# The label host asks for the sheet's grid; the demo takes what the dialog offers.
scripts/wine-run.sh build/win64/accept_dialog.exe "Opciones de Etiquetas" &
scripts/wine-run.sh cscript //nologo "$(windows_path examples/etiquetas.js)"
wait
show etiquetas "labels of the customers of a record file, made and printed by examples/etiquetas.js"

# The window is looked at on a display of its own; nobody has to do anything.
tests/wine/designer/screenshots.sh "$demo" disenador >/dev/null
echo "build/demo/disenador.png: the designer with the example invoice"
