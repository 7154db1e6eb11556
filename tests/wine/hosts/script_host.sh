#!/bin/bash
# script_host.sh SCRIPT TEXT...: a host run by a script engine, which prints a page with those texts.
source "$(dirname "$0")/lib.sh"
need ps2pdf pdftotext
use_prefix hosts
fresh_folders
script=$1
shift
expect_good_run cscript //nologo "$(windows_path "$hosts/$script")" "$(windows_path "$hosts/modelos.xml")"
expect_page "$@"
