#!/bin/bash
# correo.sh SENDER: script hosts keep profiles and send messages; the stand-in sender is started, and the archives
# are read back by other programs.
source "$(dirname "$0")/lib.sh"
need unzip pdftotext
use_prefix hosts
fresh_folders
here=$QM_SOURCE_DIR/tests/wine/mail

use_sender "$1"

printf '<Modelos><Modelo Numero="1" Width="6000" Height="3000"><Campo><Descripcion>Cliente</Descripcion>%s</Campo>%s' \
  "<Top>300</Top><Left>300</Left><Width>4000</Width><Height>600</Height><FontSize>14</FontSize>" \
  "</Modelo></Modelos>" >"$QM_SCRATCH/modelos.xml"
expect_good_run cscript //nologo "$(windows_path "$here/correo.js")" "$(windows_path "$QM_SCRATCH")" "$(windows_path "$log")"
expect_good_run cscript //nologo "$(windows_path "$here/perfiles.vbs")"
"$here/read_back.py" "$QM_SCRATCH"

# Six messages, six starts, hidden; the outgoing folder is the one argument.
expect_starts 6
program="C:\\${common#*/drive_c/}"
program="\"${program//\//\\}\\Qmenviar.exe\""
for outgoing in "espera 2" "trabajos 4"; do
  read -r name count <<<"$outgoing"
  line="$program \"$(windows_path "$QM_SCRATCH/$name")\\\"|0|"
  expect_equal "starts with $name" "$count" "$(grep -cF -- "$line" "$log" || true)"
done

# Nothing is left in the working folder, and no password is anywhere in plain text but in the profile.
work=$(find "$QM_WINEPREFIX/drive_c/users" -type d -path '*/Local/Quillmar/CRM')
[ -n "$work" ] || fail "there is no working folder"
expect_equal "files in the working folder" "" "$(ls -A "$work")"
for password in "secreto" "Contrase"; do
  ! LC_ALL=C grep -rlaF -- "$password" "$QM_SCRATCH/espera" "$QM_SCRATCH/trabajos" "$common" "$work" ||
    fail "the password stands in plain text"
done
