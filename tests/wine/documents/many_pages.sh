#!/bin/bash
# many_pages.sh PROGRAM: five hundred pages leave no handle, object or memory behind.
source "$(dirname "$0")/../lib.sh"
fresh_folders
"$(dirname "$0")/positions.py" model 11906 16838 "Impresora A4" "$QM_SCRATCH/modelos.xml"
run "$1" "$(windows_path "$QM_SCRATCH/modelos.xml")" 500 | tr -d '\r'
expect_jobs 520
rm -r "$QM_PRINT_JOBS"
