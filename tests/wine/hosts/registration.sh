#!/bin/bash
# Both bitnesses are registered side by side: either goes without the other, and both leave nothing behind.
source "$(dirname "$0")/lib.sh"
x64=$QM_SOURCE_DIR/build/win64
x86=$QM_SOURCE_DIR/build/win32
[ -f "$x64/QmModImp3.dll" ] && [ -f "$x86/QmModImp3.dll" ] || { echo "skipped: needs both builds, win64 and win32" >&2; exit 77; }
[ -x /usr/lib/wine/wine ] || { echo "skipped: no 32-bit Wine on this machine" >&2; exit 77; }
use_prefix registration
fresh_folders
wine_run=$QM_SOURCE_DIR/scripts/wine-run.sh

regsvr64() {
  "$wine_run" regsvr32 /s "$@" "$(windows_path "$x64/QmFile2.dll")"
  "$wine_run" regsvr32 /s "$@" "$(windows_path "$x64/QmModImp3.dll")"
}
regsvr86() {
  "$wine_run" --win32 regsvr32 /s "$@" "$(windows_path "$x86/QmFile2.dll")"
  "$wine_run" --win32 regsvr32 /s "$@" "$(windows_path "$x86/QmModImp3.dll")"
}

# dump NAME: the machine's classes, one sorted line for each key and each value.
dump() {
  "$wine_run" reg export 'HKLM\Software\Classes' "$(windows_path "$QM_SCRATCH/$1.reg")" /y >/dev/null
  iconv -f UTF-16 -t UTF-8 "$QM_SCRATCH/$1.reg" | tr -d '\r' |
    awk '/^\[/ { key = $0; print key; next } NF { print key, $0 }' | LC_ALL=C sort >"$QM_SCRATCH/$1.txt"
}

# works64, works86: a host of that bitness prints.
works64() { QM_RUN_FLAGS="" host; }
works86() { QM_RUN_FLAGS=--win32 host; }
host() { expect_good_run cscript //nologo "$(windows_path "$hosts/host.js")" "$(windows_path "$hosts/modelos.xml")"; }
fails() { (works"$1") >/dev/null 2>&1 && fail "the $1-bit component still works" || true; }

regsvr64 /u || true  # what an earlier, broken run may have left
regsvr86 /u || true
fails 64  # and the script engines have made their own entries
fails 86
dump before

regsvr64
works64
fails 86
regsvr86
regsvr86  # again, over itself
works64
works86
dump both
for entry in 'CLSID\\{EF7037AF' 'Wow6432Node\\CLSID\\{EF7037AF' 'TypeLib\\{C4035D2F' 'Interface\\{8889E8E6' \
             'Qm_Modelo_Impresion3.PrintForm\\Clsid' 'ThreadingModel"="Apartment"' '409\\win32' '409\\win64' \
             'CLSID\\{44BEAA7F' 'Wow6432Node\\CLSID\\{44BEAA7F' 'TypeLib\\{8D6CD1EA' 'Interface\\{915BCCAB' \
             'QmFile2.QmFileControl2\\Clsid'; do
  grep -qiF -- "${entry//\\\\/\\}" "$QM_SCRATCH/both.txt" || fail "nothing is registered as $entry"
done

regsvr64 /u
works86
fails 64
regsvr64
regsvr86 /u
works64
fails 86
regsvr64 /u
dump after
diff "$QM_SCRATCH/before.txt" "$QM_SCRATCH/after.txt" || fail "unregistering left the lines above"
