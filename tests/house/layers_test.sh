#!/bin/bash
# The guard of the layers finds each kind of offence, and only those.
set -euo pipefail
rm -rf "$QM_SCRATCH"
mkdir -p "$QM_SCRATCH"/{runtime,platform/win32,model,print/text,odd}
cd "$QM_SCRATCH"
echo '#include "model/document.h"' >runtime/upwards.h
printf '#include <vector>\n#include <windows.h>\n' >model/document.h
echo '#include "platform/win32/handle.h"' >print/text/fit.h
printf '#include "platform/surface.h"\n#include <winspool.h>\n' >platform/win32/handle.h
echo '#include "platform/ring.h"' >platform/surface.h
echo '#include "platform/surface.h"' >platform/ring.h
touch odd/lost.cpp
found=$("$QM_SOURCE_DIR/tests/house/layers.py" . | grep -v '^To mend' || true)
expected='src/model/document.h:2: <windows.h> belongs in */win32/, automation/, api/ and qmfile2/ only; use an interface of platform/
src/odd/lost.cpp: this folder has no row in the table of layers
src/print/text/fit.h:1: portable code must not include "platform/win32/handle.h"; use an interface of platform/
src/runtime/upwards.h:1: runtime may include no other folder; not model
files include one another: platform/ring.h -> platform/surface.h -> platform/ring.h'
diff <(echo "$expected") <(echo "$found")
