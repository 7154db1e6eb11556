#!/bin/bash
# Two hosts print one model file at once, a host keeps many objects, and model files lie where users put them: in
# folders with blanks and letters beyond ASCII, or in the current one.
source "$(dirname "$0")/lib.sh"
need ps2pdf pdftotext pdfimages convert
fresh_folders
box="Left=1000 Width=6000 Height=400 FontSize=10 FontName=Arial"
folder="$QM_SCRATCH/Año 2015 · Muñoz e hijos"
models="$folder/mis modelos.xml"
mkdir -p "$folder"
write_models "$models" \
  "$(modelo 1 "$a4 Copias=\"1\"" "$(campo Nombre "Top=1000 $box")" "$(campo Importe "Top=1600 $box")")" \
  "$(modelo 2 "$a4 Copias=\"1\" Imagen=\"señal.bmp\"" "$(campo Nombre "Top=1000 $box")")"
convert -size 50x20 xc:black -type TrueColor "$folder/señal.bmp"

# Each in a prefix of its own: Wine's spooler does not serve two programs of one prefix at once.
(use_fresh_component second)
ids=()
for host in uno dos; do
  (
    [ $host = uno ] || use_prefix second
    imprimir "$models" 1 4 "Nombre=$host" >"$QM_SCRATCH/$host.txt"
  ) &
  ids+=($!)
done
for id in "${ids[@]}"; do wait "$id" || fail "a host failed"; done
for host in uno dos; do
  expect_equal "host $host" $'impreso\nimpreso\nimpreso\nimpreso\nfin' "$(cat "$QM_SCRATCH/$host.txt")"
done
expect_jobs 8
for job in $(seq 8); do
  job_pdf "$job" "$QM_SCRATCH/$job.pdf"
  words_of "$QM_SCRATCH/$job.pdf"
  echo
done | sort | uniq -c | tr -s " " >"$QM_SCRATCH/words.txt"
expect_equal "pages of both hosts" $' 4 dos\n 4 uno' "$(sed '/^ [0-9]* $/d' "$QM_SCRATCH/words.txt")"

fresh_jobs
expect_equal "many objects" fin \
  "$(run cscript //nologo "$(windows_path "$documents/many_objects.js")" "$(windows_path "$models")" 60 | tr -d '\r')"
expect_jobs 4
expect_job 1 a4 objeto59 59,50
expect_job 2 a4 objeto30 30,50
expect_job 3 a4 objeto0 0,50
expect_job 4 a4 otravez 0,50

# The bare name: file and background are looked for in the current folder.
fresh_jobs
expect_equal "a folder with blanks and ñ" $'impreso\nfin' "$(imprimir "$models" 2 1 Nombre=lejos)"
script=$(windows_path "$documents/imprimir.js")
expect_equal "the current folder" $'impreso\nfin' \
  "$(cd "$folder" && run cscript //nologo "$script" "mis modelos.xml" 2 1 Nombre=cerca | tr -d '\r')"
expect_jobs 2
expect_job 1 a4 lejos
expect_job 2 a4 cerca
for job in 1 2; do
  expect_equal "background of job $job" "50 20" \
    "$(pdfimages -list "$QM_SCRATCH/$job.pdf" | LC_ALL=C awk '$3 == "image" { print $4, $5 }')"
done
