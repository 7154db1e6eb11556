#!/bin/bash
# apartment_host.sh PROGRAM: a host whose calls are marshaled between apartments.
source "$(dirname "$0")/lib.sh"
use_prefix hosts
architecture=x64
[ "$QM_RUN_FLAGS" != --win32 ] || architecture=x86
expect_good_run "$1" "$(windows_path "$QM_SOURCE_DIR/src/api/typelib/$architecture/QmFile2.tlb")"
