#!/bin/bash
# archive_kills.sh PROGRAM: hosts are killed while they add to an archive; it is always a whole one, old or new,
# and another program reads it too.
source "$(dirname "$0")/../lib.sh"
need python3
fresh_folders
run "$1" drive 120 "$(windows_path "$QM_SCRATCH/correo.zip")" "$(windows_path "$QM_SCRATCH/archivos")" | tr -d '\r'
python3 -m zipfile -t "$QM_SCRATCH/correo.zip"
