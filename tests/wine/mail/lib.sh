# lib.sh: what the scripts of this folder share; they source it.
source "$(dirname "${BASH_SOURCE[0]}")/../hosts/lib.sh"

# use_sender PROGRAM: the stand-in sender where the component starts it; $log is where it writes its starts.
use_sender() {
  common="$QM_WINEPREFIX/drive_c/Program Files"  # each bitness has its own
  [ -z "$QM_RUN_FLAGS" ] || common+=" (x86)"
  common+="/Common Files/Quillmar"
  rm -rf "$common"
  mkdir -p "$common"
  cp "$1" "$common/Qmenviar.exe"
  log="$common/Qmenviar.log"
}

# expect_starts NUMBER: that many in the end.
expect_starts() {
  for _ in $(seq 100); do
    [ "$(wc -l <"$log" 2>/dev/null || echo 0)" -ge "$1" ] && break
    sleep 0.1
  done
  expect_equal "starts of the sender" "$1" "$(wc -l <"$log")"
}
