#!/bin/bash
# wine-run.sh [--win32] PROGRAM ARGS...
# Runs a Windows program (a path of this system, or a name such as cscript) in the project's private Wine
# prefix, which is made at first use: Spanish locale, the project's printers, no crash dialogs, no display.
# Exits with the program's code; with --win32 where there is no 32-bit Wine, with 77 and the reason.
#
#   QM_WINEPREFIX     another prefix; it is made when absent
#   QM_WINE_LOCALE    es_ES.UTF-8 (default), C.UTF-8 for en-US, ...; each locale has a prefix of its own
#   QM_WINE_GRAPHICS  null (default), or x11 to open windows on DISPLAY (see with-display.sh); likewise
#   QM_PRINT_JOBS     where printed jobs are left, one PostScript file each (default: build/print-jobs)
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
loader=/usr/lib/wine/wine64
if [ "${1:-}" = --win32 ]; then
  shift
  loader=/usr/lib/wine/wine
  if [ ! -x $loader ]; then
    echo "wine-run: no 32-bit Wine on this machine (see build/wine32-unavailable.txt)" >&2
    exit 77
  fi
fi
[ $# -gt 0 ] || { sed -n '2,10s/^# \{0,1\}//p' "${BASH_SOURCE[0]}" >&2; exit 2; }

locale=${QM_WINE_LOCALE:-es_ES.UTF-8}
graphics=${QM_WINE_GRAPHICS:-null}
prefix=$root/build/wine-prefix
[ "$graphics" = null ] || prefix+=-$graphics
[ "$locale" = es_ES.UTF-8 ] || prefix+=-$locale
prefix=${QM_WINEPREFIX:-$prefix}
mkdir -p "$root/build" "$(dirname "$prefix")"

environment=(WINEPREFIX="$prefix" WINEDEBUG="${WINEDEBUG:--all}" LC_ALL="$locale"
  WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree=d;winemenubuilder.exe=d}")
if [ "$locale" != C.UTF-8 ]; then
  # Without the locale generated, every file name with a letter beyond ASCII fails.
  locales=$root/build/locale
  if [ ! -d "$locales/$locale" ]; then
    mkdir -p "$locales"
    localedef -i "${locale%%.*}" -f UTF-8 "$locales/.$locale.$$"
    mv -T "$locales/.$locale.$$" "$locales/$locale" 2>/dev/null || rm -rf "$locales/.$locale.$$"
  fi
  environment+=(LOCPATH="$locales")
fi

# What a prefix is made from; when it changes, the prefix is made again.
recipe_stamp() {
  { cat "$root/scripts/wine_prefix.sh" "$root"/tools/printer_setup/*.{cpp,ppd}
    stat -c '%n %Y' /usr/lib/wine/*
    echo "$root"; } | sha256sum | cut -c1-16
}

stamp=$(recipe_stamp)
exec 9>"$prefix.lock"
flock 9
if [ "$(cat "$prefix/qm-stamp" 2>/dev/null)" != "$stamp $graphics" ]; then
  if [ -d "$prefix/drive_c" ] && [ ! -f "$prefix/save_job.sh" ] && [ -f "$prefix/system.reg" ]; then
    echo "wine-run: $prefix was not made by this project; it is left alone" >&2
    exit 1
  fi
  env "${environment[@]}" "$root/scripts/wine_prefix.sh" "$prefix" "$graphics" "$stamp" \
    </dev/null >"$prefix.log" 2>&1 9>&- || { tail -n 20 "$prefix.log" >&2; exit 1; }
fi
# A server that outlives the program makes the next start a matter of milliseconds. Its helpers would keep
# the first program's output open, so they are started by a program that has none.
server_status=0
env "${environment[@]}" /usr/lib/wine/wineserver -p60 </dev/null >/dev/null 2>&1 9>&- || server_status=$?
if [ $server_status -eq 0 ]; then
  env "${environment[@]}" /usr/lib/wine/wine64 cmd /c exit </dev/null >/dev/null 2>&1 9>&- || true
fi
exec 9>&-
exec env "${environment[@]}" $loader "$@"
