#!/bin/bash
# Registers the component for the hosts' tests of this build.
source "$(dirname "$0")/lib.sh"
use_prefix hosts
status=0
run regsvr32 /s "$(component)" || status=$?
[ $status -eq 0 ] || exit $status
