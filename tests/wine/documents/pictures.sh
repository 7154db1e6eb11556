#!/bin/bash
# pictures.sh PROGRAM CLIPBOARD_USER: pictures that the host hands over fill their boxes, a background stands at the page's
# corner at its own size; a picture that cannot be read fails the print, of which nothing comes out.
source "$(dirname "$0")/lib.sh"
need ps2pdf pdftoppm pdftotext python3 convert
fresh_folders
program=$1
models=$QM_SCRATCH/modelos.xml
text="Left=6000 Width=4000 Height=400 FontSize=10 FontName=Arial"
attributes="$a4 Copias=\"1\""
photos=() boxes=()
for left in 600 4200 7800; do
  for top in 600 3400 6200 9000 11800; do
    photos+=("$(campo 'FOTO (SOCIO)' "Left=$left Top=$top Width=3000 Height=2250")")
    boxes+=("picture:$left,$top,3000,2250")
  done
done
write_models "$models" \
  "$(modelo 1 "$attributes" "$(campo '#Antes' "Top=600 $text")" \
     "$(campo 'FOTO (SOCIO)' 'Left=2000 Top=3000 Width=3000 Height=2250')" \
     "$(campo 'FIRMA (SOCIO)' 'Left=6000 Top=9000 Width=1500 Height=3000')" "$(campo '#Después' "Top=14000 $text")")" \
  "$(modelo 2 "$attributes Imagen=\"fondo.bmp\"" "$(campo '#Encima' "Top=600 $text")" \
     "$(campo 'FOTO (SOCIO)' 'Left=6000 Top=9000 Width=3000 Height=2250')")" \
  "$(modelo 3 "$a4 Copias=\"2\"" "$(campo '#Antes' "Top=600 $text")" \
     "$(campo 'FOTO (SOCIO)' 'Left=2000 Top=3000 Width=3000 Height=2250')" "$(campo '#Después' "Top=14000 $text")")" \
  "$(modelo 5 "$attributes" "${photos[@]}")" \
  "$(modelo 4 "$attributes Imagen=\"rota.bmp\"" "$(campo '#Encima' "Top=600 $text")")"

# picture WIDTH HEIGHT FILE: red and green above, blue and yellow below.
picture() {
  convert -size "$1x$2" xc:'rgb(230,20,20)' -fill 'rgb(20,160,20)' -draw "rectangle $(($1 / 2)),0 $1,$2" \
    -fill 'rgb(20,20,230)' -draw "rectangle 0,$(($2 / 2)) $(($1 / 2 - 1)),$2" \
    -fill 'rgb(240,230,20)' -draw "rectangle $(($1 / 2)),$(($2 / 2)) $1,$2" -type TrueColor "$3"
}
picture 80 60 "$QM_SCRATCH/foto.bmp"
picture 120 90 "$QM_SCRATCH/firma.jpg"
picture 100 80 "$QM_SCRATCH/fondo.bmp"
printf 'BM nothing of the kind' | tee "$QM_SCRATCH/rota.bmp" >"$QM_SCRATCH/rota.jpg"
foto=$(windows_path "$QM_SCRATCH/foto.bmp") firma=$(windows_path "$QM_SCRATCH/firma.jpg")
rota=$(windows_path "$QM_SCRATCH/rota.jpg")
host() { local scene=$1; shift; expect_good_host "$program" "$scene" "$(windows_path "$models")" "$@"; }

host good 1 100 200 "$foto" 'FOTO (SOCIO)' "$firma" 'FIRMA (SOCIO)'
host good 2 200 150 "$firma" 'FOTO (SOCIO)'
expect_jobs 2
expect_job 1 a4 Antes Después
expect_job 2 a4 Encima
"$documents/pictures.py" "$QM_SCRATCH/1.pdf" bitmap:2000,3000,3000,2250 jpeg:6000,9000,1500,3000
"$documents/pictures.py" "$QM_SCRATCH/2.pdf" background:0,0,1500,1200 jpeg:6000,9000,3000,2250

fresh_jobs
host broken 3 "$rota" 'FOTO (SOCIO)'
host broken 4
expect_jobs 0

# Whatever other programs do with the clipboard, each box gets its own picture.
expect_good_host "$2" "$(windows_path "$program")" disturbed "$(windows_path "$models")" 5 "$foto" 'FOTO (SOCIO)'
expect_jobs 1
job_pdf 1 "$QM_SCRATCH/1.pdf"
"$documents/pictures.py" "$QM_SCRATCH/1.pdf" "${boxes[@]}"
