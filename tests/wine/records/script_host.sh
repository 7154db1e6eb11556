#!/bin/bash
# A script host builds a record file with the registered library, fills it and reads it back.
source "$(dirname "$0")/../hosts/lib.sh"
use_prefix hosts
fresh_folders
expect_good_run cscript //nologo "$(windows_path "$QM_SOURCE_DIR/tests/wine/records/archivo.js")" "$(windows_path "$QM_SCRATCH")"
[ -s "$QM_SCRATCH/clientes.qmd" ] || fail "there is no clientes.qmd"
