#!/bin/bash
# program_host.sh registered|manifest PROGRAM TEXT...: a C++ host, which prints a page with those texts.
source "$(dirname "$0")/lib.sh"
need ps2pdf pdftotext
how=$1 program=$2
shift 2
fresh_folders
arguments=("$(windows_path "$hosts/modelos.xml")")
if [ "$how" = registered ]; then
  use_prefix hosts
else
  # Nothing is registered where this runs.
  use_prefix unregistered
  architecture=x64
  [ "$QM_RUN_FLAGS" != --win32 ] || architecture=x86
  cp "$QM_SOURCE_DIR/packaging/QmModImp3.$architecture.manifest" "$QM_BINARY_DIR/QmModImp3.dll" "$QM_SCRATCH/"
  arguments+=("$(windows_path "$QM_SCRATCH/QmModImp3.$architecture.manifest")" "$(windows_path "$QM_SCRATCH")")
fi
expect_good_run "$program" "${arguments[@]}"
expect_page "$@"
