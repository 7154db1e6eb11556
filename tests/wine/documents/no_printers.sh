#!/bin/bash
# no_printers.sh PROGRAM: on a machine without printers a model that names none fails with error 482, one that
# names a printer asks the user, who can only give up.
source "$(dirname "$0")/lib.sh"
fresh_folders
export CUPS_SERVER=$QM_SCRATCH/no-cups.sock
use_fresh_component no-printers
for key in 'HKLM\System\CurrentControlSet\Control\Print\Printers' 'HKCU\Software\Microsoft\Windows NT\CurrentVersion\Devices'; do
  run reg delete "$key" /f >/dev/null 2>&1 || true
done
run reg add 'HKLM\System\CurrentControlSet\Control\Print\Printers' /f >/dev/null 2>&1
run reg delete 'HKCU\Software\Microsoft\Windows NT\CurrentVersion\Windows' /v Device /f >/dev/null 2>&1 || true
expect_equal "printers" "" "$(run "$2" | tr -d '\r')"

models=$QM_SCRATCH/modelos.xml
box="Top=1000 Left=1000 Width=6000 Height=400 FontSize=10 FontName=Arial"
write_models "$models" \
  "$(modelo 2 "$a4 Copias=\"1\" Printer=\"Impresora Vieja\"" "$(campo '#Segundo' "$box")")" \
  "$(modelo 3 "$a4 Copias=\"1\"" "$(campo '#Tercero' "$box")")"
expect_good_host "$1" no_printers "$(windows_path "$models")"
expect_jobs 0
