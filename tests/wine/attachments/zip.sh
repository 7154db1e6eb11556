#!/bin/bash
# zip.sh HOST: archives made by CrearZip, read back by another program.
source "$(dirname "$0")/lib.sh"
need zip unzip
host=$1
fresh_folders
models=$QM_SCRATCH/modelos.xml
write_models "$models" \
  "$(modelo 1 'Width="3000" Height="1500" Copias="1"' \
     "$(campo Total 'Top=200 Left=200 Width=2500 Height=400 FontSize=12 FontName=Arial')")" \
  "$(modelo 2 'Width="3000" Height="1500" Copias="1" EsEtiqueta="1"' \
     "$(campo '#Etiqueta' 'Top=200 Left=200 Width=2500 Height=400 FontSize=12 FontName=Arial')")"
out=$QM_SCRATCH/salida
bitmap_bytes=60054  # 200 by 100 pixels

attach made 1 "$(folder salida)\\" fra.zip Total=123
expect_equal "entries" "EFactura.bmp:$bitmap_bytes" "$(entries "$out/fra.zip")"
unzip -p "$out/fra.zip" EFactura.bmp | cmp - "$out/EFactura.bmp" || fail "the archive has another bitmap"
cp "$out/EFactura.bmp" "$QM_SCRATCH/first.bmp"

# The entry is replaced, what else is in the archive stays.
(cd "$QM_SCRATCH" && zip -q "$out/fra.zip" modelos.xml)
attach made 1 "$(folder salida)\\" fra.zip Total=456
expect_equal "entries" "EFactura.bmp:$bitmap_bytes modelos.xml:$(stat -c %s "$models")" "$(entries "$out/fra.zip")"
unzip -p "$out/fra.zip" EFactura.bmp | cmp - "$out/EFactura.bmp" || fail "the bitmap was not replaced"
! cmp -s "$out/EFactura.bmp" "$QM_SCRATCH/first.bmp" || fail "the bitmap is the first one"

# Without a final backslash all is in the folder; a name with letters beyond ASCII; a label model.
attach made 2 "$(folder sin_barra)" "España·ñ.zip"
expect_equal "entries" "EFactura.bmp:$bitmap_bytes" "$(entries "$QM_SCRATCH/sin_barra/España·ñ.zip")"

# An empty folder is the component's own, and the host is told.
trap 'rm -f "$QM_BINARY_DIR/EFactura.bmp" "$QM_BINARY_DIR/propia.zip"' EXIT
attach made 1 "" propia.zip
expect_equal "folder given back" "$(windows_path "$QM_BINARY_DIR")\\" "$given_back"
expect_equal "entries" "EFactura.bmp:$bitmap_bytes" "$(entries "$QM_BINARY_DIR/propia.zip")"

# An archive that somebody has open, and one that is none, stay as they are.
failed="Se produjeron errores al crear el archivo ZIP"
cp "$out/fra.zip" "$QM_SCRATCH/before.zip"
attach made 1 "$(folder salida)\\" fra.zip --locks "$(folder salida/fra.zip)" --warns "$failed"
cmp "$out/fra.zip" "$QM_SCRATCH/before.zip" || fail "the locked archive was changed"
head -c 500 "$QM_SCRATCH/before.zip" >"$out/rota.zip"
attach made 1 "$(folder salida)\\" rota.zip --warns "$failed"
expect_equal "size of the broken one" 500 "$(stat -c %s "$out/rota.zip")"

# A folder that went away is made again, one level of it.
rm -r "$out"
attach made 1 "$(folder salida)\\" fra.zip
expect_equal "entries" "EFactura.bmp:$bitmap_bytes" "$(entries "$out/fra.zip")"
attach "error 76" 1 "$(folder falta/dentro)\\" fra.zip
attach "error 50102" 9 "$(folder salida)\\" fra.zip
expect_no_leftovers "$QM_SCRATCH"
