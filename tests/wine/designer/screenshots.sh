#!/bin/bash
# screenshots.sh [FOLDER [NAME ...]]: takes the guide's pictures of the designer anew (default: into docs/img), with
# the component of build/win64 on a display of its own. NAME is a picture's name, "disenador" for the main window.
# QM_SCREEN_DPI: another resolution than 96 dots per inch, to see how everything looks there.
set -euo pipefail
root=$(cd "$(dirname "$0")/../../.." && pwd)
here=$root/tests/wine/designer
folder=${1:-$root/docs/img}
mkdir -p "$folder"
folder=$(cd "$folder" && pwd)
export QM_SOURCE_DIR=$root QM_BINARY_DIR=$root/build/win64 QM_SCRATCH=$root/build/win64/scratch/screenshots
export QM_WINEPREFIX=$QM_BINARY_DIR/prefixes/designer
if [ "${QM_SCREEN_DPI:-96}" != 96 ]; then
  QM_WINEPREFIX+=-$QM_SCREEN_DPI
  QM_WINE_GRAPHICS=x11 "$root/scripts/wine-run.sh" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD \
    /d "$QM_SCREEN_DPI" /f >/dev/null
fi
"$here/register.sh"
PYTHONDONTWRITEBYTECODE=1 "$root/scripts/with-display.sh" python3 "$here/screenshots.py" "$folder" "${@:2}"
