#!/bin/bash
# Every copy is a print job of its own; a text for one copy stands on that copy only. What the user is not asked
# about, and what fails, ends as the host is told.
source "$(dirname "$0")/../lib.sh"
need ps2pdf pdftotext
fresh_folders
models=$QM_SCRATCH/modelos.xml
page='Width="11906" Height="16838"'
field() { # DESCRIPTION TOP
  printf '<Campo><Descripcion>%s</Descripcion><Top>%s</Top><Left>1000</Left><Width>6000</Width><Height>400</Height>' "$1" "$2"
  printf '<FontSize>10</FontSize><FontName>Arial</FontName></Campo>'
}
{
  echo "<Modelos><Modelo Numero=\"1\" $page Copias=\"3\">$(field '#1Original' 1000)$(field '#3Triplicado' 1000)$(field Total 2000)</Modelo>"
  echo "<Modelo Numero=\"2\" $page Copias=\"1\" Printer=\"Impresora Averiada\">$(field '#Nada' 1000)</Modelo>"
  echo "<Modelo Numero=\"3\" $page Printer=\"Impresora A4\">$(field '#Nada' 1000)</Modelo></Modelos>"
} | iconv -t cp1252 | tr -d '\n' >"$models"

expect_equal "three copies" $'impreso\nfin' "$(imprimir "$models" 1 1 Total=99)"
expect_jobs 3
for copy in 1 2 3; do
  job_pdf $copy "$QM_SCRATCH/$copy.pdf"
  printed[copy]=$(pdftotext "$QM_SCRATCH/$copy.pdf" - | tr -d '\f' | sed '/^$/d' | tr '\n' ' ')
done
expect_equal "first copy" "Original 99 " "${printed[1]}"
expect_equal "second copy" "99 " "${printed[2]}"
expect_equal "third copy" "Triplicado 99 " "${printed[3]}"

fresh_jobs() { rm -rf "$QM_PRINT_JOBS"; mkdir -p "$QM_PRINT_JOBS"; }
fresh_jobs
expect_equal "a printer whose job fails at its end" $'error 482: Error de impresora\nfin' "$(imprimir "$models" 2)"
expect_jobs 0
expect_equal "a model without copies" $'impreso\nfin' "$(imprimir "$models" 3)"
expect_jobs 0
expect_equal "a model that is not there" \
  $'error 50102: No existe el modelo de impresión...debe crearlo primero\nfin' "$(imprimir "$models" 9)"
expect_equal "a model file that is not there" \
  $'error 50100: No existen modelos de impresión...debe crearlos primero\nfin' \
  "$(imprimir "$QM_SCRATCH/ninguno.xml" 1)"
[ ! -e "$QM_SCRATCH/ninguno.xml" ] || fail "printing made a model file"
