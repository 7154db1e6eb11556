#!/bin/bash
# positions.sh PRINTER WIDTH HEIGHT MARGIN: a script host prints sixty fields in eight font mixes through the
# component; on the page they stand where the model says, within half a millimetre. MARGIN is in points.
source "$(dirname "$0")/../lib.sh"
need ps2pdf pdftotext
here=$(dirname "$0")
fresh_folders
"$here/positions.py" model "$2" "$3" "$1" "$QM_SCRATCH/modelos.xml"
mapfile -t values < <("$here/positions.py" values "$2" "$3")
output=$(imprimir "$QM_SCRATCH/modelos.xml" 1 1 "${values[@]}")
expect_equal "the host" $'impreso\nfin' "$output"
expect_jobs 1
job_pdf 1 "$QM_SCRATCH/page.pdf"
"$here/positions.py" check "$2" "$3" "$4" "$QM_SCRATCH/page.pdf"
