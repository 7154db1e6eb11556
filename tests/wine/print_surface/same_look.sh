#!/bin/bash
# same_look.sh PRINT_SCENE PRINTER: a page of overlapping texts and a picture, printed with its texts grouped
# by font, looks exactly like the same page printed by plain calls in the order of the document. The picture
# has its own size: 96 dots per inch.
source "$(dirname "$0")/../lib.sh"
need ps2pdf pdftoppm pdfimages
fresh_folders
run "$1" surface "$2"
run "$1" plain "$2"
expect_jobs 2
for job in 1 2; do
  job_pdf $job "$QM_SCRATCH/$job.pdf"
  pdftoppm -r 150 "$QM_SCRATCH/$job.pdf" "$QM_SCRATCH/$job"
done
pages=("$QM_SCRATCH"/1-*.ppm)
[ ${#pages[@]} -eq 1 ] || fail "expected one page, found ${#pages[@]}"
[ "$(tail -c +20 "${pages[0]}" | LC_ALL=C tr -d '\377' | wc -c)" -gt 10000 ] || fail "the page is blank"
cmp "$QM_SCRATCH"/1-*.ppm "$QM_SCRATCH"/2-*.ppm || fail "the pages look different"
expect_equal "pixels and resolution of the picture" "120 40 96 96" \
  "$(pdfimages -list "$QM_SCRATCH/1.pdf" | LC_ALL=C awk '$3 == "image" { print $4, $5, $13, $14 }')"
