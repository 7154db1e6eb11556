#!/bin/bash
# Registers the component in the prefix of the clerk's runs.
source "$(dirname "$0")/../lib.sh"
export QM_WINE_GRAPHICS=x11
status=0
run regsvr32 /s "$(windows_path "$QM_BINARY_DIR/QmModImp3.dll")" || status=$?
exit $status
