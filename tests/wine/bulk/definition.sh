#!/bin/bash
# The example's definition file is what its maker makes.
source "$(dirname "$0")/../lib.sh"
fresh_folders
run cscript //nologo "$(windows_path "$QM_SOURCE_DIR/examples/definicion.js")" \
  "$(windows_path "$QM_SCRATCH/CLIEN.Qma")" Clientes NOMBRE DIRECCION POBLACION NIF ALTA SALDO >"$QM_SCRATCH/output.txt"
cmp "$QM_SCRATCH/CLIEN.Qma" "$QM_SOURCE_DIR/examples/CLIEN.Qma" || fail "the files differ; $(cat "$QM_SCRATCH/output.txt")"
