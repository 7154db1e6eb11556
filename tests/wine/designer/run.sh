#!/bin/bash
# run.sh SCRIPT: a run of the clerk's, on a display of its own. The component is registered in the prefix that
# the test names.
source "$(dirname "$0")/../lib.sh"
need Xvfb xdotool import convert ps2pdf pdftotext
here=$(cd "$(dirname "$0")" && pwd)
fresh_folders
PYTHONDONTWRITEBYTECODE=1 "$QM_SOURCE_DIR/scripts/with-display.sh" python3 "$here/$1"
