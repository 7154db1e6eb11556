#!/bin/bash
# run.sh ARCHITECTURE PRINTER_SETUP: programs run with their width, exit code, file names and locale, also
# several at once, and the prefix has its printers.
source "$(dirname "$0")/../lib.sh"
fresh_folders

status=0
run cmd /c "exit 7" || status=$?
expect_equal "exit code" 7 "$status"
expect_equal "width" "$1" "$(run cmd /c 'echo %PROCESSOR_ARCHITECTURE%' | tr -d '\r')"

ids=()
for code in 1 2 3 4; do
  run cmd /c "exit $code" &
  ids+=($!)
done
for code in 1 2 3 4; do
  status=0
  wait "${ids[code - 1]}" || status=$?
  expect_equal "exit code of the program number $code at once" $code $status
done

# A script host says nothing of its errors: the last line shows that the script got there.
file="$QM_SCRATCH/Año · 1.js"
cat >"$file" <<'JS'
var files = new ActiveXObject("Scripting.FileSystemObject");
WScript.Echo(files.FileExists(WScript.ScriptFullName) + " done");
WScript.Quit(5);
JS
status=0
output=$(run cscript //nologo "$(windows_path "$file")" | tr -d '\r') || status=$?
expect_equal "a script with letters beyond ASCII in its name" "-1 done" "${output/true/-1}"
expect_equal "its exit code" 5 "$status"

decimal() { run reg query 'HKCU\Control Panel\International' /v sDecimal | LC_ALL=C awk '/REG_SZ/ { print $3 }' | tr -d '\r'; }
expect_equal "decimal separator" "," "$(decimal)"
expect_equal "decimal separator in English" "." "$(QM_WINE_LOCALE=C.UTF-8 decimal)"

expect_equal "printers" "Impresora A4/default Impresora Averiada/ Impresora Recibos/" \
  "$(run "$2" | tr -d '\r' | LC_ALL=C awk -F'\t' '{ print $1 "/" $4 }' | sort | paste -sd' ')"
