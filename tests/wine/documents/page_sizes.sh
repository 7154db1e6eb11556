#!/bin/bash
# The page is as large as the model: the printer's own paper of that size where it has one, else that size.
source "$(dirname "$0")/lib.sh"
need ps2pdf pdfinfo pdftotext
fresh_folders
models=$QM_SCRATCH/modelos.xml
field=$(campo '#Papel' "Top=600 Left=1000 Width=3000 Height=300 FontSize=10 FontName=Arial")
recibos='Copias="1" Printer="Impresora Recibos"'
write_models "$models" \
  "$(modelo 1 "$a4 Copias=\"1\"" "$field")" \
  "$(modelo 2 "Width=\"11340\" Height=\"5750\" $recibos" "$field")" \
  "$(modelo 3 'Width="8000" Height="5000" Copias="1"' "$field")" \
  "$(modelo 4 'Width="16838" Height="11906" Copias="1"' "$field")" \
  "$(modelo 5 "$a4 $recibos" "$field")" \
  "$(modelo 6 "Width=\"8000\" Height=\"5000\" $recibos" "$field")"
for number in 1 2 3 4 5 6; do
  expect_equal "model $number" $'impreso\nfin' "$(imprimir "$models" $number)"
  expect_jobs $number
  job_pdf $number "$QM_SCRATCH/$number.pdf"
done
expect_paper "A4" 595.3 841.9 "$QM_SCRATCH/1.pdf"
expect_paper "the printer's own PS" 566.93 288 "$QM_SCRATCH/2.pdf"
expect_paper "A4 on a printer with a PS of another size" 595 842 "$QM_SCRATCH/5.pdf"

# Given a size that no paper has, Wine's driver draws on a page of that size and lays it at the bottom left of
# the printer's usual sheet.
top_of() {
  local box
  read -r -a box < <(word_box "$QM_SCRATCH/$1.pdf" Papel)
  echo "${box[1]}"
}
expect_drawn_page() { # WHAT MODEL WIDTH HEIGHT, in points
  local box
  read -r -a box < <(LC_ALL=C awk '/^%%BoundingBox: [0-9]/ { print $4, $5; exit }' "$(job_files | sed -n "$2p")")
  expect_near "$1: width in points" "$3" "${box[0]}" 1.5
  expect_near "$1: height in points" "$4" "${box[1]}" 1.5
  expect_near "$1: top of the text" "$(LC_ALL=C awk -v a="$(top_of 1)" -v h="$4" 'BEGIN { print a + 842 - h }')" \
    "$(top_of "$2")" 1.5
}
expect_drawn_page "a size no paper has" 3 400 250.5
expect_drawn_page "wider than high" 4 841.9 595.8
expect_drawn_page "a size this printer does not have" 6 400 250.5
