#!/bin/bash
# Registers the component and the record-file library for the hosts' tests of this build.
source "$(dirname "$0")/lib.sh"
use_prefix hosts
for library in "$(record_file_library)" "$(component)"; do
  status=0
  run regsvr32 /s "$library" || status=$?
  [ $status -eq 0 ] || exit $status
done
