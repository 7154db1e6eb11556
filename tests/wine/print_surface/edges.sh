#!/bin/bash
# edges.sh PRINT_SCENE PRINTER WIDTH HEIGHT: left edges, right edges and centres of 60 texts in 8 font mixes
# stand on the printed page within half a millimetre of where the page has them.
source "$(dirname "$0")/../lib.sh"
need ps2pdf pdftotext python3
fresh_folders
run "$1" edges "$2" "$3" "$4" >"$QM_SCRATCH/expected.txt"
expect_jobs 1
job_pdf 1 "$QM_SCRATCH/page.pdf"
pdftotext -bbox "$QM_SCRATCH/page.pdf" "$QM_SCRATCH/page.html"
python3 "$(dirname "$0")/compare_edges.py" "$QM_SCRATCH/expected.txt" "$QM_SCRATCH/page.html"
