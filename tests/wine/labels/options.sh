#!/bin/bash
# options.sh PRINT_LABELS: the label options as the user meets them: the defaults, what is remembered, the key that
# both margins share, and that cancelling prints and saves nothing.
source "$(dirname "$0")/../lib.sh"
here=$(dirname "$0")
fresh_folders
python3 "$here/sheets.py" model 5950 2100 "$QM_SCRATCH/etiquetas.xml"
run reg delete 'HKCU\Software\TALVO\Etiquetas' /f >/dev/null 2>&1 || true

# labels ROWS ANSWER...: "offered options: outcome"
labels() {
  local rows=$1
  shift
  run "$program" "Impresora A4" "$(windows_path "$QM_SCRATCH/etiquetas.xml")" "$rows" "$@" | tr -d '\r' | paste -sd: -
}
program=$1

expect_equal "first use, cancelled" "02|08|0|0|21|29,50:anulado" "$(labels 3 cancelar)"
expect_jobs 0
expect_equal "nothing was saved" "02|08|0|0|21|29,50:impreso" "$(labels 3 2 8 0 0,5 21 29,70)"
expect_jobs 1
expect_equal "the left margin is offered for both" "2|8|0,5|0,5|21|29,70:impreso" "$(labels 0 aceptar)"
expect_jobs 1
expect_equal "a count that is none" "2|8|0,5|0,5|21|29,70:error 13" "$(labels 3 dos 8 0 0 21 29,70)"
expect_equal "a count too large" "2|8|0,5|0,5|21|29,70:error 6" "$(labels 3 2 40000 0 0 21 29,70)"
expect_jobs 1
expect_equal "neither was saved" "2|8|0,5|0,5|21|29,70:anulado" "$(labels 3 cancelar)"
