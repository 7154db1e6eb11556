#pragma once
// All that is made from the tables of this project's libraries.
// Errors: a failing HRESULT is thrown as automation::WriteError.

#include <string>

namespace qm::api {

// QmFile2.tlb and QmModImp3.tlb, into the folders x64 and x86 of the current one.
void WriteTypeLibraries();

[[nodiscard]] std::string ComponentHeader();
[[nodiscard]] std::string ComponentManifest(bool is64Bit);

}  // namespace qm::api
