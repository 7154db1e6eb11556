#!/bin/bash
# The DLLs need nothing that is not part of Windows itself.
windows_own='kernel32|user32|gdi32|advapi32|ole32|oleaut32|shell32|shlwapi|comctl32|comdlg32|winspool\.drv|msvcrt|version|uxtheme|bcrypt|ucrtbase|api-ms-win-[a-z0-9-]+|ntdll|imm32|msimg32|oledlg'
[ -f "$QM_SOURCE_DIR/src/api/CMakeLists.txt" ] || { echo "skipped: no automation server is built yet"; exit 77; }
for name in QmModImp3 QmFile2; do
  [ -f "$QM_BINARY_DIR/$name.dll" ] || { echo "$QM_BINARY_DIR/$name.dll is missing"; exit 1; }
done
status=0
for dll in "$QM_BINARY_DIR"/*.dll; do
  imported=$(LC_ALL=C objdump -p "$dll" | awk '/DLL Name:/ { print tolower($3) }' | sort -u)
  [ -n "$imported" ] || { echo "$dll: objdump reads no import table"; exit 1; }
  echo "$(basename "$dll") imports: $(tr '\n' ' ' <<<"$imported")"
  if foreign=$(grep -vE "^($windows_own)(\.dll)?$" <<<"$imported"); then
    echo "  not Windows' own: $foreign"
    echo "  To mend: link it statically (-static, and the .a of the library)"
    status=1
  fi
done
exit $status
