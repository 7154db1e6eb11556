#!/bin/bash
# "Impresora Recibos" has a paper PS of 20 x 10.16 cm at 300 dpi, with margins of a quarter of an inch.
source "$(dirname "$0")/../lib.sh"
need ps2pdf pdftotext pdfinfo
fresh_folders
output=$(run "$1" "Impresora Recibos" "PS" 0 1440 "Recibo 7" | tr -d '\r')
expect_equal "the job" "StartDoc 1 StartPage 1 EndPage 1 EndDoc 1" "$(tail -1 <<<"$output")"
read -r width height dpi < <(head -1 <<<"$output")
expect_near "printable width in twips" $((11339 - 720)) "$width" 10
expect_near "printable height in twips" $((5760 - 720)) "$height" 10
expect_equal "resolution" 300 "$dpi"

expect_jobs 1
job_pdf 1 "$QM_SCRATCH/receipt.pdf"
expect_equal "text" "Recibo 7" "$(pdftotext "$QM_SCRATCH/receipt.pdf" - | head -1)"
read -r width height < <(pdfinfo "$QM_SCRATCH/receipt.pdf" | LC_ALL=C awk '/^Page size/ { print $3, $5 }')
expect_near "page width in points" 566.93 "$width" 1
expect_near "page height in points" 288 "$height" 1
read -r left _ < <(word_box "$QM_SCRATCH/receipt.pdf" Recibo)
expect_near "left edge in points, the margin's" 18 "$left" 1.5
