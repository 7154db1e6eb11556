#!/bin/bash
# pdf.sh HOST: PDF files made by CrearZip are sound, show the bitmap to the pixel, and their texts are found
# where they are seen.
source "$(dirname "$0")/lib.sh"
host=$1
fresh_folders
models=$QM_SCRATCH/modelos.xml
write_models "$models" \
  "$(modelo 1 "$a4 Copias=\"3\" Printer=\"No existe\"" \
     "$(campo '#Señor' 'Top=1000 Left=1000 Width=4000 Height=400 FontSize=12 FontName=Arial')" \
     "$(campo Importe 'Top=2000 Left=5000 Width=3000 Height=400 Alignment=1')" \
     "$(campo Texto 'Top=3000 Left=1000 Width=6000 Height=900 Alignment=0 FontName=Courier_New')")" \
  "$(modelo 2 "$a4 Copias=\"1\" Imagen=\"colores.bmp\"" \
     "$(campo '#Encima' 'Top=500 Left=500 Width=4000 Height=400 FontSize=20 FontName=Arial')")"
convert -size 500x400 gradient:red-blue -swirl 40 BMP3:"$QM_SCRATCH/colores.bmp"
out=$QM_SCRATCH/salida

attach made 1 "$(folder salida)\\" "Factura nº 42.pdf" "Importe=1.234,56 €" "Texto=Ana y Ωmega"
pdf="$out/Factura nº 42.pdf"
expect_sound_pdf "$pdf"
expect_same_picture "$pdf" "$out/EFactura.bmp"
expect_paper "page" 595.5 842.25 "$pdf"
expect_equal "title" "Factura nº 42" "$(pdfinfo "$pdf" | sed -n 's/^Title: *//p')"
expect_equal "tagged" yes "$(pdfinfo "$pdf" | sed -n 's/^Tagged: *//p')"
grep -aq '/Lang(es-ES)' "$pdf" || fail "the language is not said"
expect_equal "words" "Señor 1.234,56 € Ana y Ωmega" "$(words_of "$pdf")"
expect_equal "read aloud" "Señor|1.234,56 €|Ana y Ωmega|" \
  "$(pdfinfo -struct-text "$pdf" | sed -n 's/^ *"\(.*\)"$/\1/p' | tr '\n' '|')"

# Points are 20 twips; what is seen lies in the box, right-aligned texts end at its right edge.
read -r -a box < <(word_box "$pdf" Señor)
expect_near "left of Señor" 50 "${box[0]}" 0.8
read -r -a seen < <(python3 "$documents/../attachments/ink.py" "$out/EFactura.bmp" 1000 1000 4000 400)
expect_near "left of what is seen" "${seen[0]}" "${box[0]}" 1.5
expect_near "right of what is seen" "${seen[2]}" "${box[2]}" 1.5
[ "$(LC_ALL=C awk -v t="${seen[1]}" -v b="${seen[3]}" -v T="${box[1]}" -v B="${box[3]}" \
      'BEGIN { print (T < b && B > t) }')" = 1 ] || fail "Señor is at ${box[*]}, seen at ${seen[*]}"
read -r -a box < <(word_box "$pdf" €)
expect_near "right of the amount" 400 "${box[2]}" 0.8
read -r -a box < <(word_box "$pdf" Ωmega)
read -r -a seen < <(python3 "$documents/../attachments/ink.py" "$out/EFactura.bmp" 1000 3000 6000 400)
expect_near "right of the last word" "${seen[2]}" "${box[2]}" 1.5

# The same document is the same file.
cp "$pdf" "$QM_SCRATCH/first.pdf"
attach made 1 "$(folder salida)\\" "Factura nº 42.pdf" "Importe=1.234,56 €" "Texto=Ana y Ωmega"
cmp "$pdf" "$QM_SCRATCH/first.pdf" || fail "the second file differs"

# Photographs have more colours than a palette holds.
attach made 2 "$(folder salida)\\" foto.PDF
expect_sound_pdf "$out/foto.PDF"
expect_same_picture "$out/foto.PDF" "$out/EFactura.bmp"
expect_equal "words on a photograph" Encima "$(words_of "$out/foto.PDF")"

# Without the final backslash the bitmap is saved in the folder and looked for beside it.
attach "error 53" 1 "$(folder otra)" fra.pdf
[ -f "$QM_SCRATCH/otra/EFactura.bmp" ] || fail "the bitmap was not saved"
[ ! -e "$QM_SCRATCH/otra/fra.pdf" ] || fail "a PDF was made"
cp "$QM_SCRATCH/colores.bmp" "$QM_SCRATCH/otraEFactura.bmp"
attach made 1 "$(folder otra)" fra.pdf
expect_same_picture "$QM_SCRATCH/otra/fra.pdf" "$QM_SCRATCH/colores.bmp"
expect_sound_pdf "$QM_SCRATCH/otra/fra.pdf"

# A file that somebody has open stays as it is, and nobody is told.
attach made 1 "$(folder salida)\\" "Factura nº 42.pdf" --locks "$(folder 'salida/Factura nº 42.pdf')"
cmp "$pdf" "$QM_SCRATCH/first.pdf" || fail "the locked file was changed"

attach "error 76" 1 "$(folder falta/dentro)\\" fra.pdf
attach "error 50102" 9 "$(folder salida)\\" fra.pdf
expect_no_leftovers "$QM_SCRATCH"

# The example host leaves its invoice as both.
expect_equal "factura.js" "Factura lista para enviar" \
  "$(run cscript //nologo "$(windows_path "$QM_SOURCE_DIR/examples/factura.js")" "$(folder ejemplo)\\" | tr -d '\r')"
expect_sound_pdf "$QM_SCRATCH/ejemplo/factura.pdf"
expect_same_picture "$QM_SCRATCH/ejemplo/factura.pdf" "$QM_SCRATCH/ejemplo/EFactura.bmp"
invoice=$(words_of "$QM_SCRATCH/ejemplo/factura.pdf")
for text in "FACTURA" "Muñoz & Íñiguez, Construcciones" "31/12/15" "1.099,04"; do
  grep -qF -- "$text" <<<"$invoice" || fail "\"$text\" is missing on the invoice: $invoice"
done
expect_equal "entries" "EFactura.bmp:2677286" "$(entries "$QM_SCRATCH/ejemplo/factura.zip")"
