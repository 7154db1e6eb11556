#!/bin/bash
# The example hosts print what they say.
source "$(dirname "$0")/../lib.sh"
need ps2pdf pdftotext
fresh_folders
example() { run cscript //nologo "$(windows_path "$QM_SOURCE_DIR/examples/$1")" | tr -d '\r'; }
text_of_job() { job_pdf "$1" "$QM_SCRATCH/$1.pdf"; pdftotext -layout "$QM_SCRATCH/$1.pdf" -; }

expect_equal "factura.js" "Factura impresa" "$(example factura.js)"
expect_jobs 2
invoice=$(text_of_job 1)
copy=$(text_of_job 2)
for text in "ORIGINAL" "Ferretería La Ñora, S.L." "Muñoz & Íñiguez, Construcciones" "31/12/15" "31/01/16" "166,00" \
  "96,60" "908,30" "190,74" "1.099,04"; do
  grep -qF -- "$text" <<<"$invoice" || fail "\"$text\" is missing on the invoice: $invoice"
done
grep -qF "COPIA PARA EL CLIENTE" <<<"$copy" || fail "the second copy does not say so"
! grep -qF "ORIGINAL" <<<"$copy" || fail "the second copy says it is the original"

expect_equal "recibo.vbs" "Recibo impreso" "$(example recibo.vbs)"
expect_jobs 3
receipt=$(text_of_job 3)
for text in "RECIBÍ" "Recibo 7/2015" "500,00" "Muñoz & Íñiguez, Construcciones" "31/12/15"; do
  grep -qF -- "$text" <<<"$receipt" || fail "\"$text\" is missing on the receipt: $receipt"
done

expect_equal "recibo.exe" "Recibo impreso" "$(run "$1" "$(windows_path "$QM_SOURCE_DIR/examples/modelos.xml")" | tr -d '\r')"
expect_jobs 4
expect_equal "the C++ host's receipt" "$receipt" "$(text_of_job 4)"

run "$2" "Opciones de Etiquetas" &
expect_equal "etiquetas.js" "Etiquetas impresas" "$(example etiquetas.js)"
wait $! || fail "the label options were not asked for"
expect_jobs 5
labels=$(text_of_job 5)
expect_equal "sheets of 2 x 8 labels for 20 customers" 2 "$(pdfinfo "$QM_SCRATCH/5.pdf" | awk '/^Pages/ { print $2 }')"
expect_equal "customers, four times each" 4 "$(grep -oF "Librería Güell" <<<"$labels" | wc -l)"
grep -qF "29/02/20" <<<"$labels" || fail "a date is missing on the labels: $labels"
