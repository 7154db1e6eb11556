#include "api/typelib/generated.h"

#include "api/typelib/definition.h"
#include "automation/typelib/text_writer.h"
#include "automation/typelib/typelib_writer.h"
#include "qmfile2/typelib/definition.h"

namespace qm::api {

using automation::ImportedInterface;
using automation::WriteTypeLibrary;
using qmfile2::kRecordFileFace;
using qmfile2::kRecordFileLibrary;

void WriteTypeLibraries() {
  CreateDirectoryW(L"x64", nullptr);
  WriteTypeLibrary(kRecordFileLibrary, SYS_WIN64, L"x64\\QmFile2.tlb");
  WriteTypeLibrary(kComponent, SYS_WIN64, L"x64\\QmModImp3.tlb",
                   {{ImportedInterface{&kRecordFileFace, L"x64\\QmFile2.tlb"}}});
  CreateDirectoryW(L"x86", nullptr);
  WriteTypeLibrary(kRecordFileLibrary, SYS_WIN32, L"x86\\QmFile2.tlb");
  WriteTypeLibrary(kComponent, SYS_WIN32, L"x86\\QmModImp3.tlb",
                   {{ImportedInterface{&kRecordFileFace, L"x86\\QmFile2.tlb"}}});
}

std::string ComponentHeader() {
  const automation::Interface* const imports[] = {&kRecordFileFace};
  return automation::HostHeader(kComponent, imports);
}

std::string ComponentManifest(bool is64Bit) { return automation::Manifest(kComponent, "QmModImp3", is64Bit); }

}  // namespace qm::api
