#!/bin/bash
# bootstrap.sh: installs what the build and the tests need, then makes the third-party libraries.
# Does nothing, in well under a second, when nothing is missing. Installing takes root or sudo.
# 32-bit Wine is wanted but not required: without it the x86 programs are built and their tests skipped.
# A failed attempt to install it is remembered; QM_RETRY_WINE32=1 tries again.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
export DEBIAN_FRONTEND=noninteractive LC_ALL=C
apt_options=(-q -y -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3)
wine32_note=$root/build/wine32-unavailable.txt
log=$root/build/bootstrap.log
mkdir -p "$root/build"

as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"
  elif command -v sudo >/dev/null; then sudo env DEBIAN_FRONTEND=noninteractive LC_ALL=C "$@"
  else echo "bootstrap: needs root or sudo to run: $*" >&2; return 1
  fi
}

# logged COMMAND...: its output only when it fails.
logged() {
  "$@" >"$log" 2>&1 || { tail -n 40 "$log" >&2; return 1; }
}

missing_packages() {
  local wanted
  mapfile -t wanted < <(grep -v '^#' "$root/scripts/packages.txt")
  { dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null || true; } |
    awk -v wanted="${wanted[*]}" '
      $2 == "installed" { have[$1] = 1 }
      END { n = split(wanted, names, " "); for (i = 1; i <= n; i++) if (!have[names[i]]) print names[i] }'
}

install_packages() {
  local missing
  mapfile -t missing < <(missing_packages)
  [ ${#missing[@]} -gt 0 ] || return 0
  echo "installing: ${missing[*]}"
  logged as_root apt-get "${apt_options[@]}" install --no-install-recommends "${missing[@]}" 2>/dev/null && return
  # An index that is absent or out of date is the usual reason. An update that fails in part may still do.
  as_root apt-get "${apt_options[@]}" update >"$log" 2>&1 || true
  logged as_root apt-get "${apt_options[@]}" install --no-install-recommends "${missing[@]}"
}

# Never removes or downgrades anything, and leaves the machine's architectures as they were when it fails.
install_wine32() {
  [ -x /usr/lib/wine/wine ] && { rm -f "$wine32_note"; return; }
  [ "$(dpkg --print-architecture)" = amd64 ] || return 0
  if [ -f "$wine32_note" ] && [ -z "${QM_RETRY_WINE32:-}" ]; then return; fi
  echo "installing: wine32:i386"
  local added=
  if ! dpkg --print-foreign-architectures | grep -qx i386; then
    as_root dpkg --add-architecture i386
    added=yes
  fi
  as_root apt-get "${apt_options[@]}" update >"$log" 2>&1 || true
  if as_root apt-get "${apt_options[@]}" install --no-install-recommends --no-remove wine32:i386 >>"$log" 2>&1; then
    rm -f "$wine32_note"
    return
  fi
  { echo "32-bit Wine could not be installed; apt said:"; grep -E '^(E|Err|W):|Depends|unexpected size' "$log" | head -12; } \
    >"$wine32_note"
  if [ -n "$added" ]; then as_root dpkg --remove-architecture i386 || true; fi
  echo "note: no 32-bit Wine here, x86 programs will be built but not run (why: build/wine32-unavailable.txt," \
       "again: QM_RETRY_WINE32=1 scripts/bootstrap.sh)"
}

install_packages
install_wine32
"$root/scripts/third_party.sh"
