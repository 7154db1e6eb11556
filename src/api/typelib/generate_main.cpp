// generate FOLDER: writes everything that is made from the interface table below that folder.

#include <windows.h>

#include <objbase.h>

#include <cstdio>
#include <string>

#include "api/typelib/generated.h"
#include "automation/typelib/typelib_writer.h"

namespace {

bool Write(const char* name, const std::string& bytes) {
  std::FILE* file = std::fopen(name, "wb");
  if (!file) return false;
  const bool whole = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return std::fclose(file) == 0 && whole;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2 || !SetCurrentDirectoryW(arguments[1])) {
    std::fputs("usage: generate FOLDER\n", stderr);
    return 2;
  }
  if (GetACP() != 1252) {
    std::fputs("the names of the type library need 1252 as the ANSI code page\n", stderr);
    return 1;
  }
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
  try {
    qm::api::WriteTypeLibraries();
  } catch (const qm::automation::WriteError& error) {
    std::fprintf(stderr, "type library: %08lX\n", static_cast<unsigned long>(error.result));
    return 1;
  }
  const bool written = Write("QmModImp3.h", qm::api::ComponentHeader()) &&
                       Write("QmModImp3.x64.manifest", qm::api::ComponentManifest(true)) &&
                       Write("QmModImp3.x86.manifest", qm::api::ComponentManifest(false));
  CoUninitialize();
  return written ? 0 : 1;
}
