#!/bin/bash
# "Impresora A4" is the default printer: A4 at 600 dpi without margins, one PostScript file a job.
source "$(dirname "$0")/../lib.sh"
need ps2pdf pdftotext pdfinfo
fresh_folders
for text in "Factura 1.234,50 €" "Albarán nº 2"; do
  output=$(run "$1" "Impresora A4" "" 1440 2880 "$text" | tr -d '\r')
  expect_equal "the job" "StartDoc 1 StartPage 1 EndPage 1 EndDoc 1" "$(tail -1 <<<"$output")"
done
read -r width height dpi < <(head -1 <<<"$output")
expect_near "page width in twips" 11906 "$width" 10
expect_near "page height in twips" 16838 "$height" 10
expect_equal "resolution" 600 "$dpi"

expect_jobs 2
job_pdf 1 "$QM_SCRATCH/first.pdf"
job_pdf 2 "$QM_SCRATCH/second.pdf"
expect_equal "first job" "Factura 1.234,50 €" "$(pdftotext "$QM_SCRATCH/first.pdf" - | head -1)"
expect_equal "second job" "Albarán nº 2" "$(pdftotext "$QM_SCRATCH/second.pdf" - | head -1)"
expect_equal "paper" "595 x 842 pts (A4)" \
  "$(pdfinfo "$QM_SCRATCH/first.pdf" | LC_ALL=C awk -F': *' '/^Page size/ { print $2 }')"
read -r left _ < <(word_box "$QM_SCRATCH/first.pdf" Factura)
expect_near "left edge in points" 72 "$left" 1.5
