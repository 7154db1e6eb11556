#!/bin/bash
# ejemplo.sh SENDER: the example mails its invoice.
source "$(dirname "$0")/lib.sh"
need unzip pdftotext
use_prefix hosts
fresh_folders
use_sender "$1"
expect_equal "correo.js" "Mensaje en la bandeja de salida" \
  "$(run cscript //nologo "$(windows_path "$QM_SOURCE_DIR/examples/correo.js")" "$(windows_path "$QM_SCRATCH")" | tr -d '\r')"
expect_starts 1

archives=("$QM_SCRATCH/Bandeja de Salida"/*)
expect_equal "archives" 1 ${#archives[@]}
expect_equal "what travels" $'EMAIL.TXT\nEMAIL.HTM\nFONDO_FACTURA.GIF\nFactura 2015-0042.pdf' \
  "$(unzip -Z1 "${archives[0]}")"
unzip -q -o "${archives[0]}" -d "$QM_SCRATCH"
cmp "$QM_SCRATCH/FONDO_FACTURA.GIF" "$QM_SOURCE_DIR/examples/fondo_factura.gif" || fail "the picture has changed"
grep -qF "Adjuntamos su factura.<BR>Un saludo." "$QM_SCRATCH/EMAIL.HTM" || fail "the text is not in the template"
text=$(pdftotext -layout "$QM_SCRATCH/Factura 2015-0042.pdf" -)
for word in "2015/0042" "Muñoz & Íñiguez, Construcciones" "1.099,04"; do
  grep -qF -- "$word" <<<"$text" || fail "\"$word\" is missing in the PDF: $text"
done
