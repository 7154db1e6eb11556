#!/bin/bash
# apartment_host.sh PROGRAM: a host whose calls are marshaled between apartments.
source "$(dirname "$0")/lib.sh"
use_prefix hosts
expect_good_run "$1"
