#!/bin/bash
# prompts.sh PROGRAM: what the user answers is printed; a printer that is missing is asked for once an object;
# the host may do what it likes with its object while a dialog is open.
source "$(dirname "$0")/lib.sh"
need ps2pdf pdftotext
fresh_folders
models=$QM_SCRATCH/modelos.xml
box="Left=1000 Width=6000 Height=400 FontSize=10 FontName=Arial"
write_models "$models" \
  "$(modelo 1 "$a4 Copias=\"2\"" "$(campo '#?Número de pedido' "Top=1000 $box")" \
     "$(campo '#?Recibí' "Top=1600 $box")" "$(campo Total "Top=2200 $box")")" \
  "$(modelo 2 "$a4 Copias=\"1\" Printer=\"Impresora Vieja\"" "$(campo '#Segundo' "Top=1000 $box")")" \
  "$(modelo 3 "$a4 Copias=\"1\"" "$(campo '#Tercero' "Top=1000 $box")")"
host() { fresh_jobs; expect_good_host "$program" "$1" "$(windows_path "$models")"; }
program=$1

host answers
expect_jobs 4
expect_job 1 a4 Pedido/77 Íñigo
expect_job 2 a4 Pedido/77
expect_job 3 a4 Begoña
expect_job 4 a4 Begoña

host printer
expect_jobs 5
expect_job 1 a4 Segundo
expect_job 2 a4 Segundo
expect_job 3 recibos Segundo
expect_job 4 a4 Tercero
expect_job 5 a4 Tercero

host release
expect_jobs 3
expect_job 1 a4 Pedido/78
expect_job 2 a4 Pedido/78
expect_job 3 a4 Segundo

host filling
expect_jobs 3
expect_job 1 a4 Tercero
expect_job 2 a4 Pedido/79 nuevo
expect_job 3 a4 Pedido/79 nuevo
