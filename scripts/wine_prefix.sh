#!/bin/bash
# wine_prefix.sh PREFIX GRAPHICS STAMP: makes the Wine prefix of wine-run.sh, which calls it with
# a lock held. STAMP names the recipe; it is written last, so that a prefix half made is made again.
# The environment is the one wine-run.sh gives to programs.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
prefix=$1 graphics=$2 stamp=$3
wine=/usr/lib/wine/wine64
wineserver() { /usr/lib/wine/wineserver "$@"; }
plain=$root/build/wine-prefix
tools=$root/build/wine-tools

echo "making the Wine prefix $prefix ..." >&2

# The small program that installs printers; built here, so that a prefix needs no build of the project.
printer_setup=$tools/printer_setup.exe
source=$root/tools/printer_setup/printer_setup.cpp
mkdir -p "$tools"
if [ ! "$printer_setup" -nt "$source" ]; then
  x86_64-w64-mingw32-g++-posix -std=c++20 -O2 -municode -DUNICODE -D_UNICODE -static \
    -o "$printer_setup.$$" "$source" -lwinspool
  mv "$printer_setup.$$" "$printer_setup"
fi

registry() {
  cat <<REG
REGEDIT4

[HKEY_CURRENT_USER\\Software\\Wine\\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\\Software\\Wine\\X11 Driver]
"Managed"="N"

[HKEY_CURRENT_USER\\Software\\Wine\\Fonts\\Replacements]
"Arial"="Liberation Sans"
"Courier New"="Liberation Mono"
"Times New Roman"="Liberation Serif"
"MS Sans Serif"="Liberation Sans"
"Tahoma"="Liberation Sans"

[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\FontSubstitutes]
"MS Shell Dlg"="Liberation Sans"
"MS Shell Dlg 2"="Liberation Sans"
REG
  printf '\n[HKEY_CURRENT_USER\\Software\\Wine\\Drivers]\n"Graphics"="%s"\n' "$graphics"
}

# The printers' spooler: takes a job from its standard input. Jobs sort by time.
spooler() {
  cat <<SH
#!/bin/sh
# save_job.sh KEY: leaves a print job in \$QM_PRINT_JOBS as <nanoseconds>-<KEY>.ps, complete or not at all.
folder=\${QM_PRINT_JOBS:-$root/build/print-jobs}
mkdir -p "\$folder" || exit 1
name=\$(date +%s%N)-\$1
cat >"\$folder/.\$name.part" && mv "\$folder/.\$name.part" "\$folder/\$name.ps"
SH
}

install_printers() {
  printer "Impresora A4" a4 default
  printer "Impresora Recibos" recibos
  # Nothing listens on this port: jobs start and their pages succeed, the end of the document fails.
  printer_on_port "Impresora Averiada" a4 LPT1:
}

# printer NAME PPD [default]: its jobs become files.
printer() {
  printer_on_port "$1" "$2" "|sh \"$prefix/save_job.sh\" $2" ${3:+"$3"}
}

printer_on_port() {
  local name=$1 ppd=Z:${root//\//\\}\\tools\\printer_setup\\$2.ppd
  shift 2
  "$wine" "$printer_setup" "$name" "$ppd" "$@"
}

# The user's Windows folders are the prefix's own, not the real home.
own_user_folders() {
  local link
  find "$prefix/drive_c/users" -type l | while read -r link; do
    rm "$link"
    mkdir "$link"
  done
}

from_nothing() {
  mkdir "$prefix"
  WINEDLLOVERRIDES="mscoree=d;mshtml=d;winemenubuilder.exe=d" "$wine" wineboot -i
  # The signs of caption buttons and menus; Wine does not look for it in its own folder here.
  cp /usr/share/wine/fonts/marlett.ttf "$prefix/drive_c/windows/Fonts/"
  own_user_folders
}

# own_copy FILE...: files of the plain prefix, at the same places in this one.
own_copy() {
  local file
  for file in "$@"; do
    rm -rf "$prefix${file#"$plain"}"
    cp -a "$file" "$prefix${file#"$plain"}"
  done
}

# A variant of the plain prefix: Windows' own files by hard link, the rest copied, the registry as first made.
from_plain() {
  mkdir -p "$prefix/drive_c"
  cp -a "$plain/dosdevices" "$plain/.update-timestamp" "$prefix/"
  cp -al "$plain/drive_c/windows" "$prefix/drive_c/"
  # What programs write there is a copy of its own; a printer's files are written when it is installed.
  own_copy "$plain"/drive_c/windows/*.ini
  own_copy "$plain"/drive_c/windows/system32/spool
  find "$plain/drive_c" -mindepth 1 -maxdepth 1 ! -name windows -exec cp -a {} "$prefix/drive_c/" \;
  cp "$plain"/qm-pristine/*.reg "$prefix/"
}

if [ -d "$prefix" ]; then wineserver -k || true; fi
rm -rf "$prefix"
if [ "$prefix" != "$plain" ]; then
  exec 8>"$plain.lock"
  flock 8
fi
if [ "$prefix" != "$plain" ] && [ "$(cat "$plain/qm-stamp" 2>/dev/null)" = "$stamp null" ]; then
  from_plain
else
  from_nothing
fi
exec 8>&-
spooler >"$prefix/save_job.sh"
registry >"$prefix/settings.reg"
"$wine" regedit /S "Z:${prefix//\//\\}\\settings.reg"
install_printers
wineserver -k || true
wineserver -w
mkdir "$prefix/qm-pristine"
cp "$prefix"/*.reg "$prefix/qm-pristine/"
rm "$prefix/qm-pristine/settings.reg"
echo "$stamp $graphics" >"$prefix/qm-stamp"
