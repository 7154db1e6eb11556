#!/bin/bash
# run.sh HOST TEXT...: a host that loads records, which prints a page with those texts. HOST is a script of this
# folder, or a program with its binding.
source "$(dirname "$0")/../hosts/lib.sh"
need ps2pdf pdftotext
here=$(cd "$(dirname "$0")" && pwd)
use_prefix hosts
fresh_folders
host=$1
shift

# definition COUNT TITLE NAME...: a definition file, padded with blanks.
definition() {
  printf '%-2s%-23s%8s' "$1" "$2" ""
  shift 2
  printf '        %-23s  ' "$@"
}
definition 04 Clientes NOMBRE NIF SALDO ALTA >"$QM_SCRATCH/CLIEN.Qma"
head -c 160 "$QM_SCRATCH/CLIEN.Qma" >"$QM_SCRATCH/CORTA.Qma"
arguments=("$(windows_path "$here/modelos.xml")" "$(windows_path "$QM_SCRATCH/CLIEN")")

case $host in
  *.js | *.vbs) expect_good_run cscript //nologo "$(windows_path "$here/$host")" "${arguments[@]}" ;;
  *) expect_good_run "${host%:*}" "${host##*:}" "${arguments[@]}" ;;
esac
expect_page "$@"
