#!/bin/bash
# One page with a field for each rule of how a text stands: alignment, cut and wrapped texts, what a field
# inherits, letters of fonts with a digit in their name, sizes in hundredths, faces and colours.
source "$(dirname "$0")/lib.sh"
need ps2pdf pdftotext pdffonts pdftoppm python3
fresh_folders
models=$QM_SCRATCH/modelos.xml
plain="ForeColor=0 Bold=Falso FontSize=10 FontItalic=Falso Alignment=0 Underline=Falso FontName=Arial"
tinta="Width=3000 Height=800 FontSize=24 Bold=Verdadero"
write_models "$models" "$(modelo 1 "$a4 Copias=\"1\"" \
  "$(campo '#izquierda' "Top=600 Left=1000 Width=3000 Height=300 $plain")" \
  "$(campo '#derecha' "Left=5000 Alignment=1")" \
  "$(campo '#  centro  ' "Left=8000 Width=3001 Alignment=2")" \
  "$(campo CORTADO "Top=1200 Left=1000 Width=1500 $plain")" \
  "$(campo BORDE "Left=10500 Width=4000")" \
  "$(campo '#uno dos tres cuatro cinco seis siete ocho nueve' "Top=1800 Left=1000 Width=1400 Height=500")" \
  "$(campo '#unapalabrasinblancosquenocabe' "Left=4000 Width=700 Height=2000")" \
  "$(campo '#heredado' "Left=8000 Width=3000 Alignment=1")" \
  "$(campo '#sigue' "Top=2200")" \
  "$(campo '#Ñandú' "Top=5000 Left=1000 Width=3000 Alignment=0 FontName=Courier_10")" \
  "$(campo '#Ñandúes' "Left=5000 FontName=Arial")" \
  "$(campo '#centésimas' "Top=5600 Left=1000 FontSize=825")" \
  "$(campo '#centesimas' "Left=4000 FontSize=8,25")" \
  "$(campo '#centesimaz' "Left=7000 FontSize=16.5")" \
  "$(campo '#negrita' "Top=6400 Left=1000 FontSize=10 Bold=Verdadero")" \
  "$(campo '#cursiva' "Left=4000 Bold=0 FontItalic=-1 FontName=Times_New_Roman")" \
  "$(campo '#ambas' "Left=7000 Bold=VERDADERO FontItalic=true FontName=Courier_New")" \
  "$(campo '#subrayado' "Top=7200 Left=1000 $plain Underline=Verdadero")" \
  "$(campo '#liso' "Left=5000 Underline=Falso")" \
  "$(campo '#rojo' "Top=8000 Left=1000 $tinta ForeColor=255")" \
  "$(campo '#tambien' "Left=5000")" \
  "$(campo '#verde' "Top=9000 Left=1000 ForeColor=65280")" \
  "$(campo '#azul' "Left=5000 ForeColor=16711680")")"
letters=$(printf 'A%.0s' $(seq 60))
expect_equal "the host" $'impreso\nfin' \
  "$(imprimir "$models" 1 1 "1:CORTADO=$letters" "1:BORDE=${letters//A/B}")"
expect_jobs 1
job_pdf 1 "$QM_SCRATCH/page.pdf"
"$documents/layout.py" "$QM_SCRATCH/page.pdf"

faces=$(pdffonts "$QM_SCRATCH/page.pdf" | LC_ALL=C awk 'NR > 2 { sub(/.*\+/, "", $1); print $1 }' | sort -u)
for face in LiberationSans LiberationSans-Bold LiberationSerif-Italic LiberationMono-BoldItalic; do
  grep -qx "$face" <<<"$faces" || fail "the page does not use $face; it uses $faces"
done

# A printer that fails at the end fails the action each time, and is no cancelling.
write_models "$models" "$(modelo 1 "$a4 Copias=\"2\" Printer=\"Impresora Averiada\"" \
  "$(campo '#nada' "Top=600 Left=1000 Width=3000 Height=300 $plain")")"
failure="error 482: Error de impresora"
expect_equal "the failing printer" "$failure"$'\n'"$failure"$'\nfin' "$(imprimir "$models" 1 2)"
expect_jobs 1
