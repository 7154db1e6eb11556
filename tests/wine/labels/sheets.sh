#!/bin/bash
# sheets.sh PRINT_LABELS PRINTER MARGIN ROWS WIDTH HEIGHT ACROSS DOWN TOP LEFT PAGE_WIDTH PAGE_HEIGHT SHEETS: labels
# of WIDTH by HEIGHT twips, printed with those options (cm), stand on so many sheets where they should, within half a
# millimetre. MARGIN is the printer's own, in points.
source "$(dirname "$0")/../lib.sh"
need ps2pdf pdftotext pdfinfo python3
here=$(dirname "$0")
program=$1 printer=$2 margin=$3 rows=$4 width=$5 height=$6
shift 6
options=("$1" "$2" "${3/./,}" "${4/./,}" "$5" "$6")
fresh_folders
python3 "$here/sheets.py" model "$width" "$height" "$QM_SCRATCH/etiquetas.xml"
output=$(run "$program" "$printer" "$(windows_path "$QM_SCRATCH/etiquetas.xml")" "$rows" "${options[@]}" | tr -d '\r')
expect_equal "the outcome" impreso "$(tail -n 1 <<<"$output")"
expect_jobs 1
job_pdf 1 "$QM_SCRATCH/etiquetas.pdf"
expect_equal "sheets" "$7" "$(pdfinfo "$QM_SCRATCH/etiquetas.pdf" | LC_ALL=C awk '/^Pages/ { print $2 }')"
python3 "$here/sheets.py" check "$width" "$height" "$rows" "$1" "$2" "$3" "$4" "$margin" "$QM_SCRATCH/etiquetas.pdf"
