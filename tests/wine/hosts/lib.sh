# lib.sh: what the scripts of this folder share; they source it.
source "$(dirname "${BASH_SOURCE[0]}")/../lib.sh"
hosts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

# A prefix of this build's own: what is registered here disturbs nobody.
use_prefix() {
  export QM_WINEPREFIX=$QM_BINARY_DIR/prefixes/$1
}

component() {
  windows_path "$QM_BINARY_DIR/QmModImp3.dll"
}

record_file_library() {
  windows_path "$QM_BINARY_DIR/QmFile2.dll"
}

# expect_good_run PROGRAM ARGS...: a host that says at its end that everything was as expected.
expect_good_run() {
  local output status=0
  output=$(run "$@" 2>&1 | tr -d '\r') || status=$?
  [ $status -ne 77 ] || { echo "$output"; exit 77; }
  if [ $status -ne 0 ] || [ "$(tail -1 <<<"$output")" != "host finished: everything as expected" ]; then
    fail "exit code $status; output: ${output:-none}"
  fi
}

# expect_page TEXT...: exactly one job was printed, a page with those texts.
expect_page() {
  local text page
  expect_jobs 1
  job_pdf 1 "$QM_SCRATCH/page.pdf"
  page=$(pdftotext -layout "$QM_SCRATCH/page.pdf" -)
  for text; do
    grep -qF -- "$text" <<<"$page" || fail "the page lacks <$text>; it has: $page"
  done
}
