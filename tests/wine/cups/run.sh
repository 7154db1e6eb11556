#!/bin/bash
# A page printed through CUPS arrives: a private cupsd on a socket of its own, with a PostScript printer whose
# backend keeps the job as a file, seen by Wine as any other printer. (The ready-made PDF printer of CUPS takes
# its settings from /etc and writes into the user's home.) Skipped, with the reason, where cupsd cannot run.
source "$(dirname "$0")/../lib.sh"
PATH=$PATH:/usr/sbin
need cupsd lpadmin lpstat ps2pdf pdftotext
skip() { echo "skipped: $*" >&2; exit 77; }
fresh_folders

# A socket's path must be short, so the server does not live in the build tree.
server=$(mktemp -d /tmp/qm-cups.XXXXXX)
export CUPS_SERVER=$server/cups.sock QM_WINEPREFIX=$QM_SOURCE_DIR/build/wine-prefix-cups
cupsd_id=
finish() {
  WINEPREFIX=$QM_WINEPREFIX /usr/lib/wine/wineserver -k >/dev/null 2>&1 || true
  [ -z "$cupsd_id" ] || { kill "$cupsd_id" && wait "$cupsd_id"; } 2>/dev/null || true
  cp "$server"/*log "$QM_SCRATCH/" 2>/dev/null || true
  rm -rf "$server"
}
trap finish EXIT
chmod 755 "$server"
mkdir -p "$server"/{root/ppd,bin/backend,spool/tmp,cache,state,out}
chmod 1777 "$server/out"

cat >"$server/root/cupsd.conf" <<CONF
Listen $server/cups.sock
LogLevel info
Browsing No
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
CONF
cat >"$server/root/cups-files.conf" <<CONF
SystemGroup root
Sandboxing relaxed
ServerRoot $server/root
ServerBin $server/bin
RequestRoot $server/spool
TempDir $server/spool/tmp
CacheDir $server/cache
StateDir $server/state
AccessLog $server/access_log
ErrorLog $server/error_log
PageLog $server/page_log
Printcap
CONF
for part in /usr/lib/cups/*/; do
  [ "$part" = /usr/lib/cups/backend/ ] || ln -s "$part" "$server/bin/$(basename "$part")"
done
cat >"$server/bin/backend/archivo" <<BACKEND
#!/bin/sh
# archivo job user title copies options [file]
[ \$# -gt 0 ] || exit 0
cat \${6:+"\$6"} >"$server/out/\$1.part" && mv "$server/out/\$1.part" "$server/out/\$1.ps"
BACKEND
chmod 755 "$server/bin/backend/archivo"

# The prefix first: making it takes longer than the server waits for its first job.
run cmd /c exit
cupsd -f -c "$server/root/cupsd.conf" -s "$server/root/cups-files.conf" >/dev/null 2>&1 </dev/null &
cupsd_id=$!
for _ in $(seq 100); do
  [ -S "$CUPS_SERVER" ] && lpstat -r >/dev/null 2>&1 && break
  kill -0 $cupsd_id 2>/dev/null || skip "cupsd does not run here: $(tail -1 "$server/error_log" 2>/dev/null)"
  sleep 0.1
done
lpadmin -p Impresora_CUPS -E -v archivo:/ -P "$QM_SOURCE_DIR/tools/printer_setup/a4.ppd" 2>"$QM_SCRATCH/lpadmin.log" ||
  skip "the CUPS printer cannot be added: $(tail -1 "$QM_SCRATCH/lpadmin.log")"

output=$(run "$1" Impresora_CUPS "" 1440 2880 "Factura 1.234,50 €" | tr -d '\r')
expect_equal "the job" "StartDoc 1 StartPage 1 EndPage 1 EndDoc 1" "$(tail -1 <<<"$output")"
expect_jobs 0
page=$server/out/1.ps
for _ in $(seq 200); do
  [ -f "$page" ] && break
  sleep 0.1
done
[ -f "$page" ] || { tail -20 "$server/error_log" >&2; fail "CUPS printed nothing"; }
ps2pdf -dAutoRotatePages=/None "$page" "$QM_SCRATCH/page.pdf"
expect_equal "the page" "Factura 1.234,50 €" "$(pdftotext "$QM_SCRATCH/page.pdf" - | head -1)"
