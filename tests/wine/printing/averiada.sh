#!/bin/bash
# "Impresora Averiada" takes a job and its pages, and fails at the end of the document.
source "$(dirname "$0")/../lib.sh"
fresh_folders
status=0
output=$(run "$1" "Impresora Averiada" "" 0 0 "nada" | tr -d '\r') || status=$?
expect_equal "exit code" 3 "$status"
expect_equal "the job" "StartDoc 1 StartPage 1 EndPage 1 EndDoc 0" "$(tail -1 <<<"$output")"
expect_jobs 0
