#!/bin/bash
# The same host on a Spanish and on an English machine: amounts, dates and Boolean words are the user's; so are
# the texts of the model, which are read leniently.
source "$(dirname "$0")/lib.sh"
need ps2pdf pdftotext
fresh_folders
models=$QM_SCRATCH/modelos.xml
column() { # LEFT FIELD...: one field below the other
  local left=$1 top=600 field
  shift
  for field; do
    campo "$field" "Top=$top Left=$left Width=3000 Height=300 FontSize=10 FontName=Arial Bold=Falso"
    top=$((top + 400))
  done
}
write_models "$models" "$(modelo 1 "$a4 Copias=\"1\"" \
  "$(column 1000 Importe Millones Cero Dia Numero Fecha Pagado Texto)" \
  "$(campo '#Centésimas' "Top=6000 Left=1000 FontSize=8,25")" "$(campo '#Negrita' "Top=6400 Bold=Verdadero")")"

prints() {
  expect_equal "the host" $'impreso\nfin' \
    "$(run cscript //nologo "$(windows_path "$documents/valores.vbs")" "$(windows_path "$models")" 1 | tr -d '\r')"
}
size_of() { # WORD: its width in points
  local left top right bottom
  read -r left top right bottom < <(word_box "$QM_SCRATCH/$1.pdf" "Centésimas")
  LC_ALL=C awk -v a="$left" -v b="$right" 'BEGIN { print b - a }'
}

prints
expect_jobs 1
export QM_WINE_LOCALE=C.UTF-8
use_fresh_component english
prints
expect_jobs 2
expect_job 1 a4 1.234,50 -1.234.567,89 31/12/15 1234,5 31/12/2015 Verdadero 1234,5 Centésimas Negrita
expect_job 2 a4 1,234.50 -1,234,567.89 31/12/15 1234.5 12/31/2015 True 1234,5 Centésimas Negrita
expect_near "8,25 points, read as 825 hundredths" "$(size_of 1)" "$(size_of 2)" 0.1
