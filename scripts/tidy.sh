#!/bin/bash
# tidy.sh [--windows] [FILE ...]: clang-tidy on the portable sources (default: every .cpp of src/ that build/native
# compiles; name test files to have them looked at too), or, with --windows, on those that only build/win64
# compiles, which takes ten times as long. A file is looked at again only when it, or something it includes from
# this project, or the rules have changed. Needs build/native, with --windows build/win64 as well.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
version=$(clang-tidy --version 2>/dev/null | grep -oE 'version [0-9]+' | grep -oE '[0-9]+')
[ "${version:-0}" = 14 ] || { echo "clang-tidy 14 is not installed (found: ${version:-none})" >&2; exit 77; }
cache=build/tidy
mkdir -p "$cache"

# compiled TREE: "source hash" of each source; the hash is of all the project's files that its object depends on.
compiled() {
  ninja -C "$1" -t deps | LC_ALL=C awk -v root="$PWD/" '
    /^[^ ].*#deps/ { if (source != "") print source, list; source = ""; list = "" }
    /^    / {
      file = substr($0, 5)
      sub("^[.][.]/[.][.]/", root, file)  # a compiler cache may write paths relative to the build tree
      if (file !~ "^/") next
      if (index(file, root) != 1 || index(file, root "build/") == 1) next
      file = substr(file, length(root) + 1)
      if (source == "" && file ~ /\.cpp$/) source = file
      list = list " " file
    }
    END { if (source != "") print source, list }' |
    while read -r source files; do
      # shellcheck disable=SC2086
      echo "$source $(cat .clang-tidy $files | sha256sum | cut -c1-24)"
    done | sort -u
}

# The headers of the cross compiler, and what cannot be otherwise there: handles and message parameters are
# numbers and pointers by turns, and interfaces begin with an underscore. Two are mistaken: a `new` within a
# call that catches is said to escape, a defaulted operator<=> to be a null pointer.
windows_arguments() {
  echo --extra-arg=--target=x86_64-w64-windows-gnu --extra-arg=-nostdinc++ \
    "--checks=-performance-no-int-to-ptr,-bugprone-reserved-identifier,\
-bugprone-unhandled-exception-at-new,-modernize-use-nullptr"
  x86_64-w64-mingw32-g++-posix -xc++ -E -v - </dev/null 2>&1 >/dev/null |
    sed -n '/^#include </,/^End/s/^ //p' | grep -E '/c\+\+|mingw32/include$' | sed 's/^/--extra-arg=-isystem/'
}

tidy_one() {
  local source=$1 hash=$2 cache=$3 output
  [ -f "$cache/$hash" ] && return
  # shellcheck disable=SC2086
  if output=$(clang-tidy -p $TIDY_ARGUMENTS --quiet "$source" 2>/dev/null); then
    touch "$cache/$hash"
  else
    echo "$output"
    return 1
  fi
}
export -f tidy_one

sources=$(compiled build/native)
export TIDY_ARGUMENTS=build/native
if [ "${1:-}" = --windows ]; then
  shift
  sources=$(awk 'NR == FNR { portable[$1]; next } !($1 in portable)' <(echo "$sources") <(compiled build/win64))
  TIDY_ARGUMENTS="build/win64 $(windows_arguments | tr '\n' ' ')"
fi
if [ $# -gt 0 ]; then wanted=$(printf '%s\n' "$@" | paste -sd'|'); else wanted='src/.*'; fi
if grep -E "^($wanted) " <<<"$sources" | xargs -r -P 2 -n 2 bash -c 'tidy_one "$1" "$2" '"$cache" _; then exit 0; fi
echo "To mend: change the lines named above; clang-tidy -p build/native --fix FILE does the mechanical ones"
exit 1
