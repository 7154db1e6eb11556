#!/bin/bash
# store_kills.sh PROGRAM: hosts are killed while they store; the file is always one of the two that were stored.
source "$(dirname "$0")/../lib.sh"
fresh_folders
run "$1" drive 200 "$(windows_path "$QM_SCRATCH/almacen.qmd")" | tr -d '\r'
