# lib.sh: what the scripts of tests/wine share; they source it. Their environment is qm_script_test's.
set -euo pipefail

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# Where a tool that the test cannot do without is missing, the test is skipped with that reason.
need() {
  local tool
  for tool; do
    command -v "$tool" >/dev/null || { echo "skipped: $tool is not installed" >&2; exit 77; }
  done
}

# run PROGRAM ARGS...: a program of this build (or a name such as cscript) as a Windows program.
run() {
  "$QM_SOURCE_DIR/scripts/wine-run.sh" ${QM_RUN_FLAGS:+"$QM_RUN_FLAGS"} "$@"
}

# windows_path FILE: how a Windows program calls that file.
windows_path() {
  local path
  path=$(realpath -m "$1")
  printf 'Z:%s' "${path//\//\\}"
}

# Empties the folders of this test.
fresh_folders() {
  rm -rf "$QM_PRINT_JOBS" "$QM_SCRATCH"
  mkdir -p "$QM_PRINT_JOBS" "$QM_SCRATCH"
}

# job_files: the printed jobs, oldest first.
job_files() {
  find "$QM_PRINT_JOBS" -name '*.ps' | sort
}

expect_jobs() {
  local count
  count=$(job_files | wc -l)
  [ "$count" -eq "$1" ] || fail "expected $1 printed jobs, found $count"
}

# job_pdf NUMBER FILE: the NUMBERth job (from 1) as a PDF file.
job_pdf() {
  local job
  job=$(job_files | sed -n "$1p")
  [ -n "$job" ] || fail "there is no printed job number $1"
  ps2pdf -dAutoRotatePages=/None "$job" "$2"
}

expect_equal() {
  [ "$2" = "$3" ] || fail "$1: expected <$2>, got <$3>"
}

# expect_near WHAT EXPECTED ACTUAL TOLERANCE
expect_near() {
  LC_ALL=C awk -v a="$2" -v b="$3" -v t="$4" 'BEGIN { d = a - b; exit (d <= t && -d <= t) ? 0 : 1 }' ||
    fail "$1: expected $2 within $4, got $3"
}

# word_box FILE WORD: "left top right bottom" of the first such word of a PDF file, in points.
word_box() {
  pdftotext -bbox "$1" - | LC_ALL=C awk -v word="$2" -F'"' '
    index($0, ">" word "</word>") { print $2, $4, $6, $8; exit }'
}

# imprimir MODELS.xml NUMBER [TIMES [FIELD=VALUE ...]]: a script host prints with the registered component.
imprimir() {
  local models=$1
  shift
  run cscript //nologo "$(windows_path "$QM_SOURCE_DIR/tests/wine/documents/imprimir.js")" \
    "$(windows_path "$models")" "$@" | tr -d '\r' | iconv -f cp850 -t utf-8
}
