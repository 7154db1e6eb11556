# lib.sh: what the scripts of this folder share; they source it and then set host to the host program.
source "$(dirname "${BASH_SOURCE[0]}")/../documents/lib.sh"
need qpdf pdfimages pdftotext convert python3

# folder NAME: a folder of this test as hosts name it, without its final backslash.
folder() { windows_path "$QM_SCRATCH/$1"; }

# attach EXPECTED NUMBER FOLDER FILE ...: the host's call ends as expected ("made", "error 53").
attach() {
  local expected=$1 output
  shift
  output=$(run "$host" "$(windows_path "$models")" "$@" | tr -d '\r') || fail "$*: the host failed: $output"
  [[ ${output%%$'\n'*} == "$expected"* ]] || fail "$*: expected $expected, got $output"
  given_back=${output#*$'\n'}
}

# expect_no_leftovers DIR: nothing half written stayed there.
expect_no_leftovers() {
  local left
  left=$(find "$1" -name '*.tmp')
  [ -z "$left" ] || fail "left behind: $left"
}

# expect_same_picture PDF BMP: the PDF's one picture and the bitmap have the same pixels.
expect_same_picture() {
  local images=$QM_SCRATCH/images
  rm -rf "$images"
  mkdir "$images"
  pdfimages -png "$1" "$images/page"
  expect_equal "pictures in $1" 1 "$(find "$images" -type f | wc -l)"
  convert "$images"/page-000.png rgb:"$images/pdf.rgb"
  convert "$2" rgb:"$images/bmp.rgb"
  cmp "$images/pdf.rgb" "$images/bmp.rgb" || fail "$1 and $2 differ"
}

expect_sound_pdf() {
  qpdf --check "$1" >"$QM_SCRATCH/qpdf.log" 2>&1 || { cat "$QM_SCRATCH/qpdf.log" >&2; fail "$1 is not sound"; }
}

# entries ARCHIVE: name and size of its entries, after every one was read and found whole.
entries() {
  python3 - "$1" <<'PYTHON'
import sys, zipfile
archive = zipfile.ZipFile(sys.argv[1])
assert archive.testzip() is None, "damaged"
print(" ".join(f"{entry.filename}:{entry.file_size}" for entry in archive.infolist()))
PYTHON
}
