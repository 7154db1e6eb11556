# lib.sh: what the scripts of this folder share; they source it. Their prefix, in which the component of this
# build is registered, is document_test's.
source "$(dirname "${BASH_SOURCE[0]}")/../lib.sh"
documents=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
a4='Width="11906" Height="16838"'

# campo DESCRIPTION CHILDREN: a field of a model, CHILDREN as "Top=600 Left=1000 ...", values without blanks
# (a blank in a value is written as "_").
campo() {
  local child
  printf '<Campo><Descripcion>%s</Descripcion>' "$1"
  for child in $2; do
    printf '<%s>%s</%s>' "${child%%=*}" "${child#*=}" "${child%%=*}" | tr _ ' '
  done
  printf '</Campo>'
}

# modelo NUMBER ATTRIBUTES FIELD...
modelo() {
  local number=$1 attributes=$2
  shift 2
  printf '<Modelo Numero="%s" %s>' "$number" "$attributes"
  printf '%s' "$@"
  printf '</Modelo>'
}

# write_models FILE MODELO...
write_models() {
  local file=$1
  shift
  { printf '<Modelos>'; printf '%s' "$@"; printf '</Modelos>'; } | iconv -t cp1252 >"$file"
}

# expect_good_host PROGRAM ARGS...: a C++ host that says at its end that everything was as expected.
expect_good_host() {
  local output status=0
  output=$(run "$@" 2>&1 | tr -d '\r') || status=$?
  [ $status -ne 77 ] || { echo "$output"; exit 77; }
  if [ $status -ne 0 ] || [ "$(tail -1 <<<"$output")" != "host finished: everything as expected" ]; then
    fail "exit code $status; output: ${output:-none}"
  fi
}

# expect_job NUMBER PRINTER [WORD...]: that job came from the printer (a4, recibos) and has exactly those words.
expect_job() {
  local number=$1 printer=$2 job
  shift 2
  job=$(job_files | sed -n "${number}p")
  expect_equal "printer of job $number" "$printer" "$(basename "$job" .ps | sed 's/^[0-9]*-//')"
  job_pdf "$number" "$QM_SCRATCH/$number.pdf"
  expect_equal "words of job $number" "$*" "$(words_of "$QM_SCRATCH/$number.pdf")"
}

# words_of PDF: the texts of a document, in one line. The font has one drawing for the hyphen and the soft
# hyphen, and the printed file names it by the latter.
words_of() {
  pdftotext -layout "$1" - | tr -d '\f' | tr -s ' \n' ' ' | sed 's/^ //; s/ $//; s/\xC2\xAD/-/g'
}

# paper_of PDF: width and height of the first page in points.
paper_of() {
  pdfinfo "$1" | LC_ALL=C awk '/^Page size/ { print $3, $5 }'
}

expect_paper() {
  local what=$1 width=$2 height=$3 actual
  read -r -a actual < <(paper_of "$4")
  expect_near "$what: width in points" "$width" "${actual[0]}" 1
  expect_near "$what: height in points" "$height" "${actual[1]}" 1
}

fresh_jobs() {
  rm -rf "$QM_PRINT_JOBS"
  mkdir -p "$QM_PRINT_JOBS"
}

use_prefix() {
  export QM_WINEPREFIX=$QM_BINARY_DIR/prefixes/$1
}

# use_fresh_component NAME: a prefix of this test's own, with this build's component.
use_fresh_component() {
  use_prefix "$1"
  run regsvr32 /s "$(windows_path "$QM_BINARY_DIR/QmModImp3.dll")" || fail "regsvr32 failed in $QM_WINEPREFIX"
}
