#pragma once
// Writes the type libraries of the component and of the record-file library.
// Errors: a failing HRESULT is thrown as WriteError.
// A 32-bit process loses functions when it writes a 64-bit library: run it as a 64-bit program, with 1252 as
// the ANSI code page (names have a tilde).

#include <windows.h>

#include <exception>
#include <string>

namespace qm::api {

struct WriteError : std::exception {
  HRESULT result;
  explicit WriteError(HRESULT failure) : result(failure) {}
};

// QmModImp3.tlb and QmFile2.tlb, into the folders x64 and x86 of the current one.
void WriteTypeLibraries();

}  // namespace qm::api
