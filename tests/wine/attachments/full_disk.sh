#!/bin/bash
# full_disk.sh HOST: on a disk without room the old files stay and the user, or the host, is told. Needs the
# right to mount a small disk in memory.
source "$(dirname "$0")/lib.sh"
host=$1
fresh_folders
models=$QM_SCRATCH/modelos.xml
write_models "$models" \
  "$(modelo 1 'Width="3000" Height="1500" Copias="1"' \
     "$(campo Total 'Top=200 Left=200 Width=2500 Height=400 FontSize=12 FontName=Arial')")"
disk=$QM_SCRATCH/disco
mkdir "$disk"
mount -t tmpfs -o size=128k tmpfs "$disk" 2>/dev/null || { echo "skipped: cannot mount a small disk" >&2; exit 77; }
trap 'umount "$disk"' EXIT

# The bitmap, 60054 bytes, takes 15 pages of the disk's 32. leave PAGES: as many are left free.
leave() {
  rm -f "$disk/relleno"
  local free
  free=$(LC_ALL=C df -B4096 --output=avail "$disk" | tail -1)
  dd if=/dev/zero of="$disk/relleno" bs=4096 count=$((free - $1)) status=none
}

attach made 1 "$(folder disco)\\" fra.zip Total=1
attach made 1 "$(folder disco)\\" fra.pdf Total=1
sums() { (cd "$disk" && md5sum EFactura.bmp fra.zip fra.pdf); }
before=$(sums)

# Not even the bitmap finds room.
leave 5
attach "error 61" 1 "$(folder disco)\\" fra.zip Total=2
attach "error 61" 1 "$(folder disco)\\" fra.pdf Total=2
expect_equal "files on a full disk" "$before" "$(sums)"
expect_no_leftovers "$disk"

# The bitmap finds room where there was none before, the archive and the PDF do not.
rm "$disk/EFactura.bmp"
leave 15
before=$(md5sum "$disk"/fra.*)
attach made 1 "$(folder disco)\\" fra.zip Total=2 --warns "Disco lleno ... Copia Abortada"
rm "$disk/EFactura.bmp"
attach "error 61" 1 "$(folder disco)\\" fra.pdf Total=2
expect_equal "archive and PDF on a full disk" "$before" "$(md5sum "$disk"/fra.*)"
expect_no_leftovers "$disk"
expect_equal "entries" "EFactura.bmp:60054" "$(entries "$disk/fra.zip")"
